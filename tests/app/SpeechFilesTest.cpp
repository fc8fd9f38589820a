// What the tab "Speech" does with whole folders: recordings come in, sheets to read from go out,
// and what no text uses goes away.
#include "tests/app/SpeechWindow.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProcess>
#include <QTableWidget>

namespace {

QStringList rowsOf(const QWidget& dialog)
{
    const auto& table = *dialog.findChild<QTableWidget*>();
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QTableWidgetItem& first = *table.item(row, 0);
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            cells << table.item(row, column)->text();
        }
        rows << (first.checkState() == Qt::Checked ? "x " : "- ") + cells.join('|');
    }
    return rows;
}

QPushButton* button(const QWidget& dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox*>()->button(which);
}

void press(const QWidget& dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(button(dialog, which), Qt::LeftButton);
}

// On the tick at the beginning of a row, as the author clicks it.
void clickTick(const QWidget& dialog, int row)
{
    auto& table = *dialog.findChild<QTableWidget*>();
    const QRect cell = table.visualItemRect(table.item(row, 0));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
}

class FilesWindow : public SpeechWindow
{
public:
    using SpeechWindow::SpeechWindow;

    // A sound of one second; what it is in is known by its beginning.
    void putSound(const char* name)
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        writeFile(path(name).toStdString(), wavFile(1, 22050, tone(1, 22050, 440, 1)));
    }
    void putFile(const char* name, const std::string& bytes)
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        writeFile(path(name).toStdString(), bytes);
    }
    // What the next dialog shows, which is closed again.
    QStringList shownAfter(const std::function<void()>& open)
    {
        QStringList rows;
        dialogs.look([&](QWidget& dialog) {
            rows = rowsOf(dialog);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        open();
        return rows;
    }
    // Takes the folder over as it is proposed; what the dialog shows then.
    QStringList importAll(const char* from)
    {
        QStringList rows;
        dialogs.chooseFile(path(from));
        dialogs.look([&](QWidget& dialog) { rows = takenIn(dialog); });
        click("btImportFolder");
        return rows;
    }
    static QStringList takenIn(QWidget& dialog)
    {
        press(dialog, QDialogButtonBox::Ok);
        const auto isDone = [&] { return button(dialog, QDialogButtonBox::Close) != nullptr; };
        const bool isInTime = QTest::qWaitFor(isDone, kPatience);
        const QStringList rows = isInTime ? rowsOf(dialog) : QStringList("not in time");
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return rows;
    }
    // A sheet of all texts as a text.
    QString sheet(const char* name = "sheet.txt")
    {
        dialogs.chooseFile(path(name));
        click("btSaveSheet");
        const QString said = "The sheet is in the file " + path(name) + ".";
        if (!QTest::qWaitFor([&] { return text("lbSpeechResult") == said; }, kPatience)) {
            return text("lbSpeechResult");
        }
        return QString::fromStdString(readFile(path(name).toStdString()));
    }
    QStringList audioFiles() { return QDir(path("900-audio")).entryList(QDir::Files, QDir::Name); }
};

}  // namespace

class SpeechFilesTest : public QObject
{
    Q_OBJECT

private slots:
    // --- Recordings of a folder ------------------------------------------------------------------

    void whatEachFileWouldBecomeIsShownFirst()
    {
        FilesWindow w;
        w.putAudio("say_adam_Moo");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.5 s|recorded", kPatience);
        for (const char* name : {"in/say_adam_Moo.wav", "in/Mooo!.wav", "in/2.wav", "in/2 b.wav",
                                 "in/3 welcome.wav", "in/Cow.wav", "in/4.wav", "in/sub/Moo.wav"}) {
            w.putSound(name);
        }
        w.dialogs.chooseFile(w.path("in"));
        const QStringList rows = w.shownAfter([&] { w.click("btImportFolder"); });
        QCOMPARE(rows, QStringList({
                           "x say_adam_Moo.wav|adam: Moo|fits by its name; takes the place of "
                           "your recording, which is kept",
                           "x Mooo!.wav|eve: Mooo!|fits by its text",
                           "x 3 welcome.wav|adam: Farm. Start.|fits by its number",
                           "- 4.wav|eve: Mooo!|not taken: another file fits the text better",
                           "- 2 b.wav|adam: Oink|not taken: other files fit the text as well",
                           "- 2.wav|adam: Oink|not taken: other files fit the text as well",
                           "- Cow.wav||not taken: it fits no text",
                       }));
        QCOMPARE(w.audioFiles(), QStringList("say_adam_Moo.ogg"));
        QVERIFY(!w.get<QLabel>("lbSpeechResult")->isVisible());
    }

    // Which another window may have made.
    void aRecordingThatComesWhileADialogShowsWhatIsToBeTakenIsKept()
    {
        FilesWindow w;
        w.putAudio("say_adam_Moo");
        w.noteSpoken("say_adam_Moo", "Moo");
        QTRY_VERIFY_WITH_TIMEOUT(w.rows().value(0).endsWith("|spoken"), kPatience);
        w.putSound("in/Moo.wav");
        w.dialogs.chooseFile(w.path("in"));
        w.dialogs.look([&](QWidget& dialog) {
            w.putFile("900-audio/say_adam_Moo.ogg", "my voice");
            FilesWindow::takenIn(dialog);
        });
        w.click("btImportFolder");
        QCOMPARE(readFile(w.path("900-audio/originals/say_adam_Moo.ogg").toStdString()),
                 std::string("my voice"));
    }

    void whatHasATickIsTakenAndThenShown()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putSound("in/Moo.wav");
        w.putSound("in/Oink.wav");
        w.putFile("in/Mooo!.wav", "no sound");
        QStringList after;
        w.dialogs.chooseFile(w.path("in"));
        w.dialogs.look([&](QWidget& dialog) {
            clickTick(dialog, 2);
            QCOMPARE(dialog.findChild<QLabel*>("importSummary")->text(),
                     "2 of 3 files become recordings. Take away the tick of what is to be left "
                     "out.");
            after = FilesWindow::takenIn(dialog);
        });
        w.click("btImportFolder");
        QCOMPARE(after.size(), 3);
        QVERIFY2(after[0].startsWith("x Moo.wav|adam: Moo|taken: say_adam_Moo.ogg: -16"),
                 qPrintable(after[0]));
        QVERIFY2(after[1].startsWith("x Mooo!.wav|eve: Mooo!|") && after[1].contains("Mooo!.wav") &&
                     !after[1].contains("taken:"),
                 qPrintable(after[1]));
        QCOMPARE(after[2], "- Oink.wav|adam: Oink|left out");
        QCOMPARE(w.text("lbSpeechResult").section('\n', 0, 0), "1 recording was taken.");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|1.0 s|recorded", kPatience);
        QCOMPARE(w.audioFiles(), QStringList("say_adam_Moo.ogg"));
        QVERIFY(QFile::exists(w.path("in/Moo.wav")));
    }

    void spaceTakesAwayTheTicksOfTheSelectedFiles()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putSound("in/Moo.wav");
        w.putSound("in/Oink.wav");
        w.dialogs.chooseFile(w.path("in"));
        QStringList rows;
        w.dialogs.look([&](QWidget& dialog) {
            auto* const table = dialog.findChild<QTableWidget*>();
            QCOMPARE(dialog.focusWidget(), table);
            QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(table, Qt::Key_Space);
            rows = rowsOf(dialog);
            QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
            QTest::keyClick(dialog.findChild<QCheckBox*>("importAll"), Qt::Key_Space);
            QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.click("btImportFolder");
        QVERIFY(rows.size() == 2 && rows[0].startsWith("- ") && rows[1].startsWith("- "));
        QVERIFY(!QDir(w.path("900-audio")).exists());
    }

    void aFolderThatIsDroppedOnTheTableIsShown()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putSound("in/Moo.wav");
        const QPoint below = {20, w.table().viewport()->height() - 5};
        const QStringList rows = w.shownAfter([&] {
            w.drop(w.path("in"), below);
            QTRY_VERIFY_WITH_TIMEOUT(w.dialogs.allGiven(), kPatience);
        });
        QCOMPARE(rows, QStringList("x Moo.wav|adam: Moo|fits by its text"));
    }

    void severalFilesThatAreDroppedAreShownLikeAFolder()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putSound("in/Moo.wav");
        w.putSound("in/Oink.wav");
        const QStringList rows = w.shownAfter([&] {
            w.drop({w.path("in/Oink.wav"), w.path("in/Moo.wav")}, w.cell(0, text));
            QTRY_VERIFY_WITH_TIMEOUT(w.dialogs.allGiven(), kPatience);
        });
        QCOMPARE(rows, QStringList({"x Moo.wav|adam: Moo|fits by its text",
                                    "x Oink.wav|adam: Oink|fits by its text"}));
    }

    void aFolderThatHasNothingForTheBookIsTold()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QDir().mkpath(w.path("in"));
        w.dialogs.chooseFile(w.path("in"));
        w.click("btImportFolder");
        QCOMPARE(w.text("lbSpeechResult"), "There are no files in " + w.path("in") + ".");
        w.putAudio("say_adam_Moo");
        w.dialogs.chooseFile(w.path("900-audio"));
        w.click("btImportFolder");
        QCOMPARE(w.text("lbSpeechResult"),
                 w.path("900-audio") + " is the audio folder of the book itself.");
    }

    // --- Sheets to read from ---------------------------------------------------------------------

    void theSheetIsSavedAsATextByVoice()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QCOMPARE(w.sheet(), "adam\n  1  Moo\n  2  Oink\n  3  Farm. Start.\n\neve\n  4  Mooo!\n");
    }

    // The numbers are those of the whole book.
    void theSheetHasTheSelectedTexts()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.clickCell(1, text);
        w.clickCell(2, text, Qt::ControlModifier);
        QCOMPARE(w.sheet(), "adam\n  2  Oink\n\neve\n  4  Mooo!\n");
    }

    void numbersStayThoseOfTheirTextsWhenTheScriptChanges()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        (void)w.sheet();
        w.setScript("sub pig\nsay \"Grunt\"\nsay eve \"Mooo!\"\nsay \"Oink\"\nend sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Grunt|2||missing", kPatience);
        for (const char* name : {"in/1.wav", "in/2.wav", "in/3.wav", "in/4.wav", "in/5.wav"}) {
            w.putSound(name);
        }
        QStringList taken;
        for (const QString& row : w.importAll("in")) {
            taken << row.section('|', 0, 1);
        }
        QCOMPARE(taken, QStringList({"x 4.wav|eve: Mooo!", "x 2.wav|adam: Oink",
                                     "x 3.wav|adam: Farm. Start.", "- 1.wav|", "- 5.wav|"}));
        QCOMPARE(w.sheet("new.txt"),
                 "adam\n  5  Grunt\n  2  Oink\n  3  Farm. Start.\n\neve\n  4  Mooo!\n");
    }

    void theSheetIsPrintedAsAPdf()
    {
        FilesWindow w;
        w.setScript("sub a\nsay \"Grün <b>\"\nsay eve \"Moo\"\nend sub\n");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Grün <b>|2||missing", kPatience);
        w.dialogs.chooseFile(w.path("sheet"));
        w.click("btPrintSheet");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"),
                                  "The sheet is in the file " + w.path("sheet.pdf") + ".",
                                  kPatience);
        QProcess reader;
        reader.start("pdftotext", {"-layout", w.path("sheet.pdf"), "-"});
        QVERIFY(reader.waitForFinished());
        const QString words = QString::fromUtf8(reader.readAllStandardOutput()).simplified();
        QCOMPARE(words.normalized(QString::NormalizationForm_KC),  // a font may join "fi"
                 "Farm Record each text as a file of its own whose name begins with the number: "
                 "7.wav adam 1 Grün <b> 2 Farm. Start. eve 3 Moo 1");
    }

    void aSheetThatCannotBeWrittenIsTold()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putFile("no folder", "");
        QVERIFY(
            w.sheet("no folder/sheet.txt")
                .startsWith("The file " + w.path("no folder/sheet.txt") + " cannot be written: "));
    }

    void withoutAPlaceForTheNumbersThereIsNoSheet()
    {
        FilesWindow w;
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.putFile("900-audio", "no folder");
        QCOMPARE(w.sheet(),
                 "The file " + w.path("900-audio/speech-index.json") + " cannot be written.");
        QVERIFY(!QFile::exists(w.path("sheet.txt")));
    }

    void thatNumbersAreLostIsTold()
    {
        FilesWindow w;
        w.putFile("900-audio/speech-index.json", "{");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        const QString said = w.sheet();
        QVERIFY2(said.contains("is damaged") &&
                     said.endsWith("The numbers begin anew; earlier sheets do not fit any more."),
                 qPrintable(said));
        QCOMPARE(w.audioFiles(), QStringList({"speech-index.json", "speech-index.json.damaged"}));
    }

    // --- Tidying ---------------------------------------------------------------------------------

    void whatNoTextUsesGoesToTheTrashIfItHasATick()
    {
        FilesWindow w;
        const ChangedVariable trash{kUserData, w.path("data").toStdString()};
        QVERIFY(QDir().mkdir(w.path("data")));
        for (const char* name : {"say_adam_Moo", "old", "older", "mine"}) {
            w.putAudio(name);
        }
        w.noteSpoken("old", "Old");
        w.noteSpoken("older", "Older");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.5 s|recorded", kPatience);
        QStringList listed;
        w.dialogs.look([&](QWidget& dialog) {
            listed = rowsOf(dialog);
            clickTick(dialog, 2);
            press(dialog, QDialogButtonBox::Ok);
        });
        w.click("btTidy");
        QCOMPARE(listed,
                 QStringList({"x mine.ogg|your own", "x old.ogg|spoken by the speech program",
                              "x older.ogg|spoken by the speech program"}));
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"), "2 files are in the trash.", kPatience);
        QCOMPARE(w.audioFiles(),
                 QStringList({"older.ogg", "say_adam_Moo.ogg", "speech-index.json"}));
        QVERIFY(QFile::exists(w.path("data/Trash/files/mine.ogg")));
    }

    void whatCannotBeMovedToTheTrashIsTold()
    {
        FilesWindow w;
        w.putFile("data", "no folder");
        const ChangedVariable trash{kUserData, w.path("data").toStdString()};
        w.putAudio("old");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        w.dialogs.look([](QWidget& dialog) { press(dialog, QDialogButtonBox::Ok); });
        w.click("btTidy");
        QTRY_COMPARE_WITH_TIMEOUT(w.text("lbSpeechResult"),
                                  "0 files are in the trash.\n"
                                  "old.ogg stays: it cannot be moved to the trash.",
                                  kPatience);
        QCOMPARE(w.audioFiles(), QStringList("old.ogg"));
    }

    void whatIsNotToBeTidiedStays()
    {
        FilesWindow w;
        w.putAudio("old");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows(), kNothingSpoken, kPatience);
        QCOMPARE(w.shownAfter([&] { w.click("btTidy"); }), QStringList("x old.ogg|your own"));
        QCOMPARE(w.audioFiles(), QStringList("old.ogg"));
    }

    void withAMistakeInTheScriptNothingIsTidied()
    {
        FilesWindow w;
        w.putAudio("old");
        w.setScript("sub a\nsay \"Moo\"\nend sub\nendd\n");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().size(), 2, kPatience);
        w.click("btTidy");
        QCOMPARE(w.text("lbSpeechResult"),
                 "The script has mistakes, so it is not known which audio files it uses. Correct "
                 "them first.");
    }

    void aTidyBookIsSaidToBeOne()
    {
        FilesWindow w;
        w.putAudio("say_adam_Moo");
        QTRY_COMPARE_WITH_TIMEOUT(w.rows().value(0), "adam|Moo|2|0.5 s|recorded", kPatience);
        w.click("btTidy");
        QCOMPARE(w.text("lbSpeechResult"), "All audio files are used by texts.");
    }
};

QTEST_MAIN(SpeechFilesTest)
#include "SpeechFilesTest.moc"
