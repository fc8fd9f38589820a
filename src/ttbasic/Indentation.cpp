#include "ttbasic/Indentation.h"

#include <algorithm>

#include "base/TextHelpers.h"
#include "ttbasic/SourceLines.h"

namespace {

using Kind = StatementKind;

// Nobody's sub is that long; a text without any is not searched to its beginning with each key.
constexpr int kFarthest = 2000;

Kind kindOf(std::string line)
{
    CutComments(line.data());
    return readStatement(line.c_str()).kind;
}

bool opensBlock(Kind kind)
{
    return kind == Kind::sub || kind == Kind::ifBlock || kind == Kind::elseBranch ||
           kind == Kind::caseBranch || kind == Kind::defaultBranch;
}

bool isBranchOrEnd(Kind kind)
{
    return kind == Kind::elseBranch || kind == Kind::caseBranch || kind == Kind::defaultBranch ||
           kind == Kind::endIf || kind == Kind::endSelect;
}

bool matches(Kind opener, Kind end)
{
    switch (end) {
    case Kind::elseBranch:
        return opener == Kind::ifBlock;
    case Kind::caseBranch:
    case Kind::defaultBranch:
    case Kind::endSelect:
        return opener == Kind::select;
    default:
        return true;  // the compiler ends with `end if` whatever is open
    }
}

}  // namespace

std::vector<int> depthsOf(const ScriptOutline& outline)
{
    std::vector<int> depths(static_cast<std::size_t>(outline.lineCount), -1);
    for (const ScriptOutline::Statement& statement : outline.statements) {
        depths[static_cast<std::size_t>(statement.place.line) - 1] = statement.depth;
    }
    // A comment goes with what follows it, but stands inside a block that ends there.
    auto next = outline.statements.rbegin();
    for (auto comment = outline.comments.rbegin(); comment != outline.comments.rend(); ++comment) {
        const auto last = outline.statements.rend();
        int following = 0;
        while (next != last && next->place.line > comment->line) {
            ++next;
        }
        if (next != outline.statements.rbegin()) {
            const ScriptOutline::Statement& behind = *std::prev(next);
            const bool isEnd = isBranchOrEnd(behind.kind) || behind.kind == Kind::endSub;
            following = behind.depth + (isEnd ? 1 : 0);
        }
        int& depth = depths[static_cast<std::size_t>(comment->line) - 1];
        depth = depth < 0 ? following : depth;
    }
    return depths;
}

std::string indentationOf(const std::string& line)
{
    const auto isText = [](char c) { return !isSpace(c); };
    return {line.begin(), std::find_if(line.begin(), line.end(), isText)};
}

std::string stepAbove(const LineOfScript& line, int index)
{
    constexpr int kLines = 200;
    std::size_t narrowest = 0;
    for (int i = index; i >= std::max(0, index - kLines); --i) {
        const std::string text = line(i);
        const std::string white = indentationOf(text);
        if (white.empty() || white.size() == text.size()) {
            continue;
        }
        if (white.front() == '\t') {
            return "\t";
        }
        narrowest = narrowest == 0 ? white.size() : std::min(narrowest, white.size());
    }
    constexpr std::size_t kUsual = 2, kWidest = 4;
    return std::string(narrowest == 0 || narrowest > kWidest ? kUsual : narrowest, ' ');
}

std::string indentationBelow(const LineOfScript& line, int index)
{
    const std::string text = line(index);
    const std::string own = indentationOf(text);
    return opensBlock(kindOf(text)) ? own + stepAbove(line, index) : own;
}

std::string indentationOfEnd(const LineOfScript& line, int index)
{
    const std::string text = line(index);
    const Kind kind = kindOf(text);
    if (!isBranchOrEnd(kind) && kind != Kind::endSub) {
        return indentationOf(text);
    }
    int ended = 0;  // blocks that end between here and what is looked for
    for (int i = index - 1; i >= std::max(0, index - kFarthest); --i) {
        const std::string above = line(i);
        const Kind aboveKind = kindOf(above);
        if (aboveKind == Kind::sub) {
            return kind == Kind::endSub ? indentationOf(above) : indentationOf(text);
        }
        if (aboveKind == Kind::endSub) {
            break;
        }
        if (aboveKind == Kind::endIf || aboveKind == Kind::endSelect) {
            ++ended;
        } else if (aboveKind == Kind::ifBlock || aboveKind == Kind::select) {
            if (ended > 0) {
                --ended;
            } else if (kind != Kind::endSub && matches(aboveKind, kind)) {
                return indentationOf(above);
            }
        }
    }
    return indentationOf(text);
}
