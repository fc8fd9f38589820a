// What a window keeps for the next one. The settings lie in a file of the test's own.
#include "tests/app/WindowFixture.h"

#include "app/NoticeBar.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>

namespace {

KVQtHighlightEditCtrlInlay& script(MainWindow& window)
{
    return window.findChild<KVQtHighlightEditCtrl*>("codeEditor")->surface();
}

// The size of the script's letters at the start of a window with these settings.
int sizeAtTheStart(QSettings& settings)
{
    MainWindow window;
    window.keepSettingsIn(settings);
    return script(window).letter_size();
}

// Whether answers are quick at the start of a window with these settings.
bool isQuickAtTheStart(QSettings& settings)
{
    MainWindow window;
    window.keepSettingsIn(settings);
    return window.findChild<QCheckBox*>("chQuickAnswers")->isChecked();
}

bool barIsShown(WindowFixture& w)
{
    return w.get<NoticeBar>("settingsBar")->isVisible();
}

// Makes the letters of the script larger, which is to be kept.
void makeLettersLarger(WindowFixture& w)
{
    w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabScript"));
    QTest::keyClick(&script(w.window), Qt::Key_Plus, Qt::ControlModifier);
    QCoreApplication::processEvents();  // that is written when nothing else is to be done
}

}  // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void theSizeOfTheScriptsLettersIsKeptForTheNextStart()
    {
        const TemporaryFolder folder;
        const QString file = QString::fromStdString(folder.file("settings.ini"));
        {
            QSettings settings(file, QSettings::IniFormat);
            MainWindow window;
            window.keepSettingsIn(settings);
            QCOMPARE(script(window).letter_size(), 11);
            QTest::keyClick(&script(window), Qt::Key_Plus, Qt::ControlModifier);
            QTest::keyClick(&script(window), Qt::Key_Plus, Qt::ControlModifier);
        }
        QSettings settings(file, QSettings::IniFormat);
        QCOMPARE(sizeAtTheStart(settings), 13);
    }

    void aSizeThatIsNoneIsNotTakenOver()
    {
        const TemporaryFolder folder;
        QSettings settings(QString::fromStdString(folder.file("settings.ini")),
                           QSettings::IniFormat);
        settings.setValue("script/letterSize", "large");
        QCOMPARE(sizeAtTheStart(settings), 11);
        settings.setValue("script/letterSize", 1000000);
        QCOMPARE(sizeAtTheStart(settings), 72);
    }

    void quickAnswersAreKeptForTheNextStart()
    {
        const TemporaryFolder folder;
        const QString file = QString::fromStdString(folder.file("settings.ini"));
        for (const bool on : {false, true, false}) {
            {
                QSettings settings(file, QSettings::IniFormat);
                MainWindow window;
                window.keepSettingsIn(settings);
                auto* const box = window.findChild<QCheckBox*>("chQuickAnswers");
                while (box->isChecked() != on || !settings.contains("build/quickAnswers")) {
                    QTest::keyClick(box, Qt::Key_Space);
                }
            }
            QSettings settings(file, QSettings::IniFormat);
            for (const char* const tttool : {"", "/opt/tttool"}) {
                const ChangedVariable folderOfTool("TIPTOITOOL", tttool);
                QCOMPARE(isQuickAtTheStart(settings), on);
            }
        }
    }

    // Whoever installs tttool later gets its games.
    void quickAnswersThatNobodyChangedAreWhatIsInstalled()
    {
        const TemporaryFolder folder;
        QSettings settings(QString::fromStdString(folder.file("settings.ini")),
                           QSettings::IniFormat);
        const ChangedVariable path("PATH", folder.path());
        {
            const ChangedVariable noTool("TIPTOITOOL", "");
            QVERIFY(isQuickAtTheStart(settings));
        }
        const ChangedVariable folderOfTool("TIPTOITOOL", "/opt/tttool");
        QVERIFY(!isQuickAtTheStart(settings));
        QVERIFY(!settings.contains("build/quickAnswers"));
    }

    void quickAnswersThatAreNeitherOnNorOffAreNotTakenOver()
    {
        const TemporaryFolder folder;
        QSettings settings(QString::fromStdString(folder.file("settings.ini")),
                           QSettings::IniFormat);
        settings.setValue("build/quickAnswers", "sometimes");
        const ChangedVariable folderOfTool("TIPTOITOOL", "/opt/tttool");
        QVERIFY(!isQuickAtTheStart(settings));
    }

    void settingsThatCannotBeWrittenAreToldOnceAndWorkGoesOn()
    {
        const TemporaryFolder folder;
        writeFile(folder.file("file"), "no folder");
        const QString file = QString::fromStdString(folder.file("file/settings.ini"));
        QSettings settings(file, QSettings::IniFormat);
        WindowFixture w;
        w.window.keepSettingsIn(settings);
        QVERIFY(!barIsShown(w));
        makeLettersLarger(w);
        QTRY_VERIFY(barIsShown(w));
        const QString words = "How you like the window cannot be kept for the next start, since " +
                              file +
                              " cannot be written: the disk is full, or the folder is protected.";
        QCOMPARE(w.get<QLabel>("settingsBarText")->text(), words);
        QCOMPARE(QAccessible::queryAccessibleInterface(w.get<NoticeBar>("settingsBar"))
                     ->text(QAccessible::Name),
                 words);

        w.click("btCloseSettingsBar");
        QVERIFY(!barIsShown(w));
        makeLettersLarger(w);
        QVERIFY(!barIsShown(w));
        QCOMPARE(script(w.window).letter_size(), 13);
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Save_As");
        QVERIFY(!readFile(w.folder.file("book.oidpro")).empty());
    }

    void aFullDiskIsToldAndTheSettingsOfBeforeStay()
    {
        const TemporaryFolder folder;
        const std::string file = folder.file("settings.ini");
        const std::string before = "[script]\nletterSize=20\n";
        writeFile(file, before);
        QSettings settings(QString::fromStdString(file), QSettings::IniFormat);
        WindowFixture w;
        w.window.keepSettingsIn(settings);
        {
            const SmallDisk disk(0);
            makeLettersLarger(w);
            QTRY_VERIFY(barIsShown(w));
            QCOMPARE(readFile(file), before);
        }
        makeLettersLarger(w);
        QTRY_VERIFY(readFile(file) != before);
    }

    void settingsThatAreWrittenAreNotTalkedAbout()
    {
        const TemporaryFolder folder;
        const QString file = QString::fromStdString(folder.file("settings.ini"));
        QSettings settings(file, QSettings::IniFormat);
        WindowFixture w;
        w.window.keepSettingsIn(settings);
        makeLettersLarger(w);
        QTRY_VERIFY(QFile::exists(file));
        makeLettersLarger(w);
        QVERIFY(!barIsShown(w));
    }
};

QTEST_MAIN(SettingsTest)
#include "SettingsTest.moc"
