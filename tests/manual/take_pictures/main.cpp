// Takes the pictures of the manual from the real window, without a screen:
//     take_pictures LANGUAGE PROJECT FOLDER
// The project is copied before. tools/dev/take-pictures runs it for all languages.
#include "app/MainWindow.h"
#include "app/Translations.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"
#include "page/PolyEditorWidget.h"
#include "tests/helpers/Environment.h"
#include "tests/manual/Pictures.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <filesystem>
#include <fstream>
#include <memory>

namespace fs = std::filesystem;

namespace {

constexpr QSize kWindow(1000, 720);
constexpr int kPatience = 60000;  // ms, for what is found, spoken and built meanwhile

class Photographer
{
public:
    Photographer(const QString& projectFile, QString folderOfPictures)
        : pictures(std::move(folderOfPictures))
    {
        const fs::path source(projectFile.toStdString());
        fs::copy(source.parent_path(), book.path(), fs::copy_options::recursive);
        project = QString::fromStdString(book.file(source.filename().string()));
    }

    bool takeAll()
    {
        takeBeginning();
        open();
        takeTabs();
        takeAreas();
        takeProblems();
        takeDialog("btTryVoices", "try-voices");
        takeDialog("btRecord", "speech-record");
        takeRecovery();
        return allTaken;
    }

private:
    template <class T>
    T& get(const char* name)
    {
        return *window->findChild<T*>(name);
    }

    void open()
    {
        window = std::make_unique<MainWindow>();
        window->resize(kWindow);
        window->show();
        window->openProject(project);
        QTest::qWait(2000);  // what is found on other threads
    }

    void showTab(const char* tab)
    {
        get<QTabWidget>("ribbonTab").setCurrentWidget(&get<QWidget>(tab));
        QTest::qWait(500);
    }

    void take(const char* name) { keep(window->grab(), name); }

    void keep(const QPixmap& picture, const char* name)
    {
        const QString file = pictures + "/" + name + ".png";
        allTaken =
            picture.toImage().convertToFormat(QImage::Format_Indexed8).save(file) && allTaken;
    }

    // An empty window, and what "New book..." asks there.
    void takeBeginning()
    {
        window = std::make_unique<MainWindow>();
        window->resize(kWindow);
        window->show();
        QTest::qWait(500);
        take("window-welcome");
        QTimer::singleShot(1000, window.get(), [this] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                allTaken = false;
                return;
            }
            fillNewBook(*dialog);
            keep(dialog->grab(), "new-book");
            dialog->close();
        });
        get<QAction>("actionNewBook").trigger();
    }

    void fillNewBook(QWidget& dialog)
    {
        const QString name = QFileInfo(project).completeBaseName();
        const QString title = name.left(1).toUpper() + name.mid(1);
        QTest::keyClicks(dialog.findChild<QLineEdit*>("txNewBookName"), title);
        auto* const folder = dialog.findChild<QLineEdit*>("txNewBookFolder");
        folder->selectAll();
        QTest::keyClicks(folder, QDir::tempPath() + "/" + title);
        QTimer::singleShot(500, &dialog, [this] {
            QWidget* const question = QApplication::activeModalWidget();
            auto* const files = question->findChild<QLineEdit*>("fileNameEdit");
            QStringList pages;
            for (const QString& page :
                 QDir(QFileInfo(project).path()).entryList({"*-bkgnd*.jpg"})) {
                pages << '"' + QFileInfo(project).path() + '/' + page + '"';
            }
            files->setText(pages.join(' '));
            QTest::keyClick(files, Qt::Key_Return);
        });
        dialog.findChild<QPushButton*>("btNewBookAdd")->click();
        allTaken = allTaken && dialog.findChild<QListWidget*>("newBookPages")->count() > 0;
        QTest::qWait(200);
    }

    void takeTabs()
    {
        showTab("tabProject");
        take("window-project");
        showTab("tabScript");
        take("window-script");
        showTab("tabBuild");
        get<QPushButton>("btBuild").click();
        allTaken = QTest::qWaitFor([this] { return get<QPushButton>("btBuild").isEnabled(); },
                                   kPatience) &&
                   allTaken;
        QTest::qWait(500);
        take("window-build");
        showTab("tabTry");
        tapAreas();
        take("window-try");
        showTab("tabSpeech");
        QTest::qWait(1500);
        take("window-speech");
    }

    // By keys, from area to area.
    void tapAreas()
    {
        auto* const page = window->findChild<QWidget*>("tryPage");
        for (int i = 0; page != nullptr && i < 3; ++i) {
            page->setFocus();
            QTest::keyClick(page, Qt::Key_Right);
            QTest::keyClick(page, Qt::Key_Return);
            QTest::qWait(1500);
        }
    }

    QPoint at(double x, double y)
    {
        const QWidget& page = get<PolyEditorWidget>("polyArea");
        return {static_cast<int>(x * page.width() / 100), static_cast<int>(y * page.width() / 100)};
    }

    void clickAt(double x, double y)
    {
        QTest::mouseClick(&get<PolyEditorWidget>("polyArea"), Qt::LeftButton, Qt::NoModifier,
                          at(x, y));
        QTest::qWait(100);
    }

    // Places of the farmyard, in percent of its width.
    void takeAreas()
    {
        showTab("tabAreas");
        get<QPushButton>("btPickPoly").click();
        clickAt(70, 22);
        take("window-areas");
        takeCorner();
        get<QPushButton>("btAddPoly").click();
        for (const auto& [x, y] : {std::pair(28, 8), {32, 5}, {37, 6}, {40, 10}, {34, 12}}) {
            clickAt(x, y);
        }
        take("window-drawing");
        QTest::keyClick(&get<PolyEditorWidget>("polyArea"), Qt::Key_Escape);
        get<QAction>("actionMagicArea").trigger();
        clickAt(33, 9);
        take("window-magic");
        QTest::keyClick(&get<PolyEditorWidget>("polyArea"), Qt::Key_Escape);
    }

    // One of the roof, while it is dragged.
    void takeCorner()
    {
        auto& page = get<PolyEditorWidget>("polyArea");
        QTest::mousePress(&page, Qt::LeftButton, Qt::NoModifier, at(63.3, 13.7));
        for (const auto& [x, y] : {std::pair(62, 12), {58, 9}, {55, 7}}) {
            const QPoint to = at(x, y);
            QMouseEvent move(QEvent::MouseMove, to, page.mapToGlobal(to), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&page, &move);
        }
        take("window-corners");
        QTest::keyClick(&page, Qt::Key_Escape);
        QTest::mouseRelease(&page, Qt::LeftButton, Qt::NoModifier, at(55, 7));
    }

    void takeProblems()
    {
        showTab("tabScript");
        auto& script = get<KVQtHighlightEditCtrl>("codeEditor").surface();
        const QString before = get<KVQtHighlightEditCtrl>("codeEditor").text();
        script.setFocus();
        QTest::keyClick(&script, Qt::Key_Home, Qt::ControlModifier);
        for (const char* const line :
             {"sub bell", "if rings", "say eve \"Ding!\" \"Dong!\"", "end if", "end sub"}) {
            QTest::keyClicks(&script, line);
            QTest::keyClick(&script, Qt::Key_Escape);  // no suggestion
            QTest::keyClick(&script, Qt::Key_Return);
        }
        QTest::qWait(2500);
        take("window-problems");
        get<KVQtHighlightEditCtrl>("codeEditor").setText(before);
    }

    // The dialog of a button of the tab "Speech", which waits for an answer.
    void takeDialog(const char* button, const char* name)
    {
        showTab("tabSpeech");
        QTimer::singleShot(2500, window.get(), [this, name] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                allTaken = false;
                return;
            }
            keep(dialog->grab(), name);
            dialog->close();
        });
        get<QPushButton>(button).click();
    }

    // A window is closed with unsaved work, and the next one offers it.
    void takeRecovery()
    {
        showTab("tabProject");
        get<QLineEdit>("txProjectName").setText(get<QLineEdit>("txProjectName").text() + " 2");
        QTest::qWait(4000);
        window.reset();
        open();
        take("window-recovery");
    }

    OwnDataFolder userData;
    TemporaryFolder book;
    QString project;
    QString pictures;
    std::unique_ptr<MainWindow> window;
    bool allTaken = true;
};

void noteStates(const std::string& language)
{
    std::ofstream taken(takenFile(language));
    for (const Picture& picture : picturesOfManual()) {
        taken << picture.file << ' ' << stateOfForms(picture) << '\n';
    }
}

}  // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) {
        qCritical("Usage: take_pictures LANGUAGE PROJECT FOLDER");
        return 2;
    }
    QLocale::setDefault(QLocale(words[1]));
    const Translations translations({words[1]});
    if (!QDir().mkpath(words[3]) || !Photographer(words[2], words[3]).takeAll()) {
        qCritical("Not all pictures were taken");
        return 1;
    }
    noteStates(words[1].toStdString());
    return 0;
}
