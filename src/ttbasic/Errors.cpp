// How errors leave the compiler, and which word of the line is to blame.
#include <algorithm>
#include <utility>

#include "base/TextHelpers.h"
#include "ttbasic/ExpressionParser.h"
#include "ttbasic/ttbasic.h"

PrintFunction ttbasic::myprintf = printToStandardOutput;

void ttbasic::redirectPrintfTo(PrintFunction function)
{
    myprintf = function != nullptr ? function : printToStandardOutput;
}

void ttbasic::reportTo(DiagnosticSink newSink)
{
    sink = std::move(newSink);
}

bool ttbasic::error(const std::string& message)
{
    return error("script", wholeStatement(), message);
}

bool ttbasic::error(const char* kind, const Place& place, const std::string& message,
                    const std::string& subject)
{
    lastError = "Error: Line " + itostr(lineNumber) + ": " + message;
    if (!sink) {
        myprintf("!!! Error: Line %d %s\n", lineNumber, message.c_str());
        return false;
    }
    Diagnostic diagnostic;
    diagnostic.kind = kind;
    diagnostic.text = message;
    diagnostic.line = place.line != 0 ? place.line : lineNumber;
    diagnostic.column = place.column;
    diagnostic.length = place.length;
    diagnostic.subject = subject;
    diagnostic.printed = "!!! Error: Line " + itostr(lineNumber) + " " + message + "\n";
    sink(diagnostic);
    return false;
}

// Of the statement's bytes from begin up to end, without white space around them.
ttbasic::Place ttbasic::placeOf(std::size_t begin, std::size_t end) const
{
    end = std::min(end, statement.size());
    while (begin < end && isSpace(statement[begin])) {
        ++begin;
    }
    while (begin < end && isSpace(statement[end - 1])) {
        --end;
    }
    if (begin >= end) {
        return {lineNumber, 0, 0};
    }
    return {lineNumber, static_cast<int>(begin) + 1, static_cast<int>(end - begin)};
}

ttbasic::Place ttbasic::wholeStatement() const
{
    return placeOf(0, statement.size());
}

// A word behind the keyword, its quotes included; the keyword when there is no such word.
ttbasic::Place ttbasic::argument(std::size_t index) const
{
    std::vector<std::string> words;
    SplitStringKeepQuotes(statement.substr(arguments), words, false);
    if (index >= words.size()) {
        return keyword;
    }
    std::size_t begin = arguments;
    for (std::size_t i = 0; i < index; ++i) {
        begin = statement.find(words[i], begin) + words[i].size();
    }
    begin = statement.find(words[index], begin);
    return placeOf(begin, begin + words[index].size());
}

// The name that stands behind the keyword; the keyword when it is empty.
ttbasic::Place ttbasic::firstArgument(const std::string& name) const
{
    const std::size_t begin = statement.find(name, arguments);
    return name.empty() || begin == std::string::npos ? keyword
                                                      : placeOf(begin, begin + name.size());
}

ttbasic::Place ttbasic::wholeExpression() const
{
    if (expression == std::string::npos) {
        return argument(0);
    }
    const Place place = placeOf(expression, statement.size());
    return place.column != 0 ? place : wholeStatement();
}

// The token that keeps the expression from being put in order.
ttbasic::Place ttbasic::faultyToken(const std::string& text) const
{
    if (expression == std::string::npos) {
        return wholeExpression();
    }
    const auto [begin, end] = expression_parser().faultIn(text);
    return placeOf(expression + begin, expression + end);
}
