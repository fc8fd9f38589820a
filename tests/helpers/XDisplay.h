#pragma once

#include <QProcess>
#include <QString>

// A screen of its own: an X server without hardware, for programs that need a real one. Throws when
// the server does not start.
class XDisplay
{
public:
    explicit XDisplay(const QString& size = "800x600");
    ~XDisplay();
    XDisplay(const XDisplay&) = delete;
    XDisplay& operator=(const XDisplay&) = delete;

    QString name() const { return displayName; }  // as DISPLAY holds it
    // What a Qt program needs in its environment to appear on this screen.
    QProcessEnvironment environment() const;

private:
    QProcess server;
    QString displayName;
};
