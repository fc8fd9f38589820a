// Measures the script editor and prints the tables of docs/performance.md.
//   editor_bench [core|widget]
//   editor_bench memory editor|peer   only the bytes that a text takes; the widget table runs this

#include "bench/EditorBench.h"

#include <QApplication>

int main(int count, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(count, arguments);
    const QStringList wanted = QApplication::arguments().mid(1);
    if (wanted.value(0) == "memory") {
        EditorBench::measureMemoryOf(wanted.value(1).toStdString());
        return 0;
    }
    if (wanted.isEmpty() || wanted.contains("core")) {
        EditorBench::measureCore();
    }
    if (wanted.isEmpty() || wanted.contains("widget")) {
        EditorBench::measureWidget();
    }
    return 0;
}
