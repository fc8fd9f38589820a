#pragma once

#include <QPoint>

#include <optional>

#include "editor/assist/BookAreas.h"
#include "editor/assist/ScriptWatch.h"
#include "ttbasic/ScriptNames.h"

class CompletionList;
class QKeyEvent;
class QMouseEvent;

// Help while a script is being written: suggestions, going to what a name is about and listing its
// uses, renaming, indentation, comments, tool tips. It looks at the keys before the editor does and
// takes those that have no meaning there; everything else stays the editor's.
class ScriptHelp : public QObject
{
    Q_OBJECT

public:
    // The script owns it.
    ScriptHelp(KVQtHighlightEditCtrlInlay& script, BookAreas bookAreas);
    ~ScriptHelp() override;

    // What comes by itself and can be switched off; all of it is on in the beginning.
    bool suggestsWhileTyping = true;
    bool indentsNewLines = true;
    bool showsToolTips = true;

    // What the keys do, each at the caret.
    void suggest();
    void goToDefinition();
    void listUses();
    void listSubs();
    void rename();
    void indentLines();
    void toggleComment();

signals:
    // What came of it, in one sentence.
    void told(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takeKey(const QKeyEvent& event);
    bool takeControlKey(int key, bool shift);
    void followKey(bool textChanged);
    bool showToolTip(QPoint point, QPoint global);
    void releaseMouse(const QMouseEvent& event);

    std::optional<NameUse> nameAtCaret();
    bool hasBookmarks() const;
    void select(const KVQtHighlightEditCtrlInlay::Part& part);
    void goTo(const NameUse& name);
    void renameInScript(const NameUse& name);
    QString toolTipOf(const NameUse& name) const;
    QString variableToolTip(const std::string& name) const;
    QString voiceToolTip(const std::string& name) const;

    KVQtHighlightEditCtrlInlay& script;
    const BookAreas areas;
    ScriptWatch watch;
    CompletionList* completion;
    enum class Key { none, letter, enter, other } lastKey = Key::none;
    QPoint pressed;  // of the left button with Control
};
