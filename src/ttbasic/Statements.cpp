#include <cstring>

#include "base/TextHelpers.h"
#include "ttbasic/ScriptLanguage.h"
#include "ttbasic/ttbasic.h"

namespace {

std::string firstWord(const char* text)
{
    return parseString(text);
}

}  // namespace

std::vector<std::string> ttbasic::keywords()
{
    std::vector<std::string> words = {ScriptLanguage::kEnd};
    for (const ScriptLanguage::Keyword& keyword : ScriptLanguage::keywords()) {
        words.emplace_back(keyword.word);
    }
    return words;
}

bool ttbasic::parseCommand(const char* line)
{
    statement = line;
    const StatementHead head = readStatement(line);
    if (head.word.empty()) {
        return true;
    }
    arguments = head.end;
    keyword = placeOf(0, arguments);
    announceLine();
    const char* const rest = line + head.end;  // what a statement does not read of it is ignored
    switch (head.kind) {
    case StatementKind::sub:
        return doSub(firstWord(rest));
    case StatementKind::endSub:
        return doEndSub();
    case StatementKind::ifBlock:
        return doIf(rest);
    case StatementKind::elseBranch:
        return doElse();
    case StatementKind::endIf:
        return doEndif();
    case StatementKind::select:
        return doSelect(firstWord(rest));
    case StatementKind::caseBranch:
        return doCase(toInt(firstWord(rest).c_str()));
    case StatementKind::defaultBranch:
        return doDefaultCase();
    case StatementKind::endSelect:
        return doEndselect();
    case StatementKind::jump:
        return doGoto(firstWord(rest));
    case StatementKind::voice:
        return doVoice(rest);
    case StatementKind::say:
        return doSay(rest);
    case StatementKind::assignment: {
        arguments = 0;
        const char* const equals = std::strchr(line, '=');
        return doAssign(std::string(line, equals), equals + 1);
    }
    case StatementKind::unknown:
        break;
    }
    return error("statement-unknown", keyword, "Failed to parse command: " + head.word);
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
