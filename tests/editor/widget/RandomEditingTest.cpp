#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"
#include "tests/editor/widget/PlainText.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <random>

using KVTextEditor::CARET;
using Characters = PlainText::Characters;

namespace {

const Characters kPlain = {"a", "b", "1", "Z", ".", " ", "\t", "\t"};
const Characters kComposed = {"a", " ", "\t", QString::fromUtf8("e\u0301"), QString::fromUtf8("🐄"),
                              // A family, a thumb with the colour of its skin, a flag.
                              QString::fromUtf8("👩\u200d👧"), QString::fromUtf8("👍🏽"),
                              QString::fromUtf8("🇩🇪")};

// The window and the plain text beside each other; the same happens to both.
class Pair
{
public:
    Pair(unsigned seed, const Characters& characters) : random(seed), alphabet(characters)
    {
        begin();
    }

    void step();
    // What differs, or nothing.
    QString difference() const;

    QString steps;  // since the text was set

private:
    int any(int below) { return int(random() % unsigned(below)); }
    Characters anyText(int most, bool breaks);
    void begin();
    void note(const QString& name) { steps += name + " [" + window.shown() + "]\n"; }

    void edit();
    void type();
    void move();
    void moveWithMouse();
    void look();
    void paste();
    void replaceAll();
    void drag();
    void click(int character, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    int unitsBefore(CARET caret) const;
    CARET cellOf(int character) const;
    QPoint pointOf(int character) const;
    int breaksBefore(int character) const;
    void lookWhereTheCaretsAre();
    bool isTooLarge() const;

    std::mt19937 random;
    Characters alphabet;
    EditorWindow window{QString(), QSize(900, 500)};
    PlainText plain;
};

Characters Pair::anyText(int most, bool breaks)
{
    Characters text;
    for (int left = any(most) + 1; left > 0; --left) {
        text += breaks && any(6) == 0 ? QString("\n") : alphabet.at(any(alphabet.size()));
    }
    return text;
}

void Pair::begin()
{
    plain.setText(anyText(40, true));
    window.control.setText(plain.whole());
    steps = "[" + plain.whole() + "] ";
}

bool Pair::isTooLarge() const
{
    const auto& buffer = window.surface.buffer;
    return buffer.line_count() > 16 || buffer.width() > 60;
}

void Pair::step()
{
    if (isTooLarge() || any(200) == 0) {
        begin();
    }
    switch (any(10)) {
    case 0:
    case 1:
        move();
        break;
    case 2:
        moveWithMouse();
        break;
    case 3:
        look();
        break;
    case 4:
    case 5:
    case 6:
        edit();
        break;
    default:
        type();
        break;
    }
}

void Pair::type()
{
    for (int left = any(4); left >= 0; --left) {
        const QString character = alphabet.at(any(alphabet.size()));
        note("type" + character);
        if (character == "\t") {
            window.key(Qt::Key_Tab);
            plain.tab();
        } else {
            window.compose(character);
            plain.type(character);
        }
    }
}

void Pair::edit()
{
    switch (any(16)) {
    case 14:
        note("wordBackspace");
        window.key(Qt::Key_Backspace, Qt::ControlModifier);
        plain.deleteWord(false);
        break;
    case 15:
        note("wordDelete");
        window.key(Qt::Key_Delete, Qt::ControlModifier);
        plain.deleteWord(true);
        break;
    case 0:
    case 1:
        note("backspace");
        window.key(Qt::Key_Backspace);
        plain.backspace();
        break;
    case 2:
    case 3:
        note("delete");
        window.key(Qt::Key_Delete);
        plain.deleteForward();
        break;
    case 4:
        note("enter");
        window.key(Qt::Key_Return);
        plain.enter();
        break;
    case 5:
        note("undo");
        window.key(Qt::Key_Z, Qt::ControlModifier);
        plain.undo();
        break;
    case 6:
        note("redo");
        window.key(Qt::Key_Y, Qt::ControlModifier);
        plain.redo();
        break;
    case 7:
        note("cut");
        window.key(Qt::Key_X, Qt::ControlModifier);
        plain.deleteForward();
        break;
    case 8:
        replaceAll();
        break;
    case 9:
        drag();
        break;
    case 10:
        note("shiftTab");
        window.key(Qt::Key_Backtab, Qt::ShiftModifier);
        plain.shiftTab();
        lookWhereTheCaretsAre();
        break;
    case 11:
        note("lower");
        window.key(Qt::Key_U, Qt::ControlModifier);
        plain.lowerCase();
        break;
    case 12:
        note("insert");
        window.key(Qt::Key_Insert);
        plain.overwrite = !plain.overwrite;
        break;
    default:
        paste();
        break;
    }
}

void Pair::paste()
{
    const Characters pasted = anyText(8, true);
    QString units;
    for (const QString& character : pasted) {
        units += character;
    }
    note("paste[" + units + "]");
    QApplication::clipboard()->setText(units);
    window.key(Qt::Key_V, Qt::ControlModifier);
    plain.paste(pasted);
}

void Pair::replaceAll()
{
    note("replaceAll");
    const Characters replacement = any(2) == 0 ? Characters{"\t", "b"} : Characters{"b"};
    window.findDialog().set_find_text("a");
    window.findDialog().txReplace->setText(replacement.size() == 2 ? "\tb" : "b");
    window.findDialog().btReplaceAll->click();
    Characters replaced;
    for (const QString& character : plain.text) {
        replaced += character == "a" ? replacement : Characters{character};
    }
    plain.replaceAll(replaced);
    lookWhereTheCaretsAre();
}

void Pair::drag()
{
    if (!plain.hasRange()) {
        return;
    }
    const int first = qMin(plain.caret, plain.anchor);
    const int last = qMax(plain.caret, plain.anchor);
    const int from = first + any(last - first);
    const int to = any(plain.text.size() + 1);
    const bool copy = any(3) == 0;
    note(QString("drag%1-%2").arg(from).arg(to));
    window.drag(pointOf(from), pointOf(to), copy ? Qt::ControlModifier : Qt::NoModifier);
    if (to < first || to >= last) {
        plain.drop(to, copy);
    } else if (from == to) {
        plain.place(to);
    }
}

void Pair::move()
{
    const bool shift = any(3) == 0;
    const Qt::KeyboardModifiers held = shift ? Qt::ShiftModifier : Qt::NoModifier;
    switch (any(7)) {
    case 0:
        note("left");
        window.key(Qt::Key_Left, held);
        plain.left(shift);
        break;
    case 1:
        note("right");
        window.key(Qt::Key_Right, held);
        plain.right(shift);
        break;
    case 2:
        note("home");
        window.key(Qt::Key_Home, held);
        plain.home(shift);
        break;
    case 3:
        note("end");
        window.key(Qt::Key_End, held);
        plain.end(shift);
        break;
    case 4:
        note("wordLeft");
        window.key(Qt::Key_Left, Qt::ControlModifier);
        plain.wordLeft();
        break;
    case 5:
        note("wordRight");
        window.key(Qt::Key_Right, Qt::ControlModifier);
        plain.wordRight();
        break;
    default:
        note("all");
        window.key(Qt::Key_A, Qt::ControlModifier);
        plain.selectAll();
        break;
    }
}

void Pair::click(int character, Qt::KeyboardModifiers modifiers)
{
    window.click(pointOf(character), modifiers);
}

void Pair::moveWithMouse()
{
    const int to = any(plain.text.size() + 1);
    const int first = qMin(plain.caret, plain.anchor);
    const int last = qMax(plain.caret, plain.anchor);
    if (any(2) == 0) {
        note(QString("shiftClick%1").arg(to));
        // In the selection it would begin to drag it.
        if (to < first || to >= last) {
            click(to, Qt::ShiftModifier);
            plain.caret = to;
        }
        return;
    }
    note(QString("click%1").arg(to));
    click(to);
    plain.place(to);
}

// Where these lead is a matter of columns; but it is always between two characters.
void Pair::look()
{
    const QPoint where(window.surface.gutter_width() + any(40) * 5, any(12) * 15);
    switch (any(5)) {
    case 0:
        note("up");
        window.key(Qt::Key_Up);
        break;
    case 1:
        note("down");
        window.key(Qt::Key_Down, any(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    case 2:
        note("clickAnywhere");
        window.click(where);
        break;
    case 3:
        note("doubleClick");
        window.doubleClick(where);
        break;
    default:
        note("bookmarks");
        window.key(Qt::Key_F2, Qt::ControlModifier);
        window.key(Qt::Key_F2);
        break;
    }
    lookWhereTheCaretsAre();
}

int Pair::unitsBefore(CARET caret) const
{
    const auto& buffer = window.surface.buffer;
    int units = caret.line;  // the line breaks
    for (int line = 0; line <= caret.line; ++line) {
        const int end = line < caret.line ? buffer.line(line).length() : caret.column;
        for (int column = 0; column < end; ++column) {
            units += buffer.line(line).is_filler_at(column) ? 0 : 1;
        }
    }
    return units;
}

void Pair::lookWhereTheCaretsAre()
{
    plain.caret = plain.characterAt(unitsBefore(window.caret()));
    plain.anchor = plain.characterAt(unitsBefore(window.surface.editor.selection.start));
}

int Pair::breaksBefore(int character) const
{
    return plain.text.mid(0, character).count("\n");
}

CARET Pair::cellOf(int character) const
{
    CARET cell = {breaksBefore(character), 0};
    const auto& line = window.surface.buffer.line(cell.line);
    while (unitsBefore(cell) < plain.unitsBefore(character) || line.is_filler_at(cell.column)) {
        ++cell.column;
    }
    return cell;
}

QPoint Pair::pointOf(int character) const
{
    const CARET cell = cellOf(character);
    return window.point(cell.line, cell.column);
}

QString Pair::difference() const
{
    if (window.text() != plain.whole()) {
        return "the text is [" + window.text() + "] instead of [" + plain.whole() + "]";
    }
    if (plain.caret < 0 || plain.anchor < 0) {
        return "the selection parts a character in [" + window.shown() + "]";
    }
    PlainText found = plain;
    found.caret = plain.characterAt(unitsBefore(window.caret()));
    found.anchor = plain.characterAt(unitsBefore(window.surface.editor.selection.start));
    if (found.caret != plain.caret || found.anchor != plain.anchor) {
        return QString("[%1]: %2,%3 instead of %4,%5")
            .arg(window.shown())
            .arg(found.anchor)
            .arg(found.caret)
            .arg(plain.anchor)
            .arg(plain.caret);
    }
    return {};
}

// A line as it is seen, a tab as blanks; and where each of its characters begins.
struct SeenLine
{
    SeenLine(const Characters& characters)
    {
        for (const QString& character : characters) {
            begins += cells.size();
            cells += character == "\t" ? QString(4 - cells.size() % 4, ' ') : character;
        }
        begins += cells.size();
    }

    QString cells;
    QVector<int> begins;
};

// What a rectangle leaves of a line in front of itself and behind it. What lies across its left
// edge is not part of it.
struct LineBesideRectangle
{
    LineBesideRectangle(const Characters& characters, int left, int right)
    {
        const SeenLine line(characters);
        before = line.cells.left(left).leftJustified(left, ' ');
        for (int i = 0; i < characters.size(); ++i) {
            const int begin = line.begins.at(i);
            const int end = line.begins.at(i + 1);
            if (begin < left && end > left && characters.at(i) != "\t") {
                before = before.left(begin).leftJustified(left, ' ');
                behind += characters.at(i);
            } else if (begin >= right) {
                behind += characters.at(i);
            } else if (begin >= left) {
                inside += characters.at(i);
            }
        }
    }

    QString before;
    QString inside;
    QString behind;
};

QString seen(const QString& line)
{
    Characters units;
    for (const QChar unit : line) {
        units += QString(unit);
    }
    return SeenLine(units).cells;
}

}  // namespace

// Whatever is done to a text, the editor holds what a plain string would hold, with the caret in
// the same place: tabs and characters of several cells make no difference.
class RandomEditingTest : public QObject
{
    Q_OBJECT

private slots:
    // A click that follows a double-click at once is no third one here.
    void initTestCase() { QApplication::setDoubleClickInterval(0); }

    void theEditorHoldsWhatAPlainStringWouldHold_data()
    {
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<bool>("composed");
        for (unsigned seed = 1; seed <= 4; ++seed) {
            QTest::addRow("tabs %u", seed) << seed << false;
            QTest::addRow("composed characters %u", seed) << seed << true;
        }
    }

    void theEditorHoldsWhatAPlainStringWouldHold()
    {
        QFETCH(unsigned, seed);
        QFETCH(bool, composed);
        constexpr int kSteps = 1500;
        Pair pair(seed, composed ? kComposed : kPlain);
        for (int i = 0; i < kSteps; ++i) {
            pair.step();
            const QString difference = pair.difference();
            QVERIFY2(difference.isEmpty(),
                     qPrintable(difference + "\nafter " + pair.steps.right(200)));
        }
    }

    void aRectangleTypesInItsColumnOnEachLine_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 100; ++seed) {
            QTest::addRow("%u", seed) << seed;
        }
    }

    void aRectangleTypesInItsColumnOnEachLine()
    {
        QFETCH(unsigned, seed);
        std::mt19937 random(seed);
        const auto any = [&random](int below) { return int(random() % unsigned(below)); };
        const int left = any(14);
        const int right = left + (any(2) == 0 ? 0 : any(8));

        QVector<Characters> lines(5);
        QStringList text;
        for (Characters& line : lines) {
            for (int count = any(9); count > 0; --count) {
                line += kComposed.at(any(kComposed.size()));
            }
            text += line.toList().join("");
        }
        EditorWindow window(text.join('\n'), QSize(900, 500));
        if (any(2) == 0) {
            // Leaves the tabs unexpanded.
            window.findDialog().set_find_text("q");
            window.findDialog().btReplaceAll->click();
        }
        QVector<LineBesideRectangle> beside;
        QString inside;
        for (const Characters& line : lines) {
            beside += LineBesideRectangle(line, left, right);
            inside += beside.size() > 1 && beside.size() < 5 ? beside.last().inside : QString();
        }
        window.press(window.point(1, left), Qt::AltModifier);
        window.move(window.point(3, right), Qt::AltModifier);
        window.release(window.point(3, right), Qt::AltModifier);

        const QString typed = QString("x1 yz").left(any(5) + 1);
        for (const QChar ch : typed) {
            window.type(ch);
        }
        for (int i = 0; i < 5; ++i) {
            const QString line = window.text().split('\n').at(i);
            // A rectangle that holds nothing becomes a caret in its first line.
            const bool caret = right > left && inside.isEmpty();
            if (i == 0 || i == 4 || (caret && i > 1)) {
                QCOMPARE(line, text.at(i));
            } else if (caret) {
                QCOMPARE(QString(line).remove(typed).trimmed(), text.at(i).trimmed());
            } else {
                QCOMPARE(seen(line).left(left + typed.size()), beside.at(i).before + typed);
                QVERIFY2(line.endsWith(beside.at(i).behind), qPrintable(line));
            }
        }
    }
};

QTEST_MAIN(RandomEditingTest)
#include "RandomEditingTest.moc"
