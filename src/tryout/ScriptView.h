#pragma once

#include <QPlainTextEdit>

#include <set>

// The script to be read while it runs: the line that runs, and breakpoints beside the line numbers.
class ScriptView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ScriptView(QWidget* parent = nullptr);

    // Breakpoints stay at their lines of the text, as far as those are still there.
    void showScript(QString script);
    // The line, from 1, that runs, or in front of which the script pauses; 0 for none.
    void showLine(int line, bool isPausing);

    const std::set<int>& breakpoints() const { return stops; }
    // Sets one, or takes it away.
    void toggleBreakpoint(int line);
    // At the line of the caret.
    void toggleHere();

signals:
    void breakpointsChanged();
    // The author wants to change the line.
    void lineAsked(int line);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    class Margin;

    int marginWidth() const;
    void paintMargin(const QRect& part);
    int lineAt(int y) const;

    Margin* margin;
    std::set<int> stops;
    int shownLine = 0;
    bool pauses = false;
};
