#include <cstring>

#include "base/TextHelpers.h"
#include "ttbasic/ttbasic.h"

namespace {

using Compile = bool (*)(ttbasic& script, const char* rest);

// A keyword and what becomes of the rest of its line. What a statement does not read is ignored.
struct Statement
{
    const char* keyword;
    Compile compile;
};

std::string firstWord(const char* text)
{
    return parseString(text);
}

constexpr Compile compileEndif = [](ttbasic& script, const char*) { return script.doEndif(); };
constexpr Compile compileEndSub = [](ttbasic& script, const char*) { return script.doEndSub(); };
constexpr Compile compileEndselect = [](ttbasic& script, const char*) {
    return script.doEndselect();
};

constexpr Statement kStatements[] = {
    {"sub", [](ttbasic& script, const char* rest) { return script.doSub(firstWord(rest)); }},
    {"if", [](ttbasic& script, const char* rest) { return script.doIf(rest); }},
    {"voice", [](ttbasic& script, const char* rest) { return script.doVoice(rest); }},
    {"say", [](ttbasic& script, const char* rest) { return script.doSay(rest); }},
    {"else", [](ttbasic& script, const char*) { return script.doElse(); }},
    {"endif", compileEndif},
    {"select", [](ttbasic& script, const char* rest) { return script.doSelect(firstWord(rest)); }},
    {"case", [](ttbasic& script, const char* rest) { return script.doCase(parseInt(rest)); }},
    {"default", [](ttbasic& script, const char*) { return script.doDefaultCase(); }},
    {"endselect", compileEndselect},
    {"endsub", compileEndSub},
    {"goto", [](ttbasic& script, const char* rest) { return script.doGoto(firstWord(rest)); }},
};

constexpr const char* kEnd = "end";
// What may follow it.
constexpr Statement kEnds[] = {
    {"if", compileEndif},
    {"sub", compileEndSub},
    {"select", compileEndselect},
};

template <std::size_t N>
Compile find(const Statement (&statements)[N], const std::string& keyword)
{
    for (const Statement& statement : statements) {
        if (keyword == statement.keyword) {
            return statement.compile;
        }
    }
    return nullptr;
}

}  // namespace

std::vector<std::string> ttbasic::keywords()
{
    std::vector<std::string> words = {kEnd};
    for (const Statement& statement : kStatements) {
        words.emplace_back(statement.keyword);
    }
    return words;
}

bool ttbasic::parseCommand(const char* line)
{
    statement = line;
    const char* rest = line;
    const std::string word = toLower(parseString(rest));
    if (word.empty()) {
        return true;
    }
    const char* const behindWord = rest;
    const Compile compile =
        word == kEnd ? find(kEnds, toLower(parseString(rest))) : find(kStatements, word);
    arguments = static_cast<std::size_t>((compile != nullptr ? rest : behindWord) - line);
    keyword = placeOf(0, arguments);
    announceLine();
    if (compile != nullptr) {
        return compile(*this, rest);
    }
    if (const char* equals = std::strchr(line, '=')) {
        arguments = 0;
        return doAssign(std::string(line, equals), equals + 1);
    }
    return error("statement-unknown", keyword, "Failed to parse command: " + word);
}

// In debug mode the pen says each line's number before it carries the line out.
void ttbasic::announceLine()
{
    if (debug && !currentSub.empty()) {
        const std::string voice = currentVoice;
        doSay("adam \"line " + itostr(lineNumber) + "\"");
        currentVoice = voice;
    }
}
