#pragma once

#include "recording/BookSounds.h"
#include "recording/Take.h"
#include "sound/Microphone.h"
#include "sound/SoundPlayer.h"
#include "speech/tab/RecordWork.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class LevelMeter;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSettings;
class RecordCard;
class WaveView;

// A text that can be recorded.
struct TextToRecord
{
    QString audioName;
    QString voice;
    QString text;
    bool hasFile = false;
    bool isSpoken = false;  // its file was made by the speech program

    bool isMissing() const { return !hasFile || isSpoken; }  // the author's voice
};

// Records texts one after the other: Space begins and ends a recording, Enter keeps it and goes to
// the next text that is missing. What is kept is written into the audio folder at once; what was
// never kept is not lost without a question.
class RecordDialog : public QDialog
{
    Q_OBJECT

public:
    // There is a text at least. Begins with the text of that audio name, else with the first that
    // is missing. Microphone and count-in are remembered in the settings, which outlive the dialog.
    RecordDialog(std::vector<TextToRecord> texts, const QString& audioFolder, QSettings& settings,
                 const QString& audioName = {}, QWidget* parent = nullptr);
    ~RecordDialog() override;

    // The texts as they stand now.
    const std::vector<TextToRecord>& texts() const { return all; }

    void reject() override;
    void done(int result) override;

signals:
    // The file of this text was written.
    void recorded(const QString& audioName);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    enum class State { idle, counting, recording, working };

    void makeControls();
    void layOut();
    QPushButton* button(const char* name, const QString& text, const QString& toolTip);
    void connectMicrophone();
    void showMicrophones(const QStringList& names);
    void takeMicrophone(int index);
    void openMicrophone();

    void goTo(size_t text);
    void goToNeighbour(int step);
    size_t nextMissing() const;  // the current one if there is none
    size_t countMissing() const;

    void beginOrEnd();
    void beginCounting();
    void count();
    void beginRecording();
    void endRecording();
    void showTime();
    void keepAndGoOn();
    // Keeps the take; what then comes, comes only when it is written.
    void keep(const std::function<void()>& then);
    // At once if there is nothing to lose, else after a question.
    void whenNothingIsLost(const std::function<void()>& then);
    void loadFile();
    void listen();
    void trim(recording::Span kept, bool goesOn);
    void changeTake(const std::function<void()>& change);

    void enter(State next);
    // What a key wishes while a file is written or read, happens afterwards.
    void takeWish();
    void showState();
    void showTake();
    void say(const QString& text);
    QString words(const MonoSound& sound) const;
    std::string fileOf(const TextToRecord& text) const;
    TextToRecord& current() { return all[place]; }
    bool isUnsaved() const;
    void markSaved();

    std::vector<TextToRecord> all;
    const std::string folder;
    QSettings& settings;
    size_t place = 0;
    State state = State::idle;
    recording::Take take;
    std::shared_ptr<const MonoSound> savedSound;  // what the file holds
    recording::Span savedSpan;
    std::function<void()> wish;
    int counted = 0;
    QTimer counter;
    QTimer clock;
    QElapsedTimer sinceBegin;

    Microphone microphone;
    SoundPlayer player;
    QTemporaryDir heardFolder;
    RecordCard* card = nullptr;
    QLabel* progress = nullptr;
    QLabel* sign = nullptr;  // the count, or how long is recorded
    QLabel* message = nullptr;
    QLabel* length = nullptr;
    QComboBox* microphones = nullptr;
    QCheckBox* countIn = nullptr;
    LevelMeter* meter = nullptr;
    WaveView* wave = nullptr;
    QPushButton* record = nullptr;
    QPushButton* hear = nullptr;
    QPushButton* undo = nullptr;
    QPushButton* redo = nullptr;
    QPushButton* before = nullptr;
    QPushButton* skip = nullptr;
    QPushButton* next = nullptr;
    QPushButton* leave = nullptr;
    RecordWork work;  // ends before what it works for
};
