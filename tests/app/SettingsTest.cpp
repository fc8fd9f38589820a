// What a window keeps for the next one. The settings lie in a file of the test's own.
#include "tests/app/WindowFixture.h"

#include <QCheckBox>
#include <QSettings>

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
};

QTEST_MAIN(SettingsTest)
#include "SettingsTest.moc"
