#pragma once

#include <QAccessibleWidget>

#include <memory>

class KVQtHighlightEditCtrlInlay;

// The editor as screen readers and other assistive programs see it: an editable text of several
// lines. Offsets count characters; a line break is one.
class EditorAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    // To be called before the first editor is made; more often does no harm.
    static void install();
    // Tells assistive programs, where there are any, what is new in the editor.
    static void announce(KVQtHighlightEditCtrlInlay* editor);

    explicit EditorAccessible(KVQtHighlightEditCtrlInlay* editor);

    // What has changed in the text since this was called last (since the interface was made, at
    // first), as one piece that replaces another; nullptr where nothing has.
    std::unique_ptr<QAccessibleTextUpdateEvent> change();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    QString text(int start, int end) const override;
    int characterCount() const override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    int selectionCount() const override;
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override;
    void setSelection(int index, int start, int end) override;
    void removeSelection(int index) override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    KVQtHighlightEditCtrlInlay& editor() const;
    QString wholeText() const;

    QString announced;  // the text that assistive programs know of
};
