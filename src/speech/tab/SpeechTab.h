#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

#include <vector>

#include "document/BookWatch.h"
#include "sound/SoundPlayer.h"
#include "speech/tab/SpeechFilter.h"
#include "speech/tab/SpeechFinder.h"
#include "speech/tab/SpeechModel.h"
#include "speech/tab/SpeechWork.h"

class QAction;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QProgressBar;
class QSettings;
class SpeechView;

// Every text of the book with its audio file: heard, spoken, recorded.
class SpeechTab : public QWidget
{
    Q_OBJECT

public:
    explicit SpeechTab(BookSource source, QWidget* parent = nullptr);
    ~SpeechTab() override;

    // The book has changed. Costs next to nothing.
    void lookSoon() { watch.lookSoon(); }
    // Another project has come.
    void forget();
    // While a build is making the game nothing is made here.
    void setBuilding(bool building);
    // Something is being made here.
    bool isBusy() const { return work.isBusy(); }
    // How the author likes to record is kept there. The settings outlive the tab.
    void keepSettingsIn(QSettings& kept) { settings = &kept; }

signals:
    // For the author.
    void told(const QString& text);
    // The author wants to see this line of the script; 0: the name of the product, of which the
    // welcome is made.
    void lineAsked(int line);
    // The script is to stand at this line, which the author may want to see next.
    void lineShown(int line);
    // The script is to have this line, which declares a voice.
    void statementChosen(const QString& statement);
    void busyChanged(bool busy);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeFilters();
    QWidget* makeProgress();
    QWidget* makeButtons();
    QAction* addCommand(QLayout& row, const char* name, const QString& text, const QString& toolTip,
                        void (SpeechTab::*command)());
    void connectTable();

    void show(SpeechFindings findings);
    void showVoices();
    void showSummary();
    void watchFolder();
    void allowCommands();
    void showProgress(const QString& what);
    // Stays until something else is said.
    void say(const QStringList& sentences);

    // The rows as the model has them, in the order of the table.
    std::vector<int> selectedRows() const;
    const SpeechText& textOf(int shownRow) const;
    void goTo(int shownRow);

    // SpeechTabCommands.cpp
    static bool needsSpeech(const SpeechText& text);
    static bool takesFile(const SpeechText& text);
    // Each audio name once.
    std::vector<SpeechText> selectedOrAll(bool (*isMeant)(const SpeechText&)) const;
    std::vector<SpeechText> allTexts() const;
    Oid::OidProject book() const;
    void begin(SpeechWork::Job job, const QString& what);
    void end(const QStringList& sentences);
    void speak();
    void evenOut();
    void record();
    void useFile();
    void adoptFile(const QString& file, const SpeechText& text);
    void takeBack();
    void tryVoices();
    void importFolder();
    void importFiles(const QStringList& paths);
    void printSheet();
    void saveSheet();
    QString sheetName(const QString& extension) const;
    void makeSheet(const QString& file, bool isPdf);
    void tidy();
    // Nothing else is being made; else the author is told.
    bool mayBegin();

    void play();
    void playRow(int shownRow);
    void playNext();
    void stop();

    SpeechModel model;
    SpeechFilter filter{model};
    SpeechView* table = nullptr;
    QLineEdit* words = nullptr;
    QComboBox* states = nullptr;
    QComboBox* voices = nullptr;
    QLabel* summary = nullptr;
    QLabel* result = nullptr;
    QWidget* progressRow = nullptr;
    QProgressBar* progress = nullptr;
    QAction* playing = nullptr;
    QAction* speaking = nullptr;
    QAction* recording = nullptr;
    QAction* usingFile = nullptr;
    QAction* takingBack = nullptr;
    QAction* eveningOut = nullptr;
    QAction* importing = nullptr;
    QAction* printingSheet = nullptr;
    QAction* savingSheet = nullptr;
    QAction* tidying = nullptr;
    QString folder;   // of the audio files; empty while the book has no file
    QString problem;  // with the index
    std::map<std::string, ttbasic::VOICE> scriptVoices;
    bool isBuilding = false;
    QSettings* settings = nullptr;
    QFileSystemWatcher files;
    SoundPlayer player;
    std::vector<std::string> toPlay;  // files, the next one last
    const BookSource source;
    SpeechWork work;
    SpeechLengths lengths;
    SpeechSearch search{lengths};  // of the other thread
    BookWatch<SpeechFindings> watch;
};
