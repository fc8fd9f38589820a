#include "tests/app/OwnScreen.h"

#include "tests/app/DrivenProgram.h"

#include <QApplication>
#include <QtTest>

// A window that appears while the window manager is starting may never be shown.
static void waitForWindowManager(const XDisplay& display)
{
    waitUntil(
        [&] {
            QProcess question;
            question.setProcessEnvironment(display.environment());
            question.start("xdotool", {"get_desktop"});
            return question.waitForFinished() && question.exitCode() == 0;
        },
        "the window manager");
}

int runOnItsScreen(int argc, char* argv[],
                   const std::function<std::unique_ptr<QObject>(const XDisplay& display)>& test)
try {
    const XDisplay display("1280x1024");
    QProcess windowManager;
    windowManager.setProcessEnvironment(display.environment());
    windowManager.start("openbox", QStringList());
    waitForWindowManager(display);
    // The test itself lives on that screen too: there its layouts are the program's.
    qputenv("DISPLAY", display.name().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_XCB_GL_INTEGRATION", "none");  // nothing here uses it, and Mesa leaks
    int failures = 1;
    {
        QApplication application(argc, argv);
        failures = QTest::qExec(test(display).get(), argc, argv);
    }
    windowManager.terminate();
    windowManager.waitForFinished();
    return failures;
} catch (const std::exception& failure) {  // caught, so that screen and window manager end
    qCritical("%s", failure.what());
    return 1;
}
