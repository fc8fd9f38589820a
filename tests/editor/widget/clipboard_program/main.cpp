// Copies from an editor, or pastes into one, as a process of its own.
//   clipboard_program copy rectangle|text   says "copied" and keeps the clipboard until stdin ends
//   clipboard_program select                the same with what it selects with the mouse
//   clipboard_program paste                 prints the text afterwards
//   clipboard_program middle                pastes with the middle button instead
//   clipboard_program both                  selects twice with keys, pasting each with the mouse
#include "tests/editor/widget/EditorWindow.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QtTest>

#include <cstdio>

namespace {

int waitForEndOfInput(const char* said)
{
    std::puts(said);
    std::fflush(stdout);
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, qApp, &QApplication::quit);
    return QApplication::exec();
}

void clickMiddle(EditorWindow& window, int line, int column)
{
    QTest::mouseClick(&window.surface, Qt::MiddleButton, Qt::NoModifier,
                      window.point(line, column));
}

void selectAndPasteTwice()
{
    EditorWindow window("ab|\n");
    window.key(Qt::Key_Left, Qt::ShiftModifier);
    clickMiddle(window, 1, 0);
    window.place({0, 0}, {0, 0});
    window.key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    window.key(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
    clickMiddle(window, 0, 2);
    std::fputs(qPrintable(window.shown()), stdout);
    window.key(Qt::Key_Z, Qt::ControlModifier);
    std::fputs(qPrintable(" < " + window.text()), stdout);
}

}  // namespace

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    const QStringList wanted = QApplication::arguments();
    if (wanted.value(1) == "paste") {
        EditorWindow window("|1\n2");
        window.surface.OnEditPaste();
        std::fputs(qPrintable(window.text()), stdout);
        return 0;
    }
    if (wanted.value(1) == "middle") {
        EditorWindow window("|1\n2");
        clickMiddle(window, 1, 1);
        std::fputs(qPrintable(window.shown()), stdout);
        return 0;
    }
    if (wanted.value(1) == "both") {
        selectAndPasteTwice();
        return 0;
    }
    EditorWindow window("abc\ndef");
    if (wanted.value(1) == "select") {
        window.drag(window.point(0, 1), window.point(1, 2));
        window.click(window.point(0, 0));  // what was selected stays there for others
        return waitForEndOfInput("selected");
    }
    if (wanted.value(2) == "rectangle") {
        window.place({0, 1}, {1, 2}, true);
    } else {
        window.place({0, 1}, {1, 1});
    }
    window.surface.OnEditCopy();
    return waitForEndOfInput("copied");
}
