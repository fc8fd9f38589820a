#include "editor/widget/Characters.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace {

using LINE = KVTextEditor::Line<KVTextEditor::EdChar>;

// Cells from first to end (exclusive); none, when the column that was asked for is an edge.
struct Cells
{
    int first;
    int end;
};

// Two regional indicators are a flag.
bool is_regional_indicator_at(const LINE& line, int column)
{
    const char16_t second = line.at(column + 1).ch;
    return line.at(column).ch == 0xD83C && second >= 0xDDE6 && second <= 0xDDFF;
}

// Two neighbours below the combining marks never belong together; most text is of this kind. The
// first of several flags is told here, too: Qt 5.15 pairs their indicators wrongly when an emoji
// stands in front.
bool is_plain_edge(const LINE& line, int column)
{
    constexpr char16_t kCombiningMarks = 0x300;
    return column <= 0 || column >= line.length() ||
           (line.at(column - 1).ch < kCombiningMarks && line.at(column).ch < kCombiningMarks) ||
           (is_regional_indicator_at(line, column) && !is_regional_indicator_at(line, column - 2));
}

Cells tab_around(const LINE& line, int column)
{
    Cells tab = {column, column};
    while (tab.first > 0 && line.is_filler_at(tab.first)) {
        --tab.first;
    }
    while (line.is_filler_at(tab.end)) {
        ++tab.end;
    }
    return tab;
}

// The cells around a column between two plain edges; no character reaches beyond them.
Cells run_around(const LINE& line, int column)
{
    Cells run = {column, column};
    while (!is_plain_edge(line, run.first)) {
        --run.first;
    }
    while (!is_plain_edge(line, run.end)) {
        ++run.end;
    }
    return run;
}

QString text_of(const LINE& line, Cells cells)
{
    QString text;
    for (int column = cells.first; column < cells.end; ++column) {
        text += QChar(line.at(column).ch);
    }
    return text;
}

// The character that begins before a column and ends behind it.
Cells character_around(const LINE& line, int column)
{
    if (line.is_filler_at(column)) {
        return tab_around(line, column);
    }
    if (is_plain_edge(line, column)) {
        return {column, column};
    }
    const Cells run = run_around(line, column);
    QTextBoundaryFinder edges(QTextBoundaryFinder::Grapheme, text_of(line, run));
    edges.setPosition(column - run.first);
    if (edges.isAtBoundary()) {
        return {column, column};
    }
    const int end = run.first + edges.toNextBoundary();
    return {run.first + edges.toPreviousBoundary(), end};
}

}  // namespace

int start_of_character(const LINE& line, int column)
{
    return character_around(line, column).first;
}

int end_of_character(const LINE& line, int column)
{
    return character_around(line, column).end;
}

bool continues_character(const LINE& line, int column, char16_t ch)
{
    if (column < 1 || column > line.length()) {
        return false;
    }
    const QString text = text_of(line, {start_of_character(line, column - 1), column}) + QChar(ch);
    QTextBoundaryFinder edges(QTextBoundaryFinder::Grapheme, text);
    edges.setPosition(text.size() - 1);
    return !edges.isAtBoundary();
}

bool parts_pair(const LINE& line, int column)
{
    return QChar::isHighSurrogate(line.at(column - 1).ch) &&
           QChar::isLowSurrogate(line.at(column).ch);
}
