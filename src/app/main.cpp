#include "app/Application.h"
#include "app/MainWindow.h"
#include "app/ScreenFit.h"
#include "app/Translations.h"
#include "app/WindowUsage.h"

#include <QLocale>
#include <QSettings>

#include <cstdio>

int main(int argc, char* argv[])
{
    // Also where there is no display.
    if (const auto answer = answerWithoutWindow(argc > 1 ? argv[1] : "")) {
        fputs(answer->c_str(), stdout);
        return 0;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    Application application(argc, argv);
    const Translations translations(QLocale::system().uiLanguages());

    QSettings settings("Plinkett", "Plinkett");
    MainWindow window;
    window.keepSettingsIn(settings);
    fitOntoScreen(window);
    window.show();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1) {
        window.openProject(arguments[1]);
    } else {
        window.offerUnsavedWork();
    }
    return Application::exec();
}
