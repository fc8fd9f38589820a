#include "editor/assist/LineTools.h"

#include "ttbasic/Indentation.h"

#include <algorithm>

namespace {

using Replacement = KVQtHighlightEditCtrlInlay::Replacement;

struct Lines
{
    int first;
    int last;
};

// A selection that ends in front of a line does not take it along.
Lines selectedLines(const KVQtHighlightEditCtrlInlay& script)
{
    const KVTextEditor::SELECTION selection = script.editor.selection.normalized();
    const bool endsInFront =
        !selection.block && selection.end.column == 0 && selection.end.line > selection.start.line;
    return {selection.start.line, selection.end.line - (endsInFront ? 1 : 0)};
}

LineOfScript linesOf(const KVQtHighlightEditCtrlInlay& script)
{
    return [&script](int line) { return script.LineText(line).toStdString(); };
}

void addIndentation(std::vector<Replacement>& replacements, int line, const std::string& before,
                    const std::string& after)
{
    if (before != after) {
        replacements.push_back(
            {{line + 1, 1, static_cast<int>(before.size())}, QString::fromStdString(after)});
    }
}

std::string times(int count, const std::string& step)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += step;
    }
    return text;
}

}  // namespace

void LineTools::indent(KVQtHighlightEditCtrlInlay& script)
{
    const Lines lines = selectedLines(script);
    const LineOfScript line = linesOf(script);
    const std::vector<int> depths = depthsOf(outlineOf(script.text().toStdString()));
    const std::string step = stepAbove(line, script.buffer.line_count() - 1);
    std::vector<Replacement> replacements;
    for (int i = lines.first; i <= lines.last; ++i) {
        const bool isKnown = static_cast<std::size_t>(i) < depths.size();
        const int depth = isKnown ? depths[static_cast<std::size_t>(i)] : -1;
        addIndentation(replacements, i, indentationOf(line(i)), times(std::max(depth, 0), step));
    }
    script.Replace(replacements);
}

void LineTools::toggleComment(KVQtHighlightEditCtrlInlay& script)
{
    const Lines lines = selectedLines(script);
    bool areComments = true;
    bool areAllEmpty = true;
    int narrowest = -1;
    for (int i = lines.first; i <= lines.last; ++i) {
        const std::string text = linesOf(script)(i);
        const auto white = static_cast<int>(indentationOf(text).size());
        if (white == static_cast<int>(text.size())) {
            continue;
        }
        areAllEmpty = false;
        const char first = text[static_cast<std::size_t>(white)];
        areComments = areComments && (first == '#' || first == '\'');
        narrowest = narrowest < 0 ? white : std::min(narrowest, white);
    }
    std::vector<Replacement> replacements;
    for (int i = lines.first; i <= lines.last && !areAllEmpty; ++i) {
        const std::string text = linesOf(script)(i);
        const auto white = static_cast<int>(indentationOf(text).size());
        if (white == static_cast<int>(text.size())) {
            continue;
        }
        if (areComments) {
            const bool hasBlank = text.substr(static_cast<std::size_t>(white) + 1, 1) == " ";
            replacements.push_back({{i + 1, white + 1, hasBlank ? 2 : 1}, {}});
        } else {
            replacements.push_back({{i + 1, narrowest + 1, 0}, "# "});
        }
    }
    script.Replace(replacements);
}

void LineTools::indentAfterEnter(KVQtHighlightEditCtrlInlay& script)
{
    const int below = script.editor.selection.end.line;
    if (below < 1) {
        return;
    }
    const LineOfScript line = linesOf(script);
    const std::string above = line(below - 1);
    const std::string own = indentationOf(above);
    if (own.size() == above.size()) {
        return;  // of white space only
    }
    const std::string mended = indentationOfEnd(line, below - 1);
    const LineOfScript mendedLine = [&](int index) {
        return index == below - 1 ? mended + above.substr(own.size()) : line(index);
    };
    const std::string wanted = indentationBelow(mendedLine, below - 1);
    std::vector<Replacement> replacements;
    addIndentation(replacements, below - 1, own, mended);
    if (wanted != own) {  // else it is as the key has made it
        addIndentation(replacements, below, indentationOf(line(below)), wanted);
    }
    if (!replacements.empty()) {
        script.ReplaceInLastStep(replacements);
    }
}
