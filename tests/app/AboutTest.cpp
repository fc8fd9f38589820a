// The button at the end of the status bar, and what it shows.
#include "tests/app/WindowFixture.h"

#include "base/AboutProgram.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

class AboutTest : public QObject
{
    Q_OBJECT

private slots:
    void buttonTellsVersionQtAndLicences()
    {
        WindowFixture w;
        QTest::mouseClick(w.get<QToolButton>("btAbout"), Qt::LeftButton);
        QTRY_VERIFY(w.window.findChild<QDialog*>("aboutDialog") != nullptr);
        QDialog& dialog = *w.get<QDialog>("aboutDialog");
        QCOMPARE(dialog.windowTitle(), QString("About Plinkett"));
        QString text = "Plinkett " + QString::fromStdString(programVersion()) +
                       "\nMakes printed books and boards talk.\n\nQt " + qVersion() +
                       "\nLicence: MIT\n\nLibraries and their licences:";
        for (const UsedLibrary& library : usedLibraries()) {
            text += "\n" + QString::fromStdString(library.name + ": " + library.licence);
        }
        QCOMPARE(w.text("lbAbout"), text);
    }

    void keysOpenAndCloseIt()
    {
        WindowFixture w;
        QToolButton& button = *w.get<QToolButton>("btAbout");
        QCOMPARE(button.accessibleName(), QString("About Plinkett"));
        QCOMPARE(
            button.toolTip(),
            QString("Tells the version, to be named when something goes wrong, and the licences"));
        QVERIFY((button.focusPolicy() & Qt::TabFocus) != 0);
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        QTRY_VERIFY(w.window.findChild<QDialog*>("aboutDialog") != nullptr);
        QTest::keyClick(w.get<QDialog>("aboutDialog"), Qt::Key_Escape);
        QTRY_VERIFY(w.window.findChild<QDialog*>("aboutDialog") == nullptr);
    }
};

QTEST_MAIN(AboutTest)
#include "AboutTest.moc"
