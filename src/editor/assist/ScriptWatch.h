#pragma once

#include <QThread>
#include <QTimer>

#include <memory>

#include "editor/widget/KVQtHighlightEditCtrlInlay.h"
#include "ttbasic/ScriptOutline.h"

// Keeps an outline of the script that is being written. It is made on a thread of its own in pauses
// of typing, so that no key waits for it.
class ScriptWatch : public QObject
{
    Q_OBJECT

public:
    using Outline = std::shared_ptr<const ScriptOutline>;

    // The script outlives it.
    explicit ScriptWatch(KVQtHighlightEditCtrlInlay& script);
    ~ScriptWatch() override;

    // As of a moment ago.
    const ScriptOutline& recent() const { return *outline; }
    // As of now, made here if need be: for what the author asks for, not for what comes by itself.
    const ScriptOutline& now();

private:
    void textChanged(bool changed);
    void begin();
    void take(const ScriptWatch::Outline& made, quint64 ofChange);

    KVQtHighlightEditCtrlInlay& script;
    Outline outline = std::make_shared<ScriptOutline>();
    QThread thread;
    QObject worker;  // lives on the thread
    QTimer pause;
    quint64 changes = 0;
    quint64 known = 0;  // the change that the outline is of
};
