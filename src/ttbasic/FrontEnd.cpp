#include "ttbasic/ttbasic.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/FileSystem.h"
#include "base/TextHelpers.h"
#include "ttbasic/SourceLines.h"

namespace {

// Two builds of one script draw the same numbers.
constexpr unsigned kRandomSeed = 7787;

using Mentions = std::vector<ttbasic::Mention>;

ttbasic::Place lastOn(int line, const Mentions& mentions)
{
    const auto found = std::find_if(mentions.rbegin(), mentions.rend(),
                                    [&](const auto& one) { return one.place.line == line; });
    return found != mentions.rend() ? found->place : ttbasic::Place();
}

ttbasic::Place second(const std::string& name, const Mentions& mentions)
{
    const auto isIt = [&](const auto& one) { return one.name == name; };
    auto found = std::find_if(mentions.begin(), mentions.end(), isIt);
    if (found != mentions.end()) {
        found = std::find_if(std::next(found), mentions.end(), isIt);
    }
    return found != mentions.end() ? found->place : ttbasic::Place();
}

}  // namespace

ttbasic::ttbasic()
{
    clear();
}

void ttbasic::clear()
{
    source.clear();
    lastError.clear();
    selects.clear();
    lineNumber = 0;
    ifPrefix.clear();
    conditions.clear();
    stack.clear();
    code.clear();
    debug = false;
    labelCounter = 0;
    currentSub.clear();
    ifDepth = 0;
    labels.clear();
    variables.clear();
    gotos.clear();
    definitions.clear();
    jumps.clear();
    origins.clear();
    statement.clear();
    keyword = {};
    arguments = 0;
    expression = std::string::npos;
    talkTexts.clear();
    voices.clear();
    voices["adam"].female = false;
    voices["eve"].female = true;
    currentVoice = "adam";
}

bool ttbasic::read(FILE* file)
{
    constexpr int kLongestPiece = 1022;  // characters; longer lines come in pieces
    char piece[kLongestPiece + 1];
    while (std::fgets(piece, sizeof piece, file) != nullptr) {
        source += piece;  // Intended: what follows a zero byte in its piece is lost, as in names
    }
    return true;
}

bool ttbasic::read(const std::string& fileName)
{
    FILE* file = FileSystem::myfopen(fileName, "rb");
    if (file == nullptr) {
        return error("file-unreadable", {}, "Can't open file.", fileName);
    }
    const bool isRead = read(file);
    std::fclose(file);
    return isRead;
}

bool ttbasic::parse(bool debugMode)
{
    std::string script = std::move(source);
    clear();
    source = script;
    debug = debugMode;
    random = Platform::RandomNumbers(kRandomSeed);
    code = "scripts:\r\n";
    variables = {"$rnd", "$_zero"};
    updateIfPrefix();

    bool failed = false;
    LineSplitter lines(script.data());
    while (char* line = lines.next()) {
        increase(lineNumber);
        if (!compileLine(line)) {
            failed = true;
        }
        if (isTooLarge()) {
            return error("script-too-large", wholeStatement(), "The script becomes too large");
        }
    }
    return !failed && checkGotos() && checkLabels();
}

bool ttbasic::compileLine(char* line)
{
    CutComments(line);
    // Intended: blanks in front of a "#" survive the cut, so such a line leaves an empty echo.
    if (*line == '\0') {
        return true;
    }
    const char* const text = skipWhite(line);
    origins.push_back({code.size(), {lineNumber, static_cast<int>(text - line) + 1, 0}});
    emitLine({"        # ", text});
    return parseCommand(line) || error("syntax", wholeStatement(), "Syntax Error");
}

bool ttbasic::checkGotos()
{
    for (const auto& [line, target] : gotos) {
        if (labels.count(target) == 0) {
            lineNumber = line;
            const Place place = lastOn(line, jumps);
            return error("goto-undefined", place, "goto " + target + " is not defined", target);
        }
    }
    return true;
}

bool ttbasic::checkLabels()
{
    for (const auto& [name, count] : labels) {
        if (count > 1) {
            // Intended: the message names the script's last line.
            const Place place = second(name, definitions);
            return error("sub-repeated", place, "Sub " + name + " has multiple definitions", name);
        }
    }
    return true;
}

bool compileScript(ttbasic& script, bool debugMode)
{
    try {
        return script.parse(debugMode);
    } catch (const ttbasic::StackUnderflow& underflow) {
        return script.error("operand-missing", script.wholeExpression(), underflow.what());
    }
}
