// The tab "Speech": every text of the book with its audio file.
#include "tests/app/SpeechWindow.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLineEdit>

class SpeechTabTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsListedInTheOrderOfUseAndTheWelcomeLast()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QCOMPARE(w.text("lbSpeechSummary"), "4 texts: 4 missing");
    }

    void theListFollowsTheScript()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.setScript("sub pig\nsay \"Grunt\"\nend sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(
            w.rows(), QStringList({"adam|Grunt|2||missing", "adam|Farm. Start.|welcome||missing"}),
            kPatience);
    }

    void theWelcomeFollowsTheNameOfTheProduct()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.type("txProjectName", "Zoo");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().last(), "adam|Zoo. Start.|welcome||missing", kPatience);
    }

    void everyStateIsTold()
    {
        SpeechWindow w;
        w.putAudio("say_adam_Moo", 1.5);
        w.putAudio("say_eve_Mooo_");
        w.noteSpoken("say_eve_Mooo_", "Mooo!", "eve");
        w.putAudio("say_adam_Oink");
        w.noteSpoken("say_adam_Oink", "Grunt");
        w.setScript(QString::fromStdString(kScript) + "sub x\nsay \"" + QString(300, 'x') +
                    "\"\nsay \"Moo.\"\nsay \"Moo?\"\nend sub\n");
        w.window.activateWindow();
        const QStringList expected = {"adam|Moo|2|1.5 s|recorded",
                                      "eve|Mooo!|3|0.5 s|spoken",
                                      "adam|Oink|6|0.5 s|out of date",
                                      "adam|" + QString(300, 'x') + "|9||too long a name",
                                      "adam|Moo.|10||name of line 11",
                                      "adam|Moo?|11||missing",
                                      "adam|Farm. Start.|welcome||missing"};
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), expected, kPatience);
        QCOMPARE(w.text("lbSpeechSummary"),
                 "7 texts: 2 missing, 1 spoken, 1 recorded, 1 out of date, 2 impossible");
    }

    void filesThatComeAndGoAreNoticed()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putAudio("say_adam_Moo");  // and its folder
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().first(), "adam|Moo|2|0.5 s|recorded", kPatience);
        w.putAudio("say_adam_Oink");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows()[2], "adam|Oink|6|0.5 s|recorded", kPatience);
        QVERIFY(QFile::remove(w.audio("say_adam_Moo")));
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().first(), "adam|Moo|2||missing", kPatience);
    }

    void withoutAFileTheBookIsToBeSavedFirst()
    {
        SpeechWindow w("");
        w.setScript("sub a\nsay \"Moo\"\nend sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2||missing", kPatience);
        QCOMPARE(w.text("lbSpeechSummary"),
                 "Save the project first: its audio files lie in a folder beside it.");
        w.dialogs.chooseFile(w.path("new.oidpro"));
        w.trigger("action_Save_As");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechSummary"), "2 texts: 2 missing", kPatience);
    }

    void aDamagedIndexIsTold()
    {
        SpeechWindow w;
        QDir().mkpath(w.path("900-audio"));
        writeFile(w.path("900-audio/speech-index.json").toStdString(), "{");
        w.showTab();
        QTRY_VERIFY_WITH_TIMEOUT(w.text("lbSpeechSummary").contains("speech-index.json"),
                                 kPatience);
    }

    void theFilterShowsAStateAVoiceAndWords()
    {
        SpeechWindow w;
        w.putAudio("say_adam_Moo");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.5 s|recorded", kPatience);
        w.choose("cbSpeechState", "missing");
        QCOMPARE(w.rows(), kNothingSpoken.mid(1));
        w.choose("cbSpeechVoice", "eve");
        QCOMPARE(w.rows(), kNothingSpoken.mid(1, 1));
        w.choose("cbSpeechState", "All states");
        w.choose("cbSpeechVoice", "All voices");
        w.type("txSpeechSearch", "moo");
        QCOMPARE(w.rows(), QStringList({"adam|Moo|2|0.5 s|recorded", kNothingSpoken[1]}));
        w.choose("cbSpeechVoice", "eve");
        QCOMPARE(w.rows(), kNothingSpoken.mid(1, 1));
    }

    void theVoiceThatIsShownStaysWhileTheScriptIsWritten()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.choose("cbSpeechVoice", "eve");
        w.setScript("sub a\nsay eve \"A\"\nsay \"B\"\nend sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), QStringList("eve|A|2||missing"), kPatience);
        w.setScript("sub a\nsay \"B\"\nend sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(
            w.rows(), QStringList({"adam|B|2||missing", "adam|Farm. Start.|welcome||missing"}),
            kPatience);
    }

    void aClickOnAHeadingSorts()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QHeaderView* const header = w.table().horizontalHeader();
        const auto click = [&](int column) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                              {header->sectionViewportPosition(column) + 5, header->height() / 2});
        };
        click(text);
        QCOMPARE(w.rows().first(), "adam|Farm. Start.|welcome||missing");
        click(line);
        QCOMPARE(w.rows(), kNothingSpoken);
        click(line);
        QCOMPARE(w.rows().first(), "adam|Farm. Start.|welcome||missing");
    }

    void theSelectedTextsStaySelectedWhenLinesComeAboveThem()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(0, text);
        w.clickCell(2, text, Qt::ControlModifier);
        w.setScript("sub x\nsay \"New\"\nend sub\n" + QString::fromStdString(kScript));
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().size(), 5, kPatience);
        QStringList selected;
        for (const QModelIndex& index : w.table().selectionModel()->selectedRows(text)) {
            selected << index.data().toString();
        }
        selected.sort();
        QCOMPARE(selected, QStringList({"Moo", "Oink"}));
        QCOMPARE(w.rows()[1], "adam|Moo|5||missing");
    }

    // So one can go on choosing; the script is where it is wanted when one comes to it.
    void aClickOnATextHasTheScriptStandAtItsLine()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(2, text);
        QCOMPARE(w.tab(), "Speech");
        QCOMPARE(w.caretLine(), 6);
    }

    void theLineLeadsToTheScript()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(1, line);
        QCOMPARE(w.tab(), "Script");
        QCOMPARE(w.caretLine(), 3);
        w.showTab();
        w.clickCell(2, text);
        QTest::mouseDClick(w.table().viewport(), Qt::LeftButton, {}, w.cell(2, text));
        QCOMPARE(w.tab(), "Script");
        QCOMPARE(w.caretLine(), 6);
        w.showTab();
        w.table().setFocus();
        w.table().setCurrentIndex(w.table().model()->index(0, 0));
        QTest::keyClick(&w.table(), Qt::Key_Return);
        QCOMPARE(w.tab(), "Script");
        QCOMPARE(w.caretLine(), 2);
    }

    void theWelcomeLeadsToTheNameOfTheProduct()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(3, line);
        QCOMPARE(w.tab(), "Project");
        QCOMPARE(QApplication::focusWidget(), w.get<QWidget>("txProjectName"));
    }

    void theSignInTheRowPlaysAndStops()
    {
        SpeechWindow w;
        w.putAudio("say_adam_Moo", 60);
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|60.0 s|recorded", kPatience);
        QVERIFY(!w.get<QPushButton>("btSpeechPlay")->isEnabled());
        w.clickCell(0, play);
        QCOMPARE(w.get<QPushButton>("btSpeechPlay")->text(), "Sto&p");
        QTRY_VERIFY_WITH_TIMEOUT(w.isHeard(), kPatience);
        w.clickCell(0, play);
        QCOMPARE(w.get<QPushButton>("btSpeechPlay")->text(), "&Play");
        w.clickCell(1, play);
        QCOMPARE(w.status(), "This text has no audio file yet.");
    }

    void theSelectedTextsArePlayedOneAfterTheOther()
    {
        SpeechWindow w;
        w.putAudio("say_adam_Moo", 0.1);
        w.putAudio("say_adam_Oink", 0.1);
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.1 s|recorded", kPatience);
        w.table().setFocus();
        w.table().selectAll();
        const QAbstractItemModel& model = *w.table().model();
        const auto sign = [&](int row) {
            return model.index(row, play).data(Qt::DecorationRole).value<QIcon>().cacheKey();
        };
        QCOMPARE(sign(0), sign(2));
        const qint64 atRest = sign(0);
        QStringList played;
        connect(&model, &QAbstractItemModel::dataChanged, this, [&] {
            for (const int row : {0, 2}) {
                const QString words = model.index(row, text).data().toString();
                if (sign(row) != atRest && !played.contains(words)) {
                    played << words;
                }
            }
        });
        w.click("btSpeechPlay");
        QTRY_COMPARE_WITH_TIMEOUT(w.get<QPushButton>("btSpeechPlay")->text(), "&Play", kPatience);
        QCOMPARE(played, QStringList({"Moo", "Oink"}));
    }

    void tenThousandTextsHaveNoWidgetsOfTheirOwn()
    {
        SpeechWindow w;
        QString script = "sub cow\n";
        for (int i = 0; i < 10000; ++i) {
            script += QString("say \"Text number %1\"\n").arg(i);
        }
        w.setScript(script + "end sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(w.table().model()->rowCount(), 10001, kPatience);
        QVERIFY(w.table().findChildren<QWidget*>().size() < 20);
        w.table().scrollToBottom();
        QVERIFY(w.table().indexAt({5, w.table().viewport()->height() / 2}).row() > 9900);
    }

    void speakMakesTheSelectedTexts()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(1, text);
        w.click("btSpeak");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"), "The text was spoken.", kPatience);
        QTRY_VERIFY_WITH_TIMEOUT(w.rows()[1].endsWith("|spoken"), kPatience);
        QCOMPARE(w.rows()[0], kNothingSpoken[0]);
        QVERIFY(w.log().endsWith("Mooo!\n"));
        QVERIFY(!w.allows("btSpeak"));
    }

    void withoutASelectionAllAreSpokenThatNeedIt()
    {
        SpeechWindow w;
        w.putAudio("say_adam_Moo");
        w.putAudio("say_adam_Oink");
        w.noteSpoken("say_adam_Oink", "Grunt");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(2), "adam|Oink|6|0.5 s|out of date", kPatience);
        w.click("btSpeak");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"), "3 texts were spoken.", kPatience);
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechSummary"), "4 texts: 3 spoken, 1 recorded",
                                  kPatience);
    }

    void whileTextsAreSpokenNothingElseIsMade()
    {
        SpeechWindow w;
        w.letSpeak("while [ ! -e '" + w.programs.file("go") + "' ]; do sleep 0.05; done");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QVERIFY(w.allows("btBuild"));
        w.click("btSpeak");
        QVERIFY(!w.allows("btBuild") && !w.allows("btSpeak") && !w.allows("btRecord"));
        QVERIFY(w.get<QWidget>("speechProgress")->isVisible());
        w.click("btSpeechCancel");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"),
                                  "Speaking was cancelled. \"Speak\" goes on where it stopped.",
                                  kPatience);
        QVERIFY(w.allows("btBuild"));
        QTRY_VERIFY_WITH_TIMEOUT(w.allows("btSpeak"), kPatience);
        QVERIFY(!w.get<QWidget>("speechProgress")->isVisible());
    }

    void whatCannotBeSpokenIsTold()
    {
        SpeechWindow w;
        w.letSpeak("echo 'no voice today'; exit 1");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(0, text);
        w.click("btSpeak");
        QTRY_VERIFY_WITH_TIMEOUT(
            w.text("lbSpeechResult").startsWith("Not all texts could be spoken:\nno voice today"),
            kPatience);
        QCOMPARE(w.rows()[0], kNothingSpoken[0]);
    }

    void aFileThatIsDroppedOnARowBecomesItsRecording()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        writeFile(w.path("mine.wav").toStdString(), wavFile(2, 44100, tone(2, 44100, 440, 1)));
        w.drop(w.path("mine.wav"), w.cell(2, text));
        QTRY_COMPARE_WITH_TIMEOUT(w.rows()[2], "adam|Oink|6|1.0 s|recorded", kPatience);
        QVERIFY(QFile::exists(w.path("mine.wav")));
        QCOMPARE(QDir(w.path("900-audio/originals")).entryList(QDir::Files).size(), 1);
    }

    void aFileThatIsChosenBecomesTheRecording()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        writeFile(w.path("mine.wav").toStdString(), wavFile(1, 22050, tone(1, 22050, 440, 1)));
        QVERIFY(!w.allows("btUseFile"));
        w.clickCell(0, text);
        w.dialogs.chooseFile(w.path("mine.wav"));
        w.click("btUseFile");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows()[0], "adam|Moo|2|1.0 s|recorded", kPatience);
    }

    void aRecordingThatIsTakenBackIsInTheTrash()
    {
        SpeechWindow w;
        ChangedVariable trash{kUserData, w.path("data").toStdString()};
        QVERIFY(QDir().mkdir(w.path("data")));
        w.putAudio("say_adam_Moo");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.5 s|recorded", kPatience);
        QVERIFY(!w.allows("btTakeBack"));
        w.clickCell(0, text);
        w.click("btTakeBack");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QCOMPARE(w.text("lbSpeechResult"), "1 recording is in the trash.");
        QVERIFY(QFile::exists(w.path("data/Trash/files/say_adam_Moo.ogg")));
    }

    void withoutATrashARecordingStays()
    {
        SpeechWindow w;
        writeFile(w.path("data").toStdString(), "no folder");
        ChangedVariable trash{kUserData, w.path("data").toStdString()};
        w.putAudio("say_adam_Moo");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.5 s|recorded", kPatience);
        w.clickCell(0, text);
        w.click("btTakeBack");
        QCOMPARE(w.text("lbSpeechResult"),
                 "say_adam_Moo.ogg stays: it cannot be moved to the trash.");
        QVERIFY(QFile::exists(w.path("900-audio/say_adam_Moo.ogg")));
    }

    void textsAreMadeEquallyLoudAndSpokenOnesStaySpoken()
    {
        SpeechWindow w;
        w.putAudio("say_adam_Moo");
        w.putAudio("say_adam_Oink");
        w.noteSpoken("say_adam_Oink", "Oink");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(2), "adam|Oink|6|0.5 s|spoken", kPatience);
        w.click("btEvenOut");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"),
                                  "2 audio files were made as loud as all are to be.", kPatience);
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechSummary"),
                                  "4 texts: 2 missing, 1 spoken, 1 recorded", kPatience);
    }

    void textsAreRecordedInADialog()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(1, text);
        w.dialogs.cancel();
        w.click("btRecord");
        QCOMPARE(w.dialogs.seen().last(), "Record");
    }

    void voicesAreTriedInADialog()
    {
        SpeechWindow w;
        w.dialogs.cancel();
        w.click("btTryVoices");
        QCOMPARE(w.dialogs.seen().last(), "Try voices");
        QVERIFY(w.script().startsWith("sub cow"));
    }

    void aRowIsReadToThoseWhoDoNotSeeIt()
    {
        SpeechWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        const QAbstractItemModel& model = *w.table().model();
        QCOMPARE(model.index(1, voice).data(Qt::AccessibleTextRole).toString(),
                 "eve, line 3: Mooo!, missing");
        QCOMPARE(model.index(3, voice).data(Qt::AccessibleTextRole).toString(),
                 "adam, welcome: Farm. Start., missing");
    }
};

QTEST_MAIN(SpeechTabTest)
#include "SpeechTabTest.moc"
