// Copies from an editor, or pastes into one, as a process of its own.
//   clipboard_program copy rectangle|text   says "copied" and keeps the clipboard until stdin ends
//   clipboard_program paste                 prints the text afterwards
#include "tests/editor/widget/EditorWindow.h"

#include <QApplication>
#include <QSocketNotifier>

#include <cstdio>

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
    EditorWindow window("abc\ndef");
    if (wanted.value(2) == "rectangle") {
        window.place({0, 1}, {1, 2}, true);
    } else {
        window.place({0, 1}, {1, 1});
    }
    window.surface.OnEditCopy();
    std::puts("copied");
    std::fflush(stdout);
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QApplication::quit);
    return QApplication::exec();
}
