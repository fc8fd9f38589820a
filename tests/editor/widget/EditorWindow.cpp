#include "tests/editor/widget/EditorWindow.h"

#include "editor/widget/KVQtFindDialog.h"

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

#include <cmath>

using KVTextEditor::CARET;

namespace {

// Takes a mark out of the text; returns where it stood, in cells of a text without tabs in front.
bool takeMark(QString& text, QChar mark, QChar otherMark, CARET& place)
{
    const int at = text.indexOf(mark);
    if (at < 0) {
        return false;
    }
    const QString before = text.left(at).remove(otherMark);
    place.line = before.count('\n');
    place.column = before.size() - (before.lastIndexOf('\n') + 1);
    return true;
}

double channel(int value)
{
    const double part = value / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(QColor color)
{
    return 0.2126 * channel(color.red()) + 0.7152 * channel(color.green()) +
           0.0722 * channel(color.blue());
}

}  // namespace

double contrast(QColor a, QColor b)
{
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

EditorWindow::EditorWindow(const QString& marked, QSize size) : surface(control.surface())
{
    QString plain = marked;
    CARET caret, anchor;
    const bool hasCaret = takeMark(plain, '|', '^', caret);
    const bool hasAnchor = takeMark(plain, '^', '|', anchor);
    plain.remove('|').remove('^');
    control.setText(plain);
    if (hasCaret) {
        place(hasAnchor ? anchor : caret, caret);
    }
    control.resize(size);
    control.show();
    QApplication::setActiveWindow(&control);
    surface.setFocus();
    QCoreApplication::processEvents();
}

QString EditorWindow::text() const
{
    return control.text().replace("\r\n", "\n");
}

QString EditorWindow::shown() const
{
    const auto& selection = surface.editor.selection;
    QString shown;
    for (int i = 0; i < surface.buffer.line_count(); ++i) {
        const auto& line = surface.buffer.line(i);
        shown += i > 0 ? "\n" : "";
        for (int column = 0; column <= line.length(); ++column) {
            if (selection.start != selection.end && selection.start == CARET{i, column}) {
                shown += '^';
            }
            if (selection.end == CARET{i, column}) {
                shown += '|';
            }
            if (column < line.length() && !line.is_filler_at(column)) {
                shown += QChar(line.at(column).ch);
            }
        }
    }
    return shown;
}

QString EditorWindow::rectangle() const
{
    const auto& selection = surface.editor.selection;
    return QString("%1,%2-%3,%4%5")
        .arg(selection.start.line)
        .arg(selection.start.column)
        .arg(selection.end.line)
        .arg(selection.end.column)
        .arg(selection.block ? " block" : "");
}

void EditorWindow::place(CARET anchor, CARET caret, bool block)
{
    selection().set(anchor.line, anchor.column);
    selection().end = caret;
    selection().block = block;
    surface.UpdateAllViews();
}

void EditorWindow::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&surface, static_cast<Qt::Key>(key), modifiers);
}

void EditorWindow::type(const QString& text)
{
    for (const QChar ch : text) {
        if (ch == '\n') {
            key(Qt::Key_Return);
        } else {
            QTest::keyClick(&surface, ch.toLatin1());
        }
    }
}

void EditorWindow::compose(const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&surface, &event);
}

QPoint EditorWindow::point(int line, int column) const
{
    return {
        surface.gutter_width() + (column - surface.first_visible_column()) * surface.char_width(),
        (line - surface.first_visible_line()) * surface.line_height() + surface.line_height() / 2};
}

QPoint EditorWindow::gutter(int line) const
{
    return {surface.char_width(), point(line, 0).y()};
}

void EditorWindow::press(QPoint where, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(&surface, Qt::LeftButton, modifiers, where);
}

void EditorWindow::move(QPoint where, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(QEvent::MouseMove, where, surface.mapToGlobal(where), Qt::NoButton,
                      Qt::LeftButton, modifiers);
    QApplication::sendEvent(&surface, &event);
}

void EditorWindow::release(QPoint where, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseRelease(&surface, Qt::LeftButton, modifiers, where);
}

void EditorWindow::click(QPoint where, Qt::KeyboardModifiers modifiers)
{
    press(where, modifiers);
    release(where, modifiers);
}

void EditorWindow::doubleClick(QPoint where)
{
    QTest::mouseDClick(&surface, Qt::LeftButton, Qt::NoModifier, where);
}

void EditorWindow::drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers)
{
    press(from);
    move((from + to) / 2, modifiers);
    move(to, modifiers);
    release(to, modifiers);
}

KVQtFindDialog& EditorWindow::findDialog()
{
    return *surface.findChild<KVQtFindDialog*>();
}

QImage EditorWindow::picture()
{
    surface.clearFocus();
    return surface.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QRect EditorWindow::cell(int line, int column) const
{
    return {point(line, column) - QPoint(0, surface.line_height() / 2),
            QSize(surface.char_width(), surface.line_height())};
}

QColor EditorWindow::ground(const QImage& picture, int line, int column) const
{
    return picture.pixelColor(cell(line, column).topLeft() * picture.devicePixelRatio());
}

// The colour in the cell that differs most from its background.
QColor EditorWindow::ink(const QImage& picture, int line, int column) const
{
    const QColor empty = ground(picture, line, column);
    const QRect place = cell(line, column);
    QColor best = empty;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QColor found = picture.pixelColor(x, y);
            if (contrast(found, empty) > contrast(best, empty)) {
                best = found;
            }
        }
    }
    return best;
}

bool EditorWindow::isEmpty(const QImage& picture, int line, int column) const
{
    return ink(picture, line, column) == ground(picture, line, column);
}

QRect EditorWindow::gutterCell(int line, int column) const
{
    return {QPoint(column * surface.char_width(), cell(line, 0).top()), cell(line, 0).size()};
}

bool EditorWindow::holdsColor(const QImage& picture, const QRect& cell, QColor color)
{
    constexpr int kClose = 40;  // thin strokes are mixed with the background
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
        for (int x = cell.left(); x <= cell.right(); ++x) {
            const QColor found = picture.pixelColor(x, y);
            if (std::abs(found.red() - color.red()) < kClose &&
                std::abs(found.green() - color.green()) < kClose &&
                std::abs(found.blue() - color.blue()) < kClose) {
                return true;
            }
        }
    }
    return false;
}
