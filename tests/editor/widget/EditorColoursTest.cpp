#include "tests/editor/widget/EditorWindow.h"
#include "ttbasic/ttbasic.h"

#include <QtTest>

namespace {

const QColor kWhite(255, 255, 255);
const QColor kBlack(0, 0, 0);
const QColor kString(96, 96, 96);
const QColor kComment(0, 128, 0);
const QColor kKeyword(0, 0, 255);
const QColor kSecondKeyword(112, 32, 176);
const QColor kLineNumber(128, 128, 128);
const QColor kSelection(136, 136, 255);

int distance(QColor a, QColor b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
           std::abs(a.blue() - b.blue());
}

// What stands in a cell, as a letter: of a marked cell its background ("S"elected, "B"racket), else
// the kind of its character (plai"n", "s"tring, "c"omment, keyword of the class "1" or "2").
char kindOf(EditorWindow& window, const QImage& picture, int line, int column)
{
    const QColor ground = window.ground(picture, line, column);
    if (ground != kWhite) {
        return ground == kSelection ? 'S' : 'B';
    }
    const QColor found = window.ink(picture, line, column);
    char kind = '.';
    int best = distance(found, kWhite);
    const std::pair<char, QColor> kinds[] = {
        {'n', kBlack}, {'s', kString}, {'c', kComment}, {'1', kKeyword}, {'2', kSecondKeyword}};
    for (const auto& [letter, color] : kinds) {
        if (distance(found, color) < best) {
            best = distance(found, color);
            kind = letter;
        }
    }
    return kind;
}

QString kindsOf(EditorWindow& window, int lines, int columns)
{
    const QImage picture = window.picture();
    QString kinds;
    for (int line = 0; line < lines; ++line) {
        kinds += line > 0 ? "\n" : "";
        for (int column = 0; column < columns; ++column) {
            kinds += kindOf(window, picture, line, column);
        }
    }
    return kinds;
}

}  // namespace

// Which colour the text has; what the characters look like depends on the fonts.
class EditorColoursTest : public QObject
{
    Q_OBJECT

private slots:
    void eachRoleHasItsColour()
    {
        EditorWindow window("x if foo \"s\" // c");
        const QImage picture = window.picture();
        QVERIFY(window.holdsColor(picture, window.cell(0, 0), kBlack));
        QVERIFY(window.holdsColor(picture, window.cell(0, 2), kKeyword));
        QVERIFY(window.holdsColor(picture, window.cell(0, 5), kSecondKeyword));
        QVERIFY(window.holdsColor(picture, window.cell(0, 10), kString));
        QVERIFY(window.holdsColor(picture, window.cell(0, 16), kComment));
        QVERIFY(window.isEmpty(picture, 0, 1));
        QVERIFY(window.isEmpty(picture, 0, 20));
        QCOMPARE(window.ground(picture, 0, 0), kWhite);
    }

    void aScriptLooksAsItShould()
    {
        EditorWindow window;
        KVTextEditor::set_script_rules(window.surface.editor, ttbasic::keywords(),
                                       ttbasic::voiceOptions());
        window.control.setText("' A cow\nsub HN (MH)\n\tsay \"NH\" HN age # HM\nif MN\nend");
        window.place({1, 11}, {1, 11});
        QCOMPARE(kindsOf(window, 5, 24), QString("c.c.ccc.................\n"
                                                 "111.nn.BnnB.............\n"
                                                 "....111.ssss.nn.222.c.cc\n"
                                                 "11.nn...................\n"
                                                 "111....................."));
        window.place({1, 4}, {3, 2});
        QCOMPARE(kindsOf(window, 5, 24), QString("c.c.ccc.................\n"
                                                 "111.SSSSSSSSSSSSSSSSSSSS\n"
                                                 "SSSSSSSSSSSSSSSSSSSSSSSS\n"
                                                 "SS.nn...................\n"
                                                 "111....................."));
    }

    void aRoleWithoutAColourOfItsOwnIsLightGrey()
    {
        EditorWindow window("HH");
        for (const int role : {7, 8, 1000}) {
            window.surface.editor.colorize({0, 0}, {0, 1}, role, KVTextEditor::write_cell_color);
            const QImage picture = window.picture();
            QVERIFY(window.holdsColor(picture, window.cell(0, 0), QColor(204, 204, 204)));
            QVERIFY(!window.holdsColor(picture, window.cell(0, 0), kBlack));
            QVERIFY(window.holdsColor(picture, window.cell(0, 1), kBlack));
        }
    }

    void theDefaultColoursHaveTheirSlots()
    {
        EditorOptions options;
        options.colors.fill(Qt::red);
        options.set_default_colours_bright();
        const std::array<QColor, 9> expected = {
            kWhite,    kBlack,         kString,     kComment,
            kKeyword,  kSecondKeyword, kLineNumber, QColor(204, 204, 204),
            kSelection};
        QVERIFY(options.colors == expected);
        QCOMPARE(options.color_of_role(5), kLineNumber);
        QCOMPARE(options.color_of_role(6), kSecondKeyword);
    }

    void aCommandColoursAlsoWhatIsOutOfView()
    {
        EditorWindow window(QString("\n").repeated(300) + "if");
        QCOMPARE(window.surface.buffer.line(300).at(0).color, 4);
    }

    void whatHasChangedIsColouredBeforeItIsDrawn()
    {
        EditorWindow window("xx");
        window.surface.editor.buffer->line(0).set(u"if");
        QVERIFY(window.holdsColor(window.picture(), window.cell(0, 0), kKeyword));
    }

    void selectedAndHighlightedTextIsLegible()
    {
        EditorWindow window("x if foo \"s\" // c ()");
        window.key(Qt::Key_A, Qt::ControlModifier);
        QImage picture = window.picture();
        for (const int column : {0, 2, 5, 10, 16}) {
            QVERIFY(contrast(window.ink(picture, 0, column), window.ground(picture, 0, column)) >=
                    4.5);
        }
        window.key(Qt::Key_End);
        picture = window.picture();
        QVERIFY(contrast(window.ink(picture, 0, 19), window.ground(picture, 0, 19)) >= 4.5);
    }

    void coloursOfTheOptionsAreUsed()
    {
        EditorWindow window("x");
        window.control.options().colors[0] = QColor(10, 20, 30);
        window.control.options().colors[1] = QColor(250, 240, 230);
        window.control.UpdateAllViews();
        const QImage picture = window.picture();
        QCOMPARE(window.ground(picture, 0, 0), QColor(10, 20, 30));
        QVERIFY(window.holdsColor(picture, window.cell(0, 0), QColor(250, 240, 230)));
        QCOMPARE(picture.pixelColor(picture.width() - 1, picture.height() - 1), QColor(10, 20, 30));
    }

    void whiteSpaceIsMarkedOnlyWhenAskedFor()
    {
        EditorWindow window("\tx y");
        QImage picture = window.picture();
        QVERIFY(window.isEmpty(picture, 0, 0));
        QVERIFY(window.isEmpty(picture, 0, 5));
        window.control.options().show_whitespace = true;
        window.control.UpdateAllViews();
        picture = window.picture();
        QVERIFY(!window.isEmpty(picture, 0, 0));
        QVERIFY(window.isEmpty(picture, 0, 1));
        QVERIFY(!window.isEmpty(picture, 0, 5));
        QVERIFY(window.holdsColor(picture, window.cell(0, 0), kLineNumber));
    }

    void theMarksOfWhiteSpaceAreAnArrowAndADot()
    {
        EditorWindow window(QString::fromUtf8("\t \u2192\u00B7"));
        window.control.options().show_whitespace = true;
        window.control.options().colors[1] = kLineNumber;  // the characters look like the marks
        window.control.UpdateAllViews();
        const QImage picture = window.picture();
        QCOMPARE(picture.copy(window.cell(0, 0)), picture.copy(window.cell(0, 5)));
        QCOMPARE(picture.copy(window.cell(0, 4)), picture.copy(window.cell(0, 6)));
    }
};

QTEST_MAIN(EditorColoursTest)
#include "EditorColoursTest.moc"
