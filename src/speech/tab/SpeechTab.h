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

class QAction;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
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

signals:
    // For the author.
    void told(const QString& text);
    // The author wants to see this line of the script; 0: the name of the product, of which the
    // welcome is made.
    void lineAsked(int line);
    // The script is to stand at this line, which the author may want to see next.
    void lineShown(int line);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeFilters();
    QWidget* makeButtons();
    QAction* addCommand(QLayout& row, const char* name, const QString& text, const QString& toolTip,
                        void (SpeechTab::*command)());
    void connectTable();

    void show(SpeechFindings findings);
    void showVoices();
    void showSummary();
    void watchFolder();
    void allowCommands();

    // The rows as the model has them, in the order of the table.
    std::vector<int> selectedRows() const;
    const SpeechText& textOf(int shownRow) const;
    void goTo(int shownRow);

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
    QAction* playing = nullptr;
    QString folder;   // of the audio files; empty while the book has no file
    QString problem;  // with the index
    QFileSystemWatcher files;
    SoundPlayer player;
    std::vector<std::string> toPlay;  // files, the next one last
    SpeechSearch search;              // of the other thread
    BookWatch<SpeechFindings> watch;
};
