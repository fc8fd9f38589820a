#pragma once

#include "app/RecentBooks.h"
#include "document/CompanionFiles.h"
#include "document/Document.h"
#include "document/SavedFile.h"
#include "page/PickTool.h"
#include "publish/SoundFiles.h"

#include <QMainWindow>
#include <QMessageBox>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Ui {
class MainWindow;
}
class AreaTools;
class BookPrinting;
class ChangedFileBar;
class NoticeBar;
class NumberBar;
class PageScrollArea;
class PagesDock;
class PictureCopy;
class QLabel;
class QScrollArea;
class QSettings;
class Recovery;
class RenameEverywhere;
class SideDocks;
class SpeechTab;
class TryTab;
class WelcomePage;
struct RecoveryHead;
struct SampleBook;

// The one window. It owns the one document, which all its controls edit; form and project are kept
// in step by ProjectDataWasChanged alone, and what an edit changes is shown by showChange. The
// slots are connected by their names (on_<object>_<signal>), so the names of the form's objects are
// part of the design.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // What the open command does once a file is chosen; a failed open shows the console.
    void openProject(const QString& path);
    // For a window that begins without a project: offers work that has no file.
    void offerUnsavedWork();
    // Takes over how the author likes the window, and keeps there what becomes of it. The settings
    // are the caller's and outlive the window.
    void keepSettingsIn(QSettings& settings);

private slots:
    // Their order, that of the meta-object, is part of the design, too.

    // MainWindow.cpp: the project file
    void on_action_Open_triggered();
    void on_action_Save_As_triggered();

    // MainWindowAreas.cpp: the areas of the current picture
    void on_btAddPoly_clicked();
    void onPolyAreaClickedLB(Oid::PNT pt);
    void on_btDelPoly_clicked();
    void on_btPickPoly_clicked();
    void on_txPolyName_textEdited(const QString& arg1);

    // MainWindow.cpp: every key in these fields carries the whole form into the project
    void on_txProjPaperWidth_textChanged(const QString& arg1);
    void on_txProjPaperHeight_textChanged(const QString& arg1);
    void on_txProjDPI_textChanged(const QString& arg1);

    // MainWindowBuild.cpp: what comes out of the project
    void on_btBuild_clicked();
    void on_btCreateImage_clicked();

    // MainWindow.cpp
    void on_actionSave_triggered();

    // MainWindowBuild.cpp
    void on_btCopyToPen_clicked();

    // MainWindowAreas.cpp
    void on_txOidOfArea_valueChanged(int arg1);
    void on_txPolyName_textChanged(const QString& arg1);

    // MainWindowPictures.cpp: the pages
    void on_btDeletePicture_clicked();
    void on_btPreviousPicture_clicked();
    void on_btNextPicture_clicked();
    void on_btLoadImage_clicked();

    // MainWindowAreas.cpp
    void on_btEditPolyCode_clicked();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // The one place that moves data between the form and the project: into the project (a fresh
    // compiler object included), or into the form. Called before and after changes alike.
    void ProjectDataWasChanged(bool toProject);
    void showScript();
    void prepareTextEditor();
    void helpWithScript(RenameEverywhere& rename);
    void prepareDocks();
    void takeDrops();
    void letPictureScroll();
    void prepareTools();
    void preparePrinting();
    void letProjectScroll();
    void takeDecimalCommas();
    void tellKeys();
    void prepareNotices();
    void addNotice(NoticeBar* bar);
    void makeRoomForNotice(bool visible);
    void takeNumber(int number);
    // MainWindowBooks.cpp: the way to a book
    void prepareWelcome();
    // The welcome page is there while nothing else is.
    void updateWelcome();
    void rememberBook();
    // Where a folder for another book is suggested.
    QString folderOfBooks() const;
    void makeNewBook();
    // A copy of it, in a folder that the author chooses.
    void openSample(const SampleBook& book);

    // MainWindowTrying.cpp: the tab on which the book is tried
    void prepareTrying();
    void showScriptLine(int line);
    // Asks where; false when it was not written.
    bool saveBookTest(const std::string& test);
    // MainWindowSpeech.cpp: the tab with the audio files of the texts
    void prepareSpeech();

    // MainWindowManual.cpp: its button, and F1
    void prepareManual();
    // Where the manual tells of the tab that is shown.
    QString placeOfTab() const;
    void showManual(const QString& place);

    // Points all messages of the project at the console.
    void printIntoConsole();

    // MainWindowRecovery.cpp: unsaved work
    void prepareRecovery();
    // Another number once anything changed that saving would write.
    std::uint64_t workFingerprint() const;
    // What saving would write now, with all that stands in the form. Changes nothing.
    Oid::OidProject projectToSave() const;
    // Brings a copy of unsaved work into the window; false when it cannot be read.
    bool restore(const QString& file, const RecoveryHead& head);

    // Before another project comes: what was said of this one is said no more.
    void clearMessages();
    // Shows the project, which is another one now, from its beginning.
    void showProject(bool opened);
    // The project's number is that of its file, and its pictures are named by it.
    void noteFiles();
    // Writes the project, into which the form has been carried, and all that goes with that.
    bool saveProject(const std::string& path);

    // MainWindowOthers.cpp: other windows and programs that work on the same project
    void noticeOthers();
    void followOtherWindows();
    // Whether saving would overwrite what another one has saved.
    bool othersWouldLose();
    // What the author wants of that.
    enum class OtherFile { leave, overwrite, open, saveAs };
    OtherFile askAboutOther();
    // Shows what the file holds now. Unsaved work stays as a copy, which is offered.
    void openOther();

    // MainWindowHistory.cpp: undo and redo, of the script on its tab, else of pages and areas
    void prepareHistory();
    void undo();
    void redo();
    bool scriptIsShown() const;
    void updateHistoryActions();
    // Shows what the document says has changed.
    void showChange(const Change& change);
    void showPaper();
    // The paper of the current picture, of which there is one, as the fields have it; or the fields
    // get it.
    edit::SetPaper syncPaper(bool fromFields) const;

    // Selects an area of the current picture, or none for an index that it does not have.
    void selectPolygon(int i);
    // The selected area of the current picture, null when there is none.
    const Oid::POLY* selectedArea() const;
    // Fills the fields of the selected area; without one they keep what they show.
    void showSelectedArea();

    // True when the form holds a name, id or script that the project does not have yet.
    bool formWasEdited() const;
    // Carries such edits into the project before the form is filled anew, which would lose them.
    void keepEdits();
    void showPicture(int index);
    void showTopOfPicture();
    // In the list of pages, with the keys that do it.
    void showHowToRemovePage();
    // Asks for a picture that is to be picture n of the project. Nothing when the author cancelled
    // or it cannot be read (then that was said).
    std::optional<PictureCopy> choosePicture(int n);
    // Says so when the edit, which brings a picture in, could not keep its copy.
    bool keepPicture(const Edit& edit);
    // Says which picture file could not be written or renamed.
    void warnOfPictures();
    void warnWithPictureProblem(const QString& what);
    // After a save that gave the project another folder or number.
    void takeFilesAlong();
    void warnOfMissingCopies(const std::vector<std::string>& paths);
    // Which of the buttons, of which No is the safe one, the author pressed.
    int askToOverwrite(const std::string& path, QMessageBox::StandardButtons buttons);
    // With "Why?", which opens that place of the manual.
    void warn(const QString& text, const QString& placeInManual, const QString& advice = {});
    // Says in the status bar what came of an action; with a label also beside its button.
    void tell(const QString& text);
    void tell(QLabel& besideButton, const QString& text);

    // The current page's picture, upright.
    QImage currentPicture() const;
    // The middle of the selected area.
    std::optional<Oid::PNT> middleOfSelectedArea() const;
    // Selects the area that tells the pen which book it is; makes it where there is none.
    void addStartSymbol();

    // The corners of all areas that are about to be printed.
    void turnAreasForPrint();
    // Paper and resolution of the current picture become those of all.
    void giveSizeToAllPictures();
    // One line for each picture whose resolution is too low; empty if none is.
    QString tooFewDpi() const;
    // Quick answers, until the author chooses, are there where tttool is not.
    void prepareBuilding();
    void keepQuickAnswersIn(QSettings& settings);
    // Greys out Build and Copy until the assembler that Build has left running is done.
    void waitForAssembler(const std::function<void()>& done);

    // The speech step of a build, with its progress.
    SpeechOutcome createSoundFiles();
    void copyGmeToTipToi();

    Document document;
    Oid::OidProject& project = document.projectRecord();
    CompanionFiles companions;
    SavedFile savedFile;
    RecentBooks recentBooks;
    PickTool pickTool{document};
    // What is typed into a field without a pause is one step of the history.
    const Gesture typedName = document.newGesture();
    const Gesture typedNumber = document.newGesture();
    const Gesture typedPaper = document.newGesture();
    bool fillingFields = false;  // with what the project has, so that they change nothing
    bool typingPaper = false;    // the fields have what the project gets
    std::unique_ptr<Ui::MainWindow> ui;
    std::unique_ptr<AreaTools> areaTools;
    PageScrollArea* pictureScroll = nullptr;
    QScrollArea* projectScroll = nullptr;
    NumberBar* numberBar = nullptr;
    ChangedFileBar* changedFileBar = nullptr;
    BookPrinting* printing = nullptr;
    SideDocks* docks = nullptr;
    PagesDock* pages = nullptr;
    TryTab* tryTab = nullptr;
    SpeechTab* speechTab = nullptr;
    WelcomePage* welcome = nullptr;
    std::unique_ptr<Recovery> recovery;  // ends first: it reads the form
};
