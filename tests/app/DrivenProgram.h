#pragma once

#include "app/MainWindow.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/XDisplay.h"

#include <QImage>
#include <QProcess>

// The real program on a screen of its own, used as an author uses it: with the mouse and the keys
// of that screen and with nothing else. Where a control is, a twin of its window tells, which is
// laid out like it but never shown. Whatever does not come about in time fails with an exception.
class DrivenProgram
{
public:
    // The display needs a window manager. The program starts in the folder, which is its home too,
    // with these words on its command line; its window is given a size.
    DrivenProgram(const XDisplay& display, const QString& folder, QSize size,
                  const QStringList& arguments = {});
    ~DrivenProgram();

    void showTab(const char* page);
    void click(const char* control);
    // On the picture: x and y in percent of its width.
    void clickPicture(double x, double y);
    // With the button held, slowly enough to be seen as a drag. In pixels of the window. Where the
    // machine keeps the program from its events meanwhile, they come all at once and are no drag:
    // it is done again when this has not come about for a while.
    void drag(QPoint from, QPoint to, const std::function<bool()>& hasCome);
    // Replaces what a field holds.
    void fill(const char* field, const QString& text);
    // What ends a line is typed with Return.
    void type(const QString& text);
    void press(const QString& keys);  // "ctrl+s", "Return"
    // The file dialog that has this title: types the path, confirms, and waits until it is gone.
    void chooseFile(const QString& title, const QString& path);
    // Closes the window as the window manager does; the program must end well.
    void quit();
    // Ends it as a crash would, without a chance to do anything.
    void kill();

    // Where a control lies in the window.
    QRect placeOf(const QString& control) const;
    // What the window shows when nothing changes any more; a blinking caret may be there or not.
    QImage stillPicture() const;
    QImage stillPictureOf(const char* control) const;

private:
    void dragOnce(QPoint from, QPoint to);
    QString xdotool(const QStringList& words) const;
    QString windowsTitled(const QString& title) const;  // as the X server numbers them
    QString waitForWindow(const QString& title);
    void clickAt(QPoint point);

    QProcessEnvironment environment;
    QProcess program;
    QString window;  // as the X server numbers it
    OwnDataFolder dataOfTwin;
    MainWindow twin;
};

// What a file holds that the program may be renaming; empty while there is none.
std::string fileNow(const std::string& path);

// Waits until something is so, looking often; whether it was in this time, in milliseconds.
bool comesAbout(const std::function<bool()>& isSo, int patience);

// The same, but throws with this text after a minute.
void waitUntil(const std::function<bool()>& isSo, const QString& what);
