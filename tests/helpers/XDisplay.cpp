#include "tests/helpers/XDisplay.h"

#include <stdexcept>

XDisplay::XDisplay(const QString& size)
{
    // Without -noreset the server begins anew when its last client goes, and a program that
    // connects just then may wait for ever.
    server.start("Xvfb", {"-displayfd", "1", "-noreset", "-screen", "0", size + "x24"});
    constexpr int kPatience = 60000;  // milliseconds, for a machine that is busy with other things
    if (!server.waitForReadyRead(kPatience)) {
        throw std::runtime_error("Xvfb did not start");
    }
    displayName = ":" + QString::fromLatin1(server.readLine()).trimmed();
}

XDisplay::~XDisplay()
{
    server.terminate();
    server.waitForFinished();
}

QProcessEnvironment XDisplay::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", displayName);
    return environment;
}
