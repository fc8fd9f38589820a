#include "speech/tab/RecordDialog.h"

#include "recording/ReadSound.h"
#include "recording/VoiceFile.h"
#include "speech/SpeechIndex.h"
#include "speech/tab/LevelMeter.h"
#include "speech/tab/WaveView.h"
#include "tests/app/DialogAnswers.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/recording/Voices.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int kPatience = 30000;  // ms

}  // namespace

// A whole book is recorded with real keys; the microphone and the loudspeaker are files.
class RecordDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { voice = voiceFile(0.3); }
    void init();
    void cleanup();

    void beginsWithTheFirstTextThatIsMissing();
    void beginsWithTheTextThatIsWished();
    void spaceRecordsAndEnterKeepsAndGoesToTheNextMissingText();
    void spaceEndsARecordingWhichCanThenBeKept();
    void theLastTextIsFollowedByAWordThatAllIsDone();
    void aFileTheSpeechProgramMadeIsMissingAndNotKept();
    void aRecordingThatCameInTheMeantimeIsKept();
    void whatIsRecordedAgainReplacesTheFileAndKeepsTheEarlierOne();
    void aCountInIsSeenBeforeARecordingBegins();
    void spaceOrEscapeStopTheCountIn();
    void theCountInIsRemembered();
    void anotherRecordingCanBeUndone();
    void aFileThatIsThereCanBeTrimmedByKeys();
    void listeningPlaysIt();
    void pageKeysTurnTheTexts();
    void keysThatComeWhileAFileIsWrittenCountAfterwards();

    void escapeEndsARecordingAndKeepsItInTheDialog();
    void escapeAsksBeforeARecordingIsLost();
    void anotherTextAsksBeforeARecordingIsLost();
    void keepingAtTheEndClosesWhenItIsWritten();

    void withoutAMicrophoneThatIsToldAndSpaceLooksForOneAgain();
    void aMicrophoneThatVanishesLosesNothing();
    void aMutedMicrophoneIsToldAndNothingIsKept();
    void aDistortedRecordingIsTold();
    void onAFullDiskTheRecordingStaysUntilItCanBeKept();
    void aFileThatIsGoneIsTold();

    void theMicrophoneIsChosenAndRemembered();
    void everythingHasANameAndIsReachedByTab();
    void aLongTextFitsOnTheCard();
    void theDialogFitsOnASmallScreen();

private:
    std::string voiceFile(double height);
    void hear(const std::string& file);
    void open(const QString& audioName = {}, bool hears = true);
    void aSpokenText();
    void recordFor(double seconds);
    void waitForRecording(double seconds);

    QString label(const char* name) { return dialog->findChild<QLabel*>(name)->text(); }
    QString said() { return label("recordMessage"); }
    QString text() { return label("recordText"); }
    QPushButton* button(const char* name) { return dialog->findChild<QPushButton*>(name); }
    void press(int key, Qt::KeyboardModifiers with = Qt::NoModifier);
    QString kept() { return QDir(audio).entryList(QDir::Files, QDir::Name).join(' '); }
    QString originals()
    {
        return QDir(audio + "/originals").entryList(QDir::Files, QDir::Name).join(' ');
    }

    TemporaryFolder shared;  // by all tests
    std::string voice;       // what the microphone hears
    std::unique_ptr<TemporaryFolder> folder;
    std::unique_ptr<ChangedVariable> driver;
    std::unique_ptr<ChangedVariable> input;
    std::unique_ptr<ChangedVariable> output;
    std::unique_ptr<QSettings> settings;
    QString audio;
    std::vector<TextToRecord> texts;
    std::unique_ptr<RecordDialog> dialog;
    QStringList recorded;
};

void RecordDialogTest::init()
{
    folder = std::make_unique<TemporaryFolder>();
    driver = std::make_unique<ChangedVariable>("SDL_AUDIODRIVER", "disk");
    hear(voice);
    output = std::make_unique<ChangedVariable>("SDL_DISKAUDIOFILE", folder->file("heard.raw"));
    settings = std::make_unique<QSettings>(QString::fromStdString(folder->file("settings.ini")),
                                           QSettings::IniFormat);
    settings->setValue("recording/countIn", false);
    audio = QString::fromStdString(folder->file("900-audio"));
    texts = {{"say_adam_One", "adam", "One cow", false, false},
             {"say_adam_Two", "adam", "Two cows", false, false},
             {"say_eve_Three", "eve", "Three cows", false, false}};
    recorded.clear();
}

void RecordDialogTest::cleanup()
{
    dialog.reset();
    output.reset();
    input.reset();
    driver.reset();
}

// A minute of it.
std::string RecordDialogTest::voiceFile(double height)
{
    const MonoSound spoken = voiceOf(3, height);
    const std::string bytes(reinterpret_cast<const char*>(spoken.samples.data()),
                            spoken.samples.size() * sizeof(float));
    std::string all;
    for (int i = 0; i < 20; ++i) {
        all += bytes;
    }
    const std::string file = shared.file(std::to_string(height));
    writeFile(file, all);
    return file;
}

void RecordDialogTest::hear(const std::string& file)
{
    input.reset();
    input = std::make_unique<ChangedVariable>("SDL_DISKAUDIOFILEIN", file);
}

// With the microphone open.
void RecordDialogTest::open(const QString& audioName, bool hears)
{
    dialog = std::make_unique<RecordDialog>(texts, audio, *settings, audioName);
    connect(dialog.get(), &RecordDialog::recorded, this,
            [this](const QString& name) { recorded << name; });
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    if (hears) {
        const auto* const meter = dialog->findChild<LevelMeter*>();
        QTRY_VERIFY_WITH_TIMEOUT(meter->verdict() != LevelMeter::Verdict::off, kPatience);
    }
}

// To where the keys of the author go.
void RecordDialogTest::press(int key, Qt::KeyboardModifiers with)
{
    QWidget* const focus = dialog->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : dialog.get(), static_cast<Qt::Key>(key), with);
}

// Begins one by a key, and waits until it is that long.
void RecordDialogTest::recordFor(double seconds)
{
    press(Qt::Key_Space);
    waitForRecording(seconds);
}

void RecordDialogTest::waitForRecording(double seconds)
{
    QTRY_VERIFY_WITH_TIMEOUT(label("recordSign").startsWith(QChar(0x25CF)), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(label("recordSign").mid(2).toDouble() >= seconds, kPatience);
}

void RecordDialogTest::beginsWithTheFirstTextThatIsMissing()
{
    texts[0].hasFile = true;
    open();
    QCOMPARE(text(), QString("Two cows"));
    QCOMPARE(label("recordVoice"), QString("adam"));
    QCOMPARE(label("recordProgress"), QString("Text 2 of 3, 2 missing"));
}

void RecordDialogTest::beginsWithTheTextThatIsWished()
{
    open("say_eve_Three");
    QCOMPARE(text(), QString("Three cows"));
    QCOMPARE(label("recordVoice"), QString("eve"));
}

void RecordDialogTest::spaceRecordsAndEnterKeepsAndGoesToTheNextMissingText()
{
    texts[1].hasFile = true;
    open();
    recordFor(0.6);
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(text(), QString("Three cows"), kPatience);
    QCOMPARE(recorded, QStringList{"say_adam_One"});
    QCOMPARE(label("recordProgress"), QString("Text 3 of 3, 1 missing"));
    QCOMPARE(kept(), QString("say_adam_One.ogg"));
    QCOMPARE(originals(), QString("say_adam_One.flac"));
    const recording::FoundSound found =
        recording::readSound((audio + "/say_adam_One.ogg").toStdString());
    QVERIFY(found.isVoice);
    QVERIFY(std::abs(recording::levelOf(found.sound).loudness + 16) < 0.5);
    QVERIFY(found.sound.seconds() > 0.3);
    recordFor(0.4);
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(recorded.join(' '), QString("say_adam_One say_eve_Three"), kPatience);
}

void RecordDialogTest::spaceEndsARecordingWhichCanThenBeKept()
{
    open();
    QCOMPARE(button("recordRecord")->text(), QString("&Record (Space)"));
    QCOMPARE(button("recordNext")->text(), QString("&Next (Enter)"));
    recordFor(0.5);
    QCOMPARE(button("recordRecord")->text(), QString("&Stop (Space)"));
    press(Qt::Key_Space);
    QVERIFY2(said().startsWith("Recorded: "), qPrintable(said()));
    QCOMPARE(button("recordNext")->text(), QString("Keep, &next (Enter)"));
    QCOMPARE(kept(), QString());
    QTest::mouseClick(button("recordNext"), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(text(), QString("Two cows"), kPatience);
    QCOMPARE(recorded, QStringList{"say_adam_One"});
}

void RecordDialogTest::theLastTextIsFollowedByAWordThatAllIsDone()
{
    texts.resize(1);
    open();
    recordFor(0.4);
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(said(), QString("All texts are recorded"), kPatience);
    QCOMPARE(label("recordProgress"), QString("Text 1 of 1, 0 missing"));
    QVERIFY(!dialog->texts()[0].isMissing());
    press(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!dialog->isVisible(), kPatience);
}

// The only one.
void RecordDialogTest::aSpokenText()
{
    texts.resize(1);
    texts[0].hasFile = true;
    texts[0].isSpoken = true;
    QDir().mkpath(audio);
    writeFile((audio + "/say_adam_One.ogg").toStdString(), recording::voiceFileOf(toneOf(1)));
    SpeechIndex index(audio.toStdString());
    QVERIFY(index.remember("say_adam_One", {"One cow", "adam", {}, "robot"}) && index.save());
}

void RecordDialogTest::aFileTheSpeechProgramMadeIsMissingAndNotKept()
{
    aSpokenText();
    open();
    QCOMPARE(label("recordProgress"), QString("Text 1 of 1, 1 missing"));
    recordFor(0.4);
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(recorded.size(), 1, kPatience);
    QCOMPARE(originals(), QString("say_adam_One.flac"));
}

// Which another window may have made.
void RecordDialogTest::aRecordingThatCameInTheMeantimeIsKept()
{
    aSpokenText();
    open();
    recordFor(0.4);
    writeFile((audio + "/say_adam_One.ogg").toStdString(), "my voice");
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(recorded.size(), 1, kPatience);
    QCOMPARE(originals(), QString("say_adam_One.flac say_adam_One.ogg"));
    QCOMPARE(readFile((audio + "/originals/say_adam_One.ogg").toStdString()),
             std::string("my voice"));
}

void RecordDialogTest::whatIsRecordedAgainReplacesTheFileAndKeepsTheEarlierOne()
{
    texts.resize(1);
    texts[0].hasFile = true;
    QDir().mkpath(audio);
    const std::string file = (audio + "/say_adam_One.ogg").toStdString();
    const std::string earlier = recording::voiceFileOf(toneOf(1));
    writeFile(file, earlier);
    open();
    recordFor(0.4);
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(recorded.size(), 1, kPatience);
    QCOMPARE(originals(), QString("say_adam_One.flac say_adam_One.ogg"));
    QVERIFY(readFile((audio + "/originals/say_adam_One.ogg").toStdString()) == earlier);
    QVERIFY(readFile(file) != earlier);
}

void RecordDialogTest::aCountInIsSeenBeforeARecordingBegins()
{
    settings->setValue("recording/countIn", true);
    open();
    QStringList seen;
    press(Qt::Key_Space);
    QElapsedTimer time;
    time.start();
    while (!label("recordSign").startsWith(QChar(0x25CF)) && time.elapsed() < kPatience) {
        seen << label("recordSign");
        QTest::qWait(20);
    }
    seen.removeDuplicates();
    QCOMPARE(seen, QStringList({"3", "2", "1"}));
    press(Qt::Key_Escape);
}

void RecordDialogTest::spaceOrEscapeStopTheCountIn()
{
    settings->setValue("recording/countIn", true);
    open();
    for (const int key : {Qt::Key_Space, Qt::Key_Escape}) {
        press(Qt::Key_Space);
        QTRY_COMPARE_WITH_TIMEOUT(label("recordSign"), QString("3"), kPatience);
        press(key);
        QCOMPARE(label("recordSign"), QString());
        QCOMPARE(said(), QString("Not recorded"));
        QVERIFY(dialog->isVisible());
    }
    QVERIFY(!button("recordListen")->isEnabled());
}

void RecordDialogTest::theCountInIsRemembered()
{
    open();
    QTest::keyClick(dialog->findChild<QCheckBox*>("recordCountIn"), Qt::Key_Space);
    QVERIFY(settings->value("recording/countIn").toBool());
    dialog.reset();
    open();
    QVERIFY(dialog->findChild<QCheckBox*>("recordCountIn")->isChecked());
}

void RecordDialogTest::anotherRecordingCanBeUndone()
{
    open();
    recordFor(1.0);
    press(Qt::Key_Space);
    WaveView* const wave = dialog->findChild<WaveView*>();
    const QString first = wave->accessibleDescription();
    recordFor(0.3);
    press(Qt::Key_Space);
    QVERIFY(wave->accessibleDescription() != first);
    for (int i = 0; i < 3 && wave->accessibleDescription() != first; ++i) {
        press(Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(wave->accessibleDescription(), first);
    QVERIFY(button("recordRedo")->isEnabled());
}

void RecordDialogTest::aFileThatIsThereCanBeTrimmedByKeys()
{
    texts.resize(1);
    texts[0].hasFile = true;
    QDir().mkpath(audio);
    writeFile((audio + "/say_adam_One.ogg").toStdString(), recording::voiceFileOf(toneOf(1)));
    open();
    WaveView* const wave = dialog->findChild<WaveView*>();
    QTRY_COMPARE_WITH_TIMEOUT(wave->accessibleDescription(), QString("1.0 of 1.0 s are kept"),
                              kPatience);
    QWidget* const begin = dialog->findChild<QWidget*>("waveBegin");
    begin->setFocus();
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_PageUp);
    }
    QCOMPARE(wave->accessibleDescription(), QString("0.7 of 1.0 s are kept"));
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(wave->accessibleDescription(), QString("0.8 of 1.0 s are kept"));
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(recorded.size(), 1, kPatience);
    const MonoSound sound = recording::readSound((audio + "/say_adam_One.ogg").toStdString()).sound;
    QVERIFY(std::abs(sound.seconds() - 0.8) < 0.01);
}

void RecordDialogTest::listeningPlaysIt()
{
    open();
    QVERIFY(!button("recordListen")->isEnabled());
    recordFor(0.5);
    press(Qt::Key_Space);
    press(Qt::Key_L, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(button("recordListen")->text(), QString("Stop &listening"),
                              kPatience);
    QTRY_COMPARE_WITH_TIMEOUT(button("recordListen")->text(), QString("&Listen"), kPatience);
    const std::string heard = readFile(folder->file("heard.raw"));
    std::vector<float> samples(heard.size() / sizeof(float));
    std::memcpy(samples.data(), heard.data(), samples.size() * sizeof(float));
    QVERIFY(std::any_of(samples.begin(), samples.end(), [](float s) { return s > 0.3F; }));
    QCOMPARE(kept(), QString());
}

void RecordDialogTest::pageKeysTurnTheTexts()
{
    open();
    press(Qt::Key_PageDown);
    QCOMPARE(text(), QString("Two cows"));
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    QCOMPARE(text(), QString("Three cows"));
    QVERIFY(!button("recordSkip")->isEnabled());
    press(Qt::Key_PageUp);
    QCOMPARE(text(), QString("Two cows"));
    QTest::mouseClick(button("recordBack"), Qt::LeftButton);
    QCOMPARE(text(), QString("One cow"));
    press(Qt::Key_Return);  // nothing to keep
    QCOMPARE(text(), QString("Two cows"));
}

void RecordDialogTest::keysThatComeWhileAFileIsWrittenCountAfterwards()
{
    open();
    recordFor(0.4);
    press(Qt::Key_Return);
    QCOMPARE(said(), QString("Saving ..."));
    press(Qt::Key_Space);
    QTRY_COMPARE_WITH_TIMEOUT(text(), QString("Two cows"), kPatience);
    waitForRecording(0.1);
    press(Qt::Key_Return);
    QCOMPARE(said(), QString("Saving ..."));
    press(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!dialog->isVisible(), kPatience);
    QCOMPARE(recorded, QStringList({"say_adam_One", "say_adam_Two"}));
}

void RecordDialogTest::escapeEndsARecordingAndKeepsItInTheDialog()
{
    open();
    recordFor(0.4);
    press(Qt::Key_Escape);
    QVERIFY(dialog->isVisible());
    QVERIFY2(said().startsWith("Recorded: "), qPrintable(said()));
    QVERIFY(button("recordListen")->isEnabled());
}

void RecordDialogTest::escapeAsksBeforeARecordingIsLost()
{
    open();
    recordFor(0.4);
    press(Qt::Key_Space);
    DialogAnswers answers;
    answers.cancel();
    answers.press("Throw away");
    press(Qt::Key_Escape);
    QVERIFY(dialog->isVisible());
    QVERIFY(button("recordListen")->isEnabled());
    dialog->close();  // by the frame of the window
    QTRY_VERIFY_WITH_TIMEOUT(!dialog->isVisible(), kPatience);
    QCOMPARE(answers.seen(), QStringList({"Record: This recording is not kept yet. Keep it?",
                                          "Record: This recording is not kept yet. Keep it?"}));
    QCOMPARE(kept(), QString());
}

void RecordDialogTest::anotherTextAsksBeforeARecordingIsLost()
{
    open();
    recordFor(0.4);
    press(Qt::Key_Space);
    DialogAnswers answers;
    answers.press("Keep");
    press(Qt::Key_PageDown);
    QTRY_COMPARE_WITH_TIMEOUT(text(), QString("Two cows"), kPatience);
    QVERIFY(answers.allGiven());
    QCOMPARE(recorded, QStringList{"say_adam_One"});
}

void RecordDialogTest::keepingAtTheEndClosesWhenItIsWritten()
{
    open();
    recordFor(0.4);
    press(Qt::Key_Space);
    DialogAnswers answers;
    answers.press("Keep");
    press(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!dialog->isVisible(), kPatience);
    QCOMPARE(kept(), QString("say_adam_One.ogg"));
}

void RecordDialogTest::withoutAMicrophoneThatIsToldAndSpaceLooksForOneAgain()
{
    hear(folder->file("none.raw"));
    open({}, false);
    QTRY_COMPARE_WITH_TIMEOUT(said(),
                              "The microphone cannot be used (Couldn't open " +
                                  QString::fromStdString(folder->file("none.raw")) + ")",
                              kPatience);
    hear(voice);
    press(Qt::Key_Space);
    QCOMPARE(said(), QString("Looking for the microphone ..."));
    QTRY_COMPARE_WITH_TIMEOUT(said(), QString(), kPatience);
    recordFor(0.3);
}

void RecordDialogTest::aMicrophoneThatVanishesLosesNothing()
{
    const std::string pipe = folder->file("pipe");
    makePipe(pipe);
    FILE* const cable = std::fopen(pipe.c_str(), "r+b");
    hear(pipe);
    const MonoSound spoken = voiceOf(0.3);
    const auto speak = [&] {
        std::fwrite(spoken.samples.data(), sizeof(float), spoken.samples.size(), cable);
        std::fflush(cable);
    };
    speak();
    open();
    recordFor(0.1);
    speak();
    QTRY_COMPARE_WITH_TIMEOUT(said(), QString("Nothing comes from the microphone any more"),
                              kPatience);
    QVERIFY(button("recordListen")->isEnabled());
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(kept(), QString("say_adam_One.ogg"), kPatience);
    std::fclose(cable);
}

void RecordDialogTest::aMutedMicrophoneIsToldAndNothingIsKept()
{
    hear(voiceFile(0));
    open();
    recordFor(0.3);
    press(Qt::Key_Space);
    QCOMPARE(said(), QString("Nothing was heard: is the microphone muted?"));
    press(Qt::Key_Return);
    QCOMPARE(said(), QString("Nothing was heard, so there is nothing to keep"));
    QCOMPARE(text(), QString("One cow"));
    QCOMPARE(kept(), QString());
}

void RecordDialogTest::aDistortedRecordingIsTold()
{
    hear(voiceFile(1.5));
    open();
    recordFor(0.4);
    press(Qt::Key_Space);
    QCOMPARE(said(),
             QString("It was too loud and is distorted: speak more softly, or from farther away"));
}

void RecordDialogTest::onAFullDiskTheRecordingStaysUntilItCanBeKept()
{
    open();
    recordFor(0.4);
    {
        const SmallDisk disk(1000);
        press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(
            said(), QString("The original of say_adam_One.ogg cannot be kept: File too large"),
            kPatience);
    }
    QCOMPARE(text(), QString("One cow"));
    QCOMPARE(recorded, QStringList());
    QCOMPARE(kept() + originals(), QString());
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(text(), QString("Two cows"), kPatience);
    QCOMPARE(kept(), QString("say_adam_One.ogg"));
}

void RecordDialogTest::aFileThatIsGoneIsTold()
{
    texts.resize(1);
    texts[0].hasFile = true;
    open();
    QTRY_COMPARE_WITH_TIMEOUT(
        said(), QString("say_adam_One.ogg cannot be opened: No such file or directory"), kPatience);
    recordFor(0.3);
    press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(kept(), QString("say_adam_One.ogg"), kPatience);
}

void RecordDialogTest::theMicrophoneIsChosenAndRemembered()
{
    open();
    QComboBox* box = dialog->findChild<QComboBox*>("recordMicrophone");
    QCOMPARE(box->currentText(), QString("Usual microphone"));
    box->setFocus();
    press(Qt::Key_Down);
    const QString name = "System audio capture device";
    QCOMPARE(box->currentText(), name);
    QCOMPARE(settings->value("recording/microphone").toString(), name);
    dialog.reset();
    open();
    box = dialog->findChild<QComboBox*>("recordMicrophone");
    QTRY_COMPARE_WITH_TIMEOUT(box->currentText(), name, kPatience);
}

void RecordDialogTest::everythingHasANameAndIsReachedByTab()
{
    open();
    recordFor(0.3);
    press(Qt::Key_Space);
    QStringList reached;
    for (int i = 0; i < 20 && !reached.contains(dialog->focusWidget()->objectName()); ++i) {
        QAccessibleInterface* const interface =
            QAccessible::queryAccessibleInterface(dialog->focusWidget());
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(),
                 qPrintable(dialog->focusWidget()->objectName()));
        reached << dialog->focusWidget()->objectName();
        press(Qt::Key_Tab);
    }
    QCOMPARE(reached.join(' '),
             QString("recordRecord recordListen recordUndo recordSkip recordNext recordClose "
                     "recordMicrophone recordCountIn recordCardArea waveBegin waveEnd"));
}

void RecordDialogTest::aLongTextFitsOnTheCard()
{
    texts[0].text = QString("The cow says moo and the dog says woof. ").repeated(6);
    open();
    const auto* const words = dialog->findChild<QLabel*>("recordText");
    const int large = words->font().pointSize();
    QVERIFY2(words->heightForWidth(words->width()) <= words->height(),
             qPrintable(QString::number(large)));
    press(Qt::Key_PageDown);
    QVERIFY(words->font().pointSize() > large);
}

void RecordDialogTest::theDialogFitsOnASmallScreen()
{
    open();
    QVERIFY2(dialog->minimumSizeHint().width() <= 640 && dialog->minimumSizeHint().height() <= 340,
             qPrintable(QString("%1 x %2")
                            .arg(dialog->minimumSizeHint().width())
                            .arg(dialog->minimumSizeHint().height())));
}

QTEST_MAIN(RecordDialogTest)
#include "RecordDialogTest.moc"
