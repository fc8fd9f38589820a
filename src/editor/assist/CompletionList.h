#pragma once

#include <QListWidget>
#include <QTimer>

#include "editor/assist/BookAreas.h"
#include "editor/assist/ScriptWatch.h"
#include "ttbasic/Completion.h"

// What may be written at the caret, in a list below it that never takes the focus: typing goes on
// and narrows it down. When it was asked for, Return and Tab take its first line; when it came by
// itself, they do only after an arrow key has chosen one.
class CompletionList : public QListWidget
{
    Q_OBJECT

public:
    // All outlive it but the script, whose child it is.
    CompletionList(KVQtHighlightEditCtrlInlay& script, ScriptWatch& watch, const BookAreas& areas);

    // The author asks for it.
    void ask();
    // A letter was typed: a moment later it comes by itself where a name is written.
    void typed();
    // The text or the caret has changed for another reason.
    void follow();
    void dismiss();
    // True when the key was for the list.
    bool takeKey(int key);

private:
    void offer(bool isAsked);
    void refresh();
    WrittenWord wordAtCaret(std::string& line) const;
    void fill(const std::vector<Suggestion>& suggestions);
    void place(const WrittenWord& word);
    void accept();
    void tellReaders();

    KVQtHighlightEditCtrlInlay& script;
    ScriptWatch& watch;
    const BookAreas& areas;
    QTimer soon;  // so that no key waits for the list
    bool wasAsked = false;
    bool accepting = false;
};
