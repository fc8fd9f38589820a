#include "tests/app/DrivenProgram.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QThread>

#include <stdexcept>

namespace {

constexpr int kPatience = 60000;  // milliseconds, for a machine that is busy with other things

[[noreturn]] void fail(const QString& what)
{
    throw std::runtime_error(what.toStdString());
}

}  // namespace

std::string fileNow(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

bool comesAbout(const std::function<bool()>& isSo, int patience)
{
    const QDeadlineTimer deadline(patience);
    while (!isSo()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(20);
    }
    return true;
}

void waitUntil(const std::function<bool()>& isSo, const QString& what)
{
    if (!comesAbout(isSo, kPatience)) {
        fail("waited in vain: " + what);
    }
}

DrivenProgram::DrivenProgram(const XDisplay& display, const QString& folder, QSize size,
                             const QStringList& arguments)
    : environment(display.environment())
{
    environment.insert("HOME", folder);
    environment.remove("XDG_DATA_HOME");
    environment.remove("XDG_CONFIG_HOME");
    environment.insert("LANG", "C.UTF-8");
    environment.insert("LANGUAGE", "en");
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(PLINKETT_BIN_DIR "/plinkett", arguments);
    window = waitForWindow("Plinkett");
    xdotool({"windowsize", "--sync", window, QString::number(size.width()),
             QString::number(size.height())});
    twin.setAttribute(Qt::WA_DontShowOnScreen);
    twin.resize(size);
    twin.show();
}

DrivenProgram::~DrivenProgram()
{
    kill();
}

void DrivenProgram::kill()
{
    program.kill();
    program.waitForFinished();
}

QString DrivenProgram::xdotool(const QStringList& words) const
{
    constexpr int kAttempts = 20;
    for (int i = 0; i < kAttempts; ++i) {
        QProcess tool;
        tool.setProcessEnvironment(environment);
        tool.start("xdotool", words);
        if (tool.waitForFinished(kPatience) && tool.readAllStandardError().isEmpty()) {
            return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
        }
        QThread::msleep(50);  // a search comes upon windows that are just closing
    }
    fail("xdotool " + words.join(' '));
}

QString DrivenProgram::windowsTitled(const QString& title) const
{
    return xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"});
}

QString DrivenProgram::waitForWindow(const QString& title)
{
    waitUntil(
        [&] {
            if (program.waitForFinished(1)) {
                fail("the program has ended");
            }
            return !windowsTitled(title).isEmpty();
        },
        "a window \"" + title + "\"");
    const QString found = windowsTitled(title);
    xdotool({"windowactivate", "--sync", found});
    return found;
}

QRect DrivenProgram::placeOf(const QString& control) const
{
    const QWidget* const widget = twin.findChild<QWidget*>(control);
    if (widget == nullptr || !widget->isVisible()) {
        fail("nothing to be seen of " + control);
    }
    return {widget->mapTo(&twin, QPoint()), widget->size()};
}

void DrivenProgram::clickAt(QPoint point)
{
    xdotool({"mousemove", "--window", window, QString::number(point.x()),
             QString::number(point.y()), "click", "1"});
}

void DrivenProgram::showTab(const char* page)
{
    QTabWidget& tabs = *twin.findChild<QTabWidget*>("ribbonTab");
    tabs.setCurrentWidget(tabs.findChild<QWidget*>(page));
    QCoreApplication::processEvents();  // the twin's layout
    const QTabBar& bar = *tabs.tabBar();
    clickAt(bar.mapTo(&twin, bar.tabRect(bar.currentIndex()).center()));
}

void DrivenProgram::click(const char* control)
{
    clickAt(placeOf(control).center());
}

void DrivenProgram::clickPicture(double x, double y)
{
    const QRect area = placeOf("polyArea");
    clickAt(area.topLeft() +
            QPoint(qRound(x * area.width() / 100), qRound(y * area.width() / 100)));
}

void DrivenProgram::drag(QPoint from, QPoint to, const std::function<bool()>& hasCome)
{
    constexpr int kAttempts = 5;
    for (int i = 0; i < kAttempts; ++i) {
        dragOnce(from, to);
        if (comesAbout(hasCome, kPatience / 4)) {
            return;
        }
    }
    fail("dragged in vain");
}

void DrivenProgram::dragOnce(QPoint from, QPoint to)
{
    constexpr int kSteps = 10;
    constexpr int kPause = 100;       // ms
    constexpr int kLongPause = 1000;  // for a machine that is busy with other things
    const auto moveTo = [this](QPoint point) {
        xdotool({"mousemove", "--window", window, QString::number(point.x()),
                 QString::number(point.y())});
        QThread::msleep(kPause);
    };
    moveTo(from);
    xdotool({"mousedown", "1"});
    QThread::msleep(kLongPause);
    for (int i = 1; i <= kSteps; ++i) {
        moveTo(from + (to - from) * i / kSteps);
    }
    QThread::msleep(kLongPause);
    xdotool({"mouseup", "1"});
}

void DrivenProgram::fill(const char* field, const QString& text)
{
    click(field);
    press("ctrl+a");
    type(text);
}

void DrivenProgram::type(const QString& text)
{
    xdotool({"type", "--delay", "2", text});
}

void DrivenProgram::press(const QString& keys)
{
    xdotool({"key", keys});
}

void DrivenProgram::chooseFile(const QString& title, const QString& path)
{
    waitForWindow(title);
    type(path);
    press("Return");
    waitUntil(
        [&] {
            return xdotool({"search", "--onlyvisible", "--name", title}).isEmpty();
        },
        "the end of \"" + title + "\"");
    xdotool({"windowactivate", "--sync", window});
}

void DrivenProgram::quit()
{
    press("alt+F4");
    if (!program.waitForFinished(kPatience)) {
        fail("the program goes on");
    }
    if (program.exitStatus() != QProcess::NormalExit || program.exitCode() != 0) {
        fail(QString("the program ended with status %1").arg(program.exitCode()));
    }
}

QImage DrivenProgram::stillPicture() const
{
    const auto picture = [&] {
        return QGuiApplication::primaryScreen()->grabWindow(window.toULongLong()).toImage();
    };
    QImage before;
    QImage now = picture();
    waitUntil(
        [&] {
            QThread::msleep(200);
            before = std::exchange(now, picture());
            return now == before;
        },
        "a picture that stays");
    return now;
}

QImage DrivenProgram::stillPictureOf(const char* control) const
{
    return stillPicture().copy(placeOf(control));
}
