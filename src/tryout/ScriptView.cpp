#include "tryout/ScriptView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>

// The line numbers, which take clicks.
class ScriptView::Margin : public QWidget
{
public:
    explicit Margin(ScriptView* shown) : QWidget(shown), view(shown)
    {
        setObjectName("tryMargin");
        setCursor(Qt::PointingHandCursor);
        setToolTip(ScriptView::tr("A click sets a breakpoint, or takes it away (F9)"));
    }

protected:
    void paintEvent(QPaintEvent* event) override { view->paintMargin(event->rect()); }
    void mousePressEvent(QMouseEvent* event) override
    {
        view->toggleBreakpoint(view->lineAt(event->pos().y()));
    }

private:
    ScriptView* view;
};

namespace {

// Where the lines of one text are in another one: those above what was changed keep their numbers,
// those below keep their distance from the end, and what was changed has none (0).
class MovedLines
{
public:
    MovedLines(const QStringList& before, const QStringList& now)
        : shift(now.size() - before.size())
    {
        const int most = std::min(before.size(), now.size());
        while (same < most && before[same] == now[same]) {
            ++same;
        }
        int below = 0;
        while (below < most - same &&
               before[before.size() - 1 - below] == now[now.size() - 1 - below]) {
            ++below;
        }
        changedUpTo = before.size() - below;
        // A line that was only edited stays the same line.
        inPlace = shift == 0;
    }

    int operator()(int line) const
    {
        if (line <= same || inPlace) {
            return line;
        }
        return line > changedUpTo ? line + shift : 0;
    }

private:
    int same = 0;
    int changedUpTo = 0;
    int shift;
    bool inPlace = false;
};

}  // namespace

ScriptView::ScriptView(QWidget* parent) : QPlainTextEdit(parent), margin(new Margin(this))
{
    setObjectName("tryScript");
    setAccessibleName(tr("The script that runs"));
    setToolTip(tr("The script that runs, with the line that is next; a double click goes to the "
                  "line in the tab Script, to change it"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont letters("monospace");
    letters.setStyleHint(QFont::TypeWriter);
    setFont(letters);
    setMinimumSize(60, 40);
    setCursorWidth(2);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& part, int scrolled) {
        if (scrolled != 0) {
            margin->scroll(0, scrolled);
        } else {
            margin->update(0, part.y(), margin->width(), part.height());
        }
    });
}

void ScriptView::showScript(QString script)
{
    script.remove('\r');
    if (script == toPlainText()) {
        return;
    }
    const MovedLines moved(toPlainText().split('\n'), script.split('\n'));
    std::set<int> kept;
    for (const int line : stops) {
        if (const int now = moved(line)) {
            kept.insert(now);
        }
    }
    setPlainText(script);
    stops = std::move(kept);
    setViewportMargins(marginWidth(), 0, 0, 0);
    showLine(0, false);
    emit breakpointsChanged();
}

void ScriptView::showLine(int line, bool isPausing)
{
    shownLine = line;
    pauses = isPausing;
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (line < 1 || !block.isValid()) {
        setExtraSelections({});
    } else {
        QTextEdit::ExtraSelection all;
        all.cursor = QTextCursor(block);
        all.format.setProperty(QTextFormat::FullWidthSelection, true);
        all.format.setBackground(isPausing ? QColor(255, 225, 100) : QColor(215, 235, 215));
        all.format.setForeground(Qt::black);
        setExtraSelections({all});
        setTextCursor(all.cursor);
        ensureCursorVisible();
    }
    margin->update();
}

void ScriptView::toggleBreakpoint(int line)
{
    if (line < 1 || line > blockCount()) {
        return;
    }
    if (stops.erase(line) == 0) {
        stops.insert(line);
    }
    margin->update();
    emit breakpointsChanged();
}

void ScriptView::toggleHere()
{
    toggleBreakpoint(textCursor().blockNumber() + 1);
}

void ScriptView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit lineAsked(textCursor().blockNumber() + 1);
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void ScriptView::mouseDoubleClickEvent(QMouseEvent* event)
{
    emit lineAsked(cursorForPosition(event->pos()).blockNumber() + 1);
}

// --- The margin ----------------------------------------------------------------------------------

int ScriptView::marginWidth() const
{
    const int digits = QString::number(blockCount()).size();
    return fontMetrics().height() + fontMetrics().horizontalAdvance('9') * digits + 8;
}

void ScriptView::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect inside = contentsRect();
    margin->setGeometry(inside.left(), inside.top(), marginWidth(), inside.height());
    setViewportMargins(marginWidth(), 0, 0, 0);
}

int ScriptView::lineAt(int y) const
{
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (y < place.bottom()) {
            return y >= place.top() ? block.blockNumber() + 1 : 0;
        }
    }
    return 0;
}

void ScriptView::paintMargin(const QRect& part)
{
    QPainter painter(margin);
    painter.fillRect(part, palette().window());
    painter.setRenderHint(QPainter::Antialiasing);
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRect row = blockBoundingGeometry(block).translated(contentOffset()).toAlignedRect();
        if (row.top() > part.bottom()) {
            break;
        }
        const int line = block.blockNumber() + 1;
        const QRect sign(2, row.top() + 2, row.height() - 4, row.height() - 4);
        if (stops.count(line) != 0) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(190, 30, 30));
            painter.drawEllipse(sign);
        }
        if (line == shownLine) {
            painter.setPen(QPen(Qt::white, 1));
            painter.setBrush(pauses ? QColor(220, 160, 0) : QColor(60, 140, 60));
            painter.drawPolygon(
                QPolygon({sign.topLeft(), {sign.right(), sign.center().y()}, sign.bottomLeft()}));
        }
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(0, row.top(), margin->width() - 4, row.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(line));
    }
}
