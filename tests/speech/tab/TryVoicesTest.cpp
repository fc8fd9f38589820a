#include "speech/tab/TryVoicesDialog.h"

#include "speech/tab/LanguageBox.h"
#include "speech/tab/NewVoice.h"
#include "speech/tab/TrialSentences.h"
#include "speech/tab/VoiceTable.h"
#include "tests/sound/FakeSpeech.h"
#include "tests/sound/WavFile.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTranslator>
#include <QtTest>

namespace {

ttbasic::VOICE voice(const char* language, bool isFemale, int age = 30)
{
    ttbasic::VOICE voice;
    voice.language = language;
    voice.female = isFemale;
    voice.age = age;
    return voice;
}

// The two that every script has, and a German grandfather.
const Voices kVoices = {
    {"adam", voice("en", false)}, {"eve", voice("en", true)}, {"grandpa", voice("de", false, 75)}};

constexpr int kNewGirl = 5;  // row: behind two headings and the voices of the script

// The dialog, shown, with a speech program and a loudspeaker of its own.
class TryingVoices : public FakeSpeech
{
public:
    explicit TryingVoices(const std::string& command = "", const Voices& voices = kVoices)
    {
        if (!command.empty()) {
            letSpeak(command);
        }
        dialog = std::make_unique<TryVoicesDialog>(voices);
        dialog->show();
        dialog->activateWindow();
        (void)QTest::qWaitForWindowActive(dialog.get());
    }

    template <class T>
    T* get(const char* name) const
    {
        return dialog->findChild<T*>(name);
    }
    QTableWidget* table() const { return get<QTableWidget>("voiceTable"); }

    void press(const char* button) const
    {
        QTest::mouseClick(get<QPushButton>(button), Qt::LeftButton);
    }
    QPushButton* insertButton() const
    {
        for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
            if (button->text().remove('&') == "Insert into the script") {
                return button;
            }
        }
        return nullptr;
    }
    void clickRow(int row) const
    {
        table()->scrollToItem(table()->item(row, 0));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          table()->visualItemRect(table()->item(row, 0)).center());
    }
    void key(int pressed) const { QTest::keyClick(dialog->focusWidget(), Qt::Key(pressed)); }

    // "grandpa|de|Man|75|espeak-ng", for all rows.
    QStringList rows() const
    {
        QStringList lines;
        for (int row = 0; row < table()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table()->columnCount(); ++column) {
                const QTableWidgetItem* const item = table()->item(row, column);
                cells << (item == nullptr ? "" : item->text());
            }
            lines << cells.join('|');
        }
        return lines;
    }
    QStringList languages() const
    {
        QStringList names;
        const auto* const box = get<QComboBox>("voiceLanguage");
        for (int i = 0; i < box->count(); ++i) {
            names << box->itemText(i);
        }
        return names;
    }
    QString message() const { return get<QLabel>("voiceMessage")->text(); }
    QString statement() const { return get<QLabel>("voiceStatement")->text(); }
    bool isAtRest() const { return !get<QPushButton>("btStopVoice")->isEnabled(); }

    std::unique_ptr<TryVoicesDialog> dialog;
};

const char* const kGerman = "Guten Morgen! Wo hat sich die kleine Katze wieder versteckt?";
const char* const kEnglish = "Good morning! Where is the little cat hiding again?";

}  // namespace

class TryVoicesTest : public QObject
{
    Q_OBJECT

private slots:
    // --- What there is ---------------------------------------------------------------------------

    void theVoicesOfTheScriptStandAboveThoseItCouldGet()
    {
        const TryingVoices w;
        QCOMPARE(
            w.rows(),
            QStringList({"Voices of the script||||", "adam|en|Man|30|espeak-ng",
                         "eve|en|Woman|30|espeak-ng", "grandpa|de|Man|75|espeak-ng",
                         "Other voices||||", "girl|de|Girl|8|espeak-ng", "boy|de|Boy|8|espeak-ng",
                         "sister|de|Woman|18|espeak-ng", "brother|de|Man|18|espeak-ng",
                         "mother|de|Woman|35|espeak-ng", "father|de|Man|35|espeak-ng",
                         "grandma|de|Woman|70|espeak-ng", "grandpa2|de|Man|70|espeak-ng"}));
        QCOMPARE(w.table()->currentRow(), 1);
    }

    void anotherLanguageHasOtherVoices()
    {
        const TryingVoices w;
        w.get<QComboBox>("voiceLanguage")->setFocus();
        QTest::keyClicks(w.get<QComboBox>("voiceLanguage"), "fr");
        QCOMPARE(w.rows().at(3), "grandpa|de|Man|75|espeak-ng");
        QCOMPARE(w.rows().at(kNewGirl), "girl|fr|Girl|8|espeak-ng");
    }

    void theEnginesOfTheLanguagesAreShown()
    {
        TryingVoices before;
        before.setEngines("[en]\ncommand = /usr/bin/flite {text}\n");
        before.dialog = std::make_unique<TryVoicesDialog>(kVoices);
        QCOMPARE(before.rows().at(1), "adam|en|Man|30|flite");
        QCOMPARE(before.rows().at(3), "grandpa|de|Man|75|espeak-ng");
    }

    void theSpeechProgramTellsItsLanguages()
    {
        const TryingVoices w;
        w.get<QComboBox>("voiceLanguage")->setFocus();
        QTRY_COMPARE(w.languages(),
                     QStringList({"Deutsch (de)", "English (America) (en-us)", "English (en)",
                                  "Español de España (es)", "Français (fr)", "Nederlands (nl)"}));
        QCOMPARE(w.get<QComboBox>("voiceLanguage")->currentText(), "Deutsch (de)");
        QCOMPARE(w.message(), "");
    }

    void languagesThatAreNotToldAreToldAsThat()
    {
        FakeSpeech programs;
        QFile::remove(QString::fromStdString(programs.programs.file("languages")));
        TryVoicesDialog dialog(kVoices);
        auto* const message = dialog.findChild<QLabel*>("voiceMessage");
        QTRY_COMPARE(message->text(),
                     QString("The speech program does not tell its languages: cat: %1: No such "
                             "file or directory")
                         .arg(QString::fromStdString(programs.programs.file("languages"))));
    }

    void aBookInEnglishIsOfferedTheAuthorsLanguage()
    {
        QLocale::setDefault(QLocale("nl_NL"));
        const TryingVoices w("", {{"adam", voice("en", false)}});
        QLocale::setDefault(QLocale::system());
        QCOMPARE(w.get<QComboBox>("voiceLanguage")->currentText(), "Nederlands (nl)");
    }

    // --- What is heard ---------------------------------------------------------------------------

    void aVoiceSaysASentenceInItsLanguage()
    {
        const TryingVoices w;
        w.press("btPlayVoice");
        QCOMPARE(w.message(), "adam takes a breath ...");
        QTRY_COMPARE(w.message(), "adam speaks.");
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.message(), "");
        w.clickRow(3);
        w.press("btPlayVoice");
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.log(), QString("en 30 m %1\nde 75 m %2\n").arg(kEnglish, kGerman));
    }

    void whatTheSpeechProgramSpokeIsHeard()
    {
        TryingVoices w("cp \"${0%/*}/moo.wav\" \"$2\"");
        const std::vector<int16_t> moo = tone(2, 44100, 440, 0.2);
        writeFile(w.programs.file("moo.wav"), wavFile(2, 44100, moo));
        w.press("btPlayVoice");
        QTRY_VERIFY_WITH_TIMEOUT(w.isAtRest(), 30000);
        w.dialog.reset();           // and the loudspeaker
        std::vector<float> middle;  // away from the soft begin and end
        for (size_t i = 1000; i + 1000 < moo.size(); ++i) {
            middle.push_back(static_cast<float>(moo[i]) / 32768);
        }
        const std::string expected(reinterpret_cast<const char*>(middle.data()),
                                   middle.size() * sizeof(float));
        QVERIFY(readFile(w.programs.file("heard.raw")).find(expected) != std::string::npos);
    }

    void aVoiceIsPlayedByDoubleClickAndByTheReturnKey()
    {
        const TryingVoices w;
        w.clickRow(2);
        w.key(Qt::Key_Return);
        QTRY_COMPARE(w.log(), QString("en 30 f %1\n").arg(kEnglish));
        const QPoint place = w.table()->visualItemRect(w.table()->item(3, 0)).center();
        QTest::mouseClick(w.table()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(w.table()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTRY_COMPARE(w.log(), QString("en 30 f %1\nde 75 m %2\n").arg(kEnglish, kGerman));
    }

    void allVoicesAreHeardOneAfterTheOther()
    {
        const TryingVoices w;
        w.clickRow(kNewGirl);
        w.press("btPlayVoices");
        QCOMPARE(w.table()->currentRow(), 1);
        QTRY_VERIFY_WITH_TIMEOUT(w.isAtRest(), 30000);
        QCOMPARE(w.table()->currentRow(), w.table()->rowCount() - 1);
        QString expected = QString("en 30 m %1\nen 30 f %1\nde 75 m %2\n").arg(kEnglish, kGerman);
        for (const char* const speaker :
             {"8 f", "8 m", "18 f", "18 m", "35 f", "35 m", "70 f", "70 m"}) {
            expected += QString("de %1 %2\n").arg(speaker, kGerman);
        }
        QCOMPARE(w.log(), expected);
    }

    void stopEndsWhatIsHeardAndWhatWouldFollow()
    {
        const TryingVoices w;
        w.press("btPlayVoices");
        QTRY_COMPARE(w.table()->currentRow(), 2);
        w.press("btStopVoice");
        QVERIFY(w.isAtRest());
        QCOMPARE(w.message(), "");
        const int row = w.table()->currentRow();
        QTest::qWait(300);
        QCOMPARE(w.table()->currentRow(), row);
    }

    void aChangedSentenceIsThatOfAllVoicesOfItsLanguage()
    {
        const TryingVoices w;
        auto* const sentence = w.get<QLineEdit>("voiceSentence");
        QCOMPARE(sentence->text(), kEnglish);
        sentence->setFocus();
        sentence->selectAll();
        QTest::keyClicks(sentence, "Moo");
        w.clickRow(3);
        QCOMPARE(sentence->text(), kGerman);
        w.clickRow(2);
        QCOMPARE(sentence->text(), "Moo");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.log(), "en 30 f Moo\n");
    }

    void aSentenceIsSpokenOnceAndKept()
    {
        const TryingVoices w;
        for (int time = 0; time < 2; ++time) {
            w.press("btPlayVoice");
            QTRY_VERIFY(w.isAtRest());
        }
        QCOMPARE(w.log(), QString("en 30 m %1\n").arg(kEnglish));
    }

    void withoutASentenceNothingCanBePlayed()
    {
        const TryingVoices w;
        auto* const sentence = w.get<QLineEdit>("voiceSentence");
        sentence->setFocus();
        sentence->selectAll();
        QTest::keyClicks(sentence, "  ");
        QVERIFY(!w.get<QPushButton>("btPlayVoice")->isEnabled());
        QVERIFY(!w.get<QPushButton>("btPlayVoices")->isEnabled());
        QTest::keyClicks(sentence, "x");
        QVERIFY(w.get<QPushButton>("btPlayVoice")->isEnabled());
        QVERIFY(w.get<QPushButton>("btPlayVoices")->isEnabled());
    }

    void theDialogAnswersWhileAVoiceIsMade()
    {
        const TryingVoices w("while [ ! -e \"${0%/*}/go\" ]; do sleep 0.05; done; cp "
                             "\"${0%/*}/spoken\" \"$2\"");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.log(), QString("en 30 m %1\n").arg(kEnglish));
        w.clickRow(3);
        QCOMPARE(w.table()->currentRow(), 3);
        QCOMPARE(w.message(), "adam takes a breath ...");
        writeFile(w.programs.file("go"), "");
        QTRY_COMPARE(w.message(), "adam speaks.");
        QTRY_VERIFY(w.isAtRest());
    }

    void anEngineThatHangsCanBeStoppedAndTriedAgain()
    {
        const TryingVoices w("echo half > \"$2\"; exec sleep 1000");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.log(), QString("en 30 m %1\n").arg(kEnglish));
        w.press("btStopVoice");
        QVERIFY(w.isAtRest());
        w.letSpeak("cp \"${0%/*}/spoken\" \"$2\"");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.message(), "adam speaks.");
    }

    void closingEndsTheSpeechProgram()
    {
        TryingVoices w("echo half > \"$2\"; exec sleep 1000");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.log(), QString("en 30 m %1\n").arg(kEnglish));
        QTest::keyClick(w.dialog.get(), Qt::Key_Escape);
        QVERIFY(!w.dialog->isVisible());
        w.dialog.reset();
        const QDir cache(QString::fromStdString(w.programs.file("cache")) + "/plinkett/speech");
        QCOMPARE(cache.entryList(QDir::Files), QStringList());
    }

    // --- What goes wrong -------------------------------------------------------------------------

    void theAuthorIsToldWhyNothingWasSpoken()
    {
        const TryingVoices w("echo 'engines.ini, line 2: flite crashed' >&2; exit 1");
        w.press("btPlayVoices");
        QTRY_COMPARE(w.message(),
                     "The sentence was not spoken: engines.ini, line 2: flite crashed");
        QVERIFY(w.isAtRest());
        QCOMPARE(w.table()->currentRow(), 1);
        w.letSpeak("exit 1");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.message(), "The speech program could not speak the sentence.");
        QFile::remove(QString::fromStdString(w.programs.file("Text2Speech")));
        const ChangedVariable nowhere("PATH", "/nowhere");
        w.press("btPlayVoice");
        QTRY_COMPARE(w.message(), "The speech program is not there.");
    }

    void aSentenceThatIsTooLongIsToldAsThat()
    {
        const TryingVoices w;
        w.get<QLineEdit>("voiceSentence")->setMaxLength(200000);
        w.get<QLineEdit>("voiceSentence")->setText(QString(140000, 'x'));
        w.press("btPlayVoice");
        QTRY_COMPARE(w.message(), "The sentence is too long for the speech program.");
        QVERIFY(w.isAtRest());
    }

    void aFileThatIsNoSoundIsNamedAndTheOthersAreHeard()
    {
        const TryingVoices w("echo rubbish > \"$2\"");
        w.press("btPlayVoices");
        QTRY_VERIFY_WITH_TIMEOUT(w.isAtRest(), 30000);
        QCOMPARE(w.log().count('\n'), 11);
        QVERIFY2(w.message().contains(".wav"), qPrintable(w.message()));
    }

    // --- What is chosen --------------------------------------------------------------------------

    void aChosenVoiceBecomesAStatement()
    {
        const TryingVoices w;
        w.clickRow(11);
        QCOMPARE(w.statement(), "voice grandma lang de sex f age 70");
        QTest::mouseClick(w.insertButton(), Qt::LeftButton);
        QCOMPARE(w.dialog->result(), int(QDialog::Accepted));
        QCOMPARE(w.dialog->statement(), "voice grandma lang de sex f age 70");
    }

    void theStatementDeclaresTheVoice()
    {
        ttbasic script;
        script.source = voiceStatement("grandma", voice("de-at", true, 70)) + "\n";
        QVERIFY(script.parse(false));
        QCOMPARE(script.voices.at("grandma").language, std::string("de-at"));
        QVERIFY(script.voices.at("grandma").female);
        QCOMPARE(script.voices.at("grandma").age, 70);
    }

    void theNameIsTheAuthorsToChoose()
    {
        const TryingVoices w;
        w.clickRow(kNewGirl);
        auto* const name = w.get<QLineEdit>("voiceName");
        name->setFocus();
        name->selectAll();
        QTest::keyClicks(name, "lena");
        QTest::keyClick(name, Qt::Key_I, Qt::AltModifier);
        QTRY_VERIFY(!w.dialog->isVisible());
        QCOMPARE(w.dialog->statement(), "voice lena lang de sex f age 8");
    }

    void aNameThatAScriptCannotUseIsRefused()
    {
        const TryingVoices w;
        w.clickRow(kNewGirl);
        auto* const name = w.get<QLineEdit>("voiceName");
        for (const char* const wrong : {"", "Lena", "a b", "1a", "ö", "a_b"}) {
            name->setText(wrong);
            QCOMPARE(w.statement(),
                     "A name has small letters from a to z, and digits behind them.");
            QVERIFY(!w.insertButton()->isEnabled());
        }
        name->setText("adam");
        QCOMPARE(w.statement(), "The script has a voice of this name.");
        QVERIFY(!w.insertButton()->isEnabled());
        name->setText("adam2");
        QVERIFY(w.insertButton()->isEnabled());
    }

    void aVoiceOfTheScriptIsThereAlready()
    {
        const TryingVoices w;
        QCOMPARE(w.statement(), "The script has this voice.");
        QVERIFY(!w.insertButton()->isEnabled());
        QVERIFY(!w.get<QLineEdit>("voiceName")->isEnabled());
    }

    void theProposedNamesAreFreeAndGoodInEveryLanguage()
    {
        Q_INIT_RESOURCE(translations);
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            QTranslator translator;
            QVERIFY(translator.load(QString(":/i18n/Plinkett_") + language));
            QCoreApplication::installTranslator(&translator);
            VoiceTable table(kVoices);
            table.offer("de");
            std::set<std::string> names;
            for (const int row : table.voiceRows()) {
                QVERIFY2(isVoiceName(table.nameOf(row)), table.nameOf(row).c_str());
                names.insert(table.nameOf(row));
            }
            QCOMPARE(names.size(), table.voiceRows().size());
        }
    }

    // --- Without a mouse, without eyes, on a small screen ----------------------------------------

    void keysPassTheHeadingsBy()
    {
        const TryingVoices w;
        QCOMPARE(w.dialog->focusWidget(), w.table());
        for (int row = 1; row < 4; ++row) {
            QCOMPARE(w.table()->currentRow(), row);
            w.key(Qt::Key_Down);
        }
        QCOMPARE(w.table()->currentRow(), kNewGirl);
    }

    void everyControlHasAKeyAndAName()
    {
        const TryingVoices w;
        w.clickRow(kNewGirl);
        QStringList names;
        for (int i = 0; i < 9; ++i) {
            QWidget* const control = w.dialog->focusWidget();
            names << (control->accessibleName().isEmpty()
                          ? QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name)
                          : control->accessibleName());
            w.key(Qt::Key_Tab);
        }
        QCOMPARE(names, QStringList({"Voices", "Play", "Play all", "Name", "Insert into the script",
                                     "Close", "Sentence", "Language", "Voices"}));
    }

    void fitsOnASmallScreen()
    {
        const TryingVoices w;
        QVERIFY(w.dialog->minimumSizeHint().width() <= 640);
        QVERIFY(w.dialog->minimumSizeHint().height() <= 330);
    }

    void everyLanguageHasASentence()
    {
        QCOMPARE(trialSentence("de"), kGerman);
        QCOMPARE(trialSentence("DE_at"), kGerman);
        QCOMPARE(trialSentence("en-us"), kEnglish);
        QCOMPARE(trialSentence("klingon"), kEnglish);
    }
};

QTEST_MAIN(TryVoicesTest)
#include "TryVoicesTest.moc"
