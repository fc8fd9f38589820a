#include "play/Coverage.h"

#include "base/TextHelpers.h"
#include "ttbasic/ScriptOutline.h"
#include "ttbasic/SourceLines.h"

namespace play {

namespace {

// Goes through the lines of the script that the pen runs, from top to bottom.
class CoverageFinder
{
public:
    CoverageFinder(const Book& coveredBook, const Reached& reachedParts)
        : book(coveredBook), reached(reachedParts), outline(outlineOf(coveredBook.script))
    {}

    Coverage find();

private:
    std::set<int> linesOfThePen() const;
    void addLine(int line);
    void addBranches(const ScriptOutline::Statement& statement, int line);
    void addBranch(int line, bool isBlock, const char* words, bool isLineReached);
    void addAreas();
    void miss(int line, const std::string& words);

    const Book& book;
    const Reached& reached;
    const ScriptOutline outline;
    Coverage coverage;
};

Coverage CoverageFinder::find()
{
    for (const int line : linesOfThePen()) {
        const ScriptOutline::Statement* const statement = outline.statementOn(line);
        if (statement != nullptr && statement->kind != StatementKind::endSub) {
            addLine(line);
            addBranches(*statement, line);
        }
    }
    addAreas();
    return std::move(coverage);
}

std::set<int> CoverageFinder::linesOfThePen() const
{
    std::set<int> lines;
    for (const std::vector<Origin>& script : book.origins) {
        for (const Origin& origin : script) {
            lines.insert(origin.line);
        }
    }
    return lines;
}

void CoverageFinder::addLine(int line)
{
    ++coverage.lines.all;
    if (reached.lines.count(line) != 0) {
        ++coverage.lines.reached;
    } else {
        miss(line, "not run");
    }
}

void CoverageFinder::addBranches(const ScriptOutline::Statement& statement, int line)
{
    const bool isLineReached = reached.lines.count(line) != 0;
    if (statement.kind == StatementKind::ifBlock) {
        addBranch(line, true, "never true", isLineReached);
        addBranch(line, false, "never false", isLineReached);
    } else if (statement.kind == StatementKind::caseBranch ||
               statement.kind == StatementKind::defaultBranch) {
        addBranch(line, true, "never chosen", isLineReached);
    }
}

void CoverageFinder::addBranch(int line, bool isBlock, const char* words, bool isLineReached)
{
    ++coverage.branches.all;
    if (reached.branches.count({line, isBlock}) != 0) {
        ++coverage.branches.reached;
    } else if (isLineReached) {
        miss(line, words);
    }
}

void CoverageFinder::addAreas()
{
    for (const auto& [name, code] : book.areas) {
        ++coverage.areas.all;
        if (reached.codes.count(code) != 0) {
            ++coverage.areas.reached;
        } else {
            coverage.missing.push_back("area " + name + ": not touched");
        }
    }
}

void CoverageFinder::miss(int line, const std::string& words)
{
    coverage.missing.push_back("line " + std::to_string(line) + ": " + words + ": " +
                               statementOf(book, line));
}

}  // namespace

void Reached::add(const Outcome& outcome)
{
    lines.insert(outcome.lines.begin(), outcome.lines.end());
    for (const Branch& branch : outcome.branches) {
        if (branch.value <= 1) {
            branches.insert({branch.line, branch.value == 1});
        }
    }
    if (outcome.code) {
        codes.insert(*outcome.code);
    }
}

void Reached::add(const Reached& other)
{
    lines.insert(other.lines.begin(), other.lines.end());
    branches.insert(other.branches.begin(), other.branches.end());
    codes.insert(other.codes.begin(), other.codes.end());
}

std::string statementOf(const Book& book, int line)
{
    std::string script = book.script;
    LineSplitter lines(script.data());
    char* text = lines.next();
    for (int i = 1; i < line && text != nullptr; ++i) {
        text = lines.next();
    }
    if (text == nullptr) {
        return {};
    }
    CutComments(text);
    std::string statement = skipWhite(text);
    while (!statement.empty() && isSpace(statement.back())) {
        statement.pop_back();
    }
    return statement;
}

Coverage coverageOf(const Book& book, const Reached& reached)
{
    return CoverageFinder(book, reached).find();
}

}  // namespace play
