#include "editor/assist/ScriptWatch.h"

ScriptWatch::ScriptWatch(KVQtHighlightEditCtrlInlay& watched) : script(watched)
{
    constexpr int kPause = 150;  // ms
    pause.setSingleShot(true);
    pause.setInterval(kPause);
    connect(&pause, &QTimer::timeout, this, &ScriptWatch::begin);
    connect(&script, &KVQtHighlightEditCtrlInlay::ViewUpdated, this, &ScriptWatch::textChanged);
    worker.moveToThread(&thread);
    thread.start(QThread::LowPriority);
}

ScriptWatch::~ScriptWatch()
{
    thread.quit();
    thread.wait();
}

void ScriptWatch::textChanged(bool changed)
{
    if (changed) {
        ++changes;
        pause.start();
    }
}

// What the worker sends back is dropped when this is gone by then.
void ScriptWatch::begin()
{
    QMetaObject::invokeMethod(&worker, [this, text = script.text(), ofChange = changes] {
        const auto made = std::make_shared<const ScriptOutline>(outlineOf(text.toStdString()));
        QMetaObject::invokeMethod(this, [this, made, ofChange] { take(made, ofChange); });
    });
}

void ScriptWatch::take(const Outline& made, quint64 ofChange)
{
    if (ofChange > known) {
        outline = made;
        known = ofChange;
    }
}

const ScriptOutline& ScriptWatch::now()
{
    if (known != changes || changes == 0) {
        take(std::make_shared<const ScriptOutline>(outlineOf(script.text().toStdString())),
             changes == 0 ? ++changes : changes);
    }
    return *outline;
}
