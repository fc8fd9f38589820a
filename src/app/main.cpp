#include "app/MainWindow.h"
#include "app/ScreenFit.h"
#include "app/Translations.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
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
    return QApplication::exec();
}
