// Statements that the pen never comes to, or never gets away from.
#include <QtGlobal>

#include "base/TextHelpers.h"
#include "hints/HintLists.h"
#include "hints/ScriptPlaces.h"

#include <algorithm>
#include <set>

namespace hints {

namespace {

using Outline = ScriptOutline;
using Statement = Outline::Statement;

// A `voice` belongs outside, and of what is no statement the compiler tells.
bool belongsIntoSub(const Statement& statement)
{
    return statement.kind != StatementKind::voice && statement.kind != StatementKind::unknown &&
           statement.kind != StatementKind::endSub;
}

// The first of those that stand together.
void findOutsideSubs(const Book& book, Report& report)
{
    bool isTold = false;
    for (const Statement& statement : book.script.statements) {
        if (statement.sub != Outline::kNone) {
            isTold = false;
        } else if (!isTold && belongsIntoSub(statement)) {
            report.add(placeInScript(statement.place));
            isTold = true;
        }
    }
}

// Where another sub follows, the compiler misses the end.
void findOpenSubs(const Book& book, Report& report)
{
    if (book.script.subs.empty()) {
        return;
    }
    const Outline::Sub& last = book.script.subs.back();
    if (last.end != Outline::kNone) {
        return;
    }
    const Outline::Place& end = book.script.statements.back().place;
    const int behind = static_cast<int>(book.lineOfScript(end.line).size()) + 1;
    Finding& finding = report.add(placeInScript(last.name), {std::string(last.name.text)});
    finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "End it behind its last line"),
                      TextEdits{{end.line, behind, 0, "\nend sub"}}};
}

// What ends a block or begins another branch stands in another block than the goto.
void findBehindGoto(const Book& book, Report& report)
{
    const std::vector<Statement>& statements = book.script.statements;
    for (const Outline::Goto& jump : book.script.gotos) {
        const std::size_t next = static_cast<std::size_t>(jump.statement) + 1;
        const Statement& from = statements[jump.statement];
        if (next < statements.size() && from.sub != Outline::kNone &&
            statements[next].sub == from.sub && statements[next].block == from.block) {
            report.add(placeInScript(statements[next].place));
        }
    }
}

// The select of a branch as it is indented, and the one that the compiler takes.
void findForeignCases(const Book& book, Report& report)
{
    const Outline& script = book.script;
    for (const Outline::Case& branch : script.cases) {
        if (branch.block != Outline::kNone && branch.select != Outline::kNone &&
            script.blocks[branch.block].begin != branch.select) {
            report.add(placeInScript(script.statements[branch.statement].place),
                       {itostr(script.statements[branch.select].place.line),
                        itostr(script.statements[script.blocks[branch.block].begin].place.line)});
        }
    }
}

// Where each sub goes on in any case, without having said anything before.
class SilentJumps
{
public:
    explicit SilentJumps(const Outline& script)
    {
        std::set<int> done;  // subs that say something, may go elsewhere, or have gone on
        std::size_t jump = 0;
        for (std::size_t i = 0; i < script.statements.size(); ++i) {
            const Statement& statement = script.statements[i];
            const bool isJump = statement.kind == StatementKind::jump;
            const Outline::Goto* const target = isJump ? &script.gotos[jump++] : nullptr;
            if (statement.sub == Outline::kNone || done.count(statement.sub) > 0 ||
                (!isJump && statement.kind != StatementKind::say)) {
                continue;
            }
            done.insert(statement.sub);
            const bool isCertain =
                isJump && script.blocks[statement.block].kind == StatementKind::sub;
            if (isCertain) {
                jumps.emplace(script.subs[statement.sub].name.text, target);
            }
        }
    }

    // The subs that lead back to themselves.
    std::set<std::string_view> inCircles() const
    {
        std::set<std::string_view> circles;
        std::map<std::string_view, int> walks;  // the one that came by first
        int walk = 0;
        for (auto next = jumps.begin(); next != jumps.end(); ++next) {
            ++walk;
            auto place = next;
            while (place != jumps.end() && walks.emplace(place->first, walk).second) {
                place = jumps.find(place->second->target.text);
            }
            if (place != jumps.end() && walks.at(place->first) == walk) {
                const std::vector<std::string_view> circle = circleFrom(place->first);
                circles.insert(circle.begin(), circle.end());
            }
        }
        return circles;
    }

    // From the sub, which is in a circle, on and back to it: "a, b, a".
    std::vector<std::string_view> circleFrom(std::string_view sub) const
    {
        std::vector<std::string_view> names = {sub};
        do {
            names.push_back(jumps.at(names.back())->target.text);
        } while (names.back() != sub);
        return names;
    }

    std::map<std::string_view, const Outline::Goto*> jumps;  // by the name of the sub
};

std::string joined(const std::vector<std::string_view>& names)
{
    std::string text;
    for (const std::string_view name : names) {
        text += text.empty() ? "" : ", ";
        text += name;
    }
    return text;
}

// Each circle once, at the goto of its sub that stands first.
void findEndlessLoops(const Book& book, Report& report)
{
    const SilentJumps silent(book.script);
    std::set<std::string_view> untold = silent.inCircles();
    for (const Outline::Sub& sub : book.script.subs) {
        if (untold.count(sub.name.text) == 0) {
            continue;
        }
        const std::vector<std::string_view> circle = silent.circleFrom(sub.name.text);
        report.add(placeInScript(silent.jumps.at(sub.name.text)->target), {joined(circle)});
        for (const std::string_view name : circle) {
            untold.erase(name);
        }
    }
}

}  // namespace

std::vector<Hint> flowHints()
{
    return {
        {"outside-sub",
         QT_TRANSLATE_NOOP("Hints", "This stands outside of every sub and is never carried out"),
         Subject::book, findOutsideSubs},
        {"sub-without-end",
         QT_TRANSLATE_NOOP("Hints", "The sub '%1' has no end, so no game can be built"),
         Subject::book, findOpenSubs},
        {"behind-goto",
         QT_TRANSLATE_NOOP("Hints", "The pen never comes to this: it stands behind a goto"),
         Subject::book, findBehindGoto},
        {"foreign-case",
         QT_TRANSLATE_NOOP("Hints", "This belongs to the select in line %1, which has ended, and "
                                    "not to the one in line %2"),
         Subject::book, findForeignCases},
        {"endless-loop",
         QT_TRANSLATE_NOOP("Hints", "The pen goes round for ever and says nothing: %1"),
         Subject::book, findEndlessLoops},
    };
}

}  // namespace hints
