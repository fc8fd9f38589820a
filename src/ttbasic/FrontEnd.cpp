#include "ttbasic/ttbasic.h"

#include <utility>

#include "base/FileSystem.h"
#include "base/TextHelpers.h"
#include "ttbasic/SourceLines.h"

// Two builds of one script draw the same numbers.
static constexpr unsigned kRandomSeed = 7787;

PrintFunction ttbasic::myprintf = printToStandardOutput;

void ttbasic::redirectPrintfTo(PrintFunction function)
{
    myprintf = function != nullptr ? function : printToStandardOutput;
}

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
        return error("Can't open file.");
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
            return error("The script becomes too large");
        }
    }
    return !failed && checkGotos() && checkLabels();
}

bool ttbasic::compileLine(char* line)
{
    CutComment(line, '\'', true);
    CutComment(line, '#', true);
    // Intended: blanks in front of a "#" survive the cut, so such a line leaves an empty echo.
    if (*line == '\0') {
        return true;
    }
    emitLine({"        # ", skipWhite(line)});
    return parseCommand(line) || error("Syntax Error");
}

bool ttbasic::checkGotos()
{
    for (const auto& [line, target] : gotos) {
        if (labels.count(target) == 0) {
            lineNumber = line;
            return error("goto " + target + " is not defined");
        }
    }
    return true;
}

bool ttbasic::checkLabels()
{
    for (const auto& [name, definitions] : labels) {
        if (definitions > 1) {
            return error("Sub " + name + " has multiple definitions");
        }
    }
    return true;
}

bool ttbasic::error(const std::string& message)
{
    lastError = "Error: Line " + itostr(lineNumber) + ": " + message;
    myprintf("!!! Error: Line %d %s\n", lineNumber, message.c_str());
    return false;
}

bool compileScript(ttbasic& script, bool debugMode)
{
    try {
        return script.parse(debugMode);
    } catch (const ttbasic::StackUnderflow& underflow) {
        return script.error(underflow.what());
    }
}
