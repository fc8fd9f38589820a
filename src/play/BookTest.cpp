#include "play/BookTest.h"

#include "base/QuotedWords.h"
#include "base/TextHelpers.h"
#include "ttbasic/SourceLines.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>

namespace play {

namespace {

constexpr uint64_t kMostRounds = 1000000;
constexpr uint64_t kLargestValue = 65535;

using Kind = TestCommand::Kind;
using Words = std::vector<QuotedWord>;

std::string trimmed(const std::string& text)
{
    const char* const kWhite = " \t\r\n";
    const size_t first = text.find_first_not_of(kWhite);
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(kWhite) + 1 - first);
}

// The text without quotes around it.
std::string unquoted(const std::string& text)
{
    const bool isQuoted = text.size() > 2 && text.front() == '"' && text.back() == '"';
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

std::optional<uint64_t> wholeNumber(const std::string& text, uint64_t largest)
{
    uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, number);
    return failure == std::errc() && rest == end && number <= largest ? std::make_optional(number)
                                                                      : std::nullopt;
}

class TestReader
{
public:
    TestReader(const Book& testedBook, std::vector<TestMessage>& allMistakes)
        : book(testedBook), mistakes(allMistakes)
    {}

    std::optional<BookTest> read(std::string text);

private:
    void readLine(const std::string& line);
    void readCommand(const std::string& word, const std::string& rest);
    void readAlone(Kind kind, const std::string& rest);
    void readSymbol(const std::string& word, uint16_t code, const std::string& rest);
    void readTap(const std::string& name);
    void readWait(const std::string& rest);
    void readSeed(const std::string& rest);
    void readRepeat(const std::string& rest);
    void readEnd(const std::string& rest);
    void readExpectation(const std::string& rest);
    void readSay(const std::string& rest);
    void readSilence(const std::string& rest);
    void readWithin(Kind kind, const std::string& rest);
    bool readComparison(const std::string& text);
    void mistake(const std::string& text) { mistakes.push_back({number, text}); }
    TestCommand& add(Kind kind);

    const Book& book;
    std::vector<TestMessage>& mistakes;
    BookTest test;
    int number = 0;                   // of the line
    std::string words;                // of the line
    std::vector<size_t> openRepeats;  // innermost last
};

std::optional<BookTest> TestReader::read(std::string text)
{
    const std::string kByteOrderMark = "\xEF\xBB\xBF";
    const size_t mistakesBefore = mistakes.size();
    if (text.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) {
        text.erase(0, kByteOrderMark.size());
    }
    // A zero byte would end the text.
    std::replace(text.begin(), text.end(), '\0', '?');
    LineSplitter lines(text.data());
    while (char* line = lines.next()) {
        ++number;
        CutComments(line);
        words = trimmed(line);
        if (!words.empty()) {
            readLine(words);
        }
    }
    for (const size_t open : openRepeats) {
        mistakes.push_back({test.commands[open].line, "'repeat' without 'end'"});
    }
    std::stable_sort(mistakes.begin() + static_cast<std::ptrdiff_t>(mistakesBefore), mistakes.end(),
                     [](const TestMessage& a, const TestMessage& b) { return a.line < b.line; });
    return mistakes.size() == mistakesBefore ? std::make_optional(std::move(test)) : std::nullopt;
}

void TestReader::readLine(const std::string& line)
{
    const std::string word = line.substr(0, line.find_first_of(" \t"));
    readCommand(toLower(word), trimmed(line.substr(word.size())));
}

void TestReader::readCommand(const std::string& word, const std::string& rest)
{
    if (word == "start") {
        readAlone(Kind::start, rest);
    } else if (word == "tap") {
        readTap(rest);
    } else if (word == "replay") {
        readSymbol(word, book.game.replayCode, rest);
    } else if (word == "stop") {
        readSymbol(word, book.game.stopCode, rest);
    } else if (word == "wait") {
        readWait(rest);
    } else if (word == "seed") {
        readSeed(rest);
    } else if (word == "repeat") {
        readRepeat(rest);
    } else if (word == "end") {
        readEnd(rest);
    } else if (word == "expect") {
        readExpectation(rest);
    } else {
        mistake("'" + word +
                "' is no command of a test: start, tap, replay, stop, wait, seed, repeat, end, "
                "expect");
    }
}

TestCommand& TestReader::add(Kind kind)
{
    TestCommand& command = test.commands.emplace_back();
    command.kind = kind;
    command.line = number;
    command.words = words;
    return command;
}

void TestReader::readAlone(Kind kind, const std::string& rest)
{
    if (rest.empty()) {
        add(kind);
    } else {
        mistake("nothing may stand behind it: '" + rest + "'");
    }
}

void TestReader::readSymbol(const std::string& word, uint16_t code, const std::string& rest)
{
    if (code == 0) {
        mistake("the game has no code for '" + word + "'");
        return;
    }
    readAlone(Kind::tap, rest);
    if (rest.empty()) {
        test.commands.back().code = code;
    }
}

void TestReader::readTap(const std::string& name)
{
    const std::optional<uint16_t> code = codeOf(book, unquoted(name));
    if (name.empty()) {
        mistake("tap what? the name or the number of an area is missing");
    } else if (!code) {
        mistake("there is no area '" + unquoted(name) + "'");
    } else {
        add(Kind::tap).code = *code;
    }
}

void TestReader::readWait(const std::string& rest)
{
    const std::optional<double> seconds = amountIn(rest);
    if (seconds) {
        add(Kind::wait).amount = *seconds;
    } else {
        mistake("'" + rest + "' is no number of seconds");
    }
}

void TestReader::readSeed(const std::string& rest)
{
    const std::optional<uint64_t> seed = wholeNumber(rest, std::numeric_limits<uint64_t>::max());
    if (seed) {
        add(Kind::seed).count = *seed;
    } else {
        mistake("'" + rest + "' is no seed: a whole number from 0 on");
    }
}

void TestReader::readRepeat(const std::string& rest)
{
    const std::optional<uint64_t> rounds = wholeNumber(rest, kMostRounds);
    if (!rounds || *rounds == 0) {
        mistake("'" + rest + "' is no number of rounds: 1 to " + std::to_string(kMostRounds));
    }
    // Also a wrong one has an end.
    openRepeats.push_back(test.commands.size());
    add(Kind::repeat).count = rounds.value_or(1);
}

void TestReader::readEnd(const std::string& rest)
{
    if (openRepeats.empty()) {
        mistake("'end' without 'repeat'");
        return;
    }
    if (!rest.empty() && toLower(rest) != "repeat") {
        mistake("nothing may stand behind it: '" + rest + "'");
    }
    const size_t begin = openRepeats.back();
    openRepeats.pop_back();
    test.commands[begin].other = test.commands.size();
    add(Kind::end).other = begin;
}

void TestReader::readExpectation(const std::string& rest)
{
    words = rest;
    if (readComparison(rest)) {
        return;
    }
    const std::string word = rest.substr(0, rest.find_first_of(" \t"));
    const std::string further = trimmed(rest.substr(word.size()));
    const std::string kind = toLower(word);
    if (kind == "say") {
        readSay(further);
    } else if (kind == "silence") {
        readAlone(Kind::silence, further);
    } else if (kind == "within") {
        readWithin(Kind::sound, further);
    } else if (kind == "rest" && toLower(further).compare(0, 7, "within ") == 0) {
        readWithin(Kind::rest, trimmed(further.substr(7)));
    } else {
        mistake("what is expected? say \"TEXT\", say one of \"TEXT\" \"TEXT\", silence, within 20 "
                "steps, rest within 20 steps, or a variable: count == 3");
    }
}

// One of the words, which may be quoted; "one of" only where it is not.
void TestReader::readSay(const std::string& rest)
{
    const Words all = quotedWordsOf(rest);
    const bool isOneOf = all.size() >= 2 && toLower(std::string(all[0].in(rest))) == "one" &&
                         toLower(std::string(all[1].in(rest))) == "of";
    std::vector<std::string> texts;
    for (size_t i = isOneOf ? 2 : 0; i < all.size(); ++i) {
        texts.emplace_back(all[i].contentIn(rest));
    }
    if (texts.empty()) {
        mistake("the text is missing");
    } else if (texts.size() > 1 && !isOneOf) {
        mistake("'say' expects one text; write 'say one of' before several, and several texts "
                "behind each other as one 'expect' each");
    } else {
        TestCommand& command = add(Kind::say);
        command.isOneOf = isOneOf;
        command.texts = std::move(texts);
    }
}

void TestReader::readWithin(Kind kind, const std::string& rest)
{
    const size_t blank = std::min(rest.find_first_of(" \t"), rest.size());
    const std::string unit = toLower(trimmed(rest.substr(blank)));
    const std::optional<double> amount = amountIn(rest.substr(0, blank));
    const bool isSteps = unit == "steps" || unit == "step";
    const bool isSeconds = unit == "seconds" || unit == "second" || unit == "s";
    if (!amount || (!isSteps && !isSeconds)) {
        mistake("'" + rest +
                "' is neither a number of steps nor of seconds: 20 steps, 1.5 seconds");
        return;
    }
    TestCommand& command = add(kind);
    command.amount = *amount;
    command.unit = isSteps ? TestCommand::Unit::steps : TestCommand::Unit::seconds;
}

// "count == 3". False when the text is no comparison.
bool TestReader::readComparison(const std::string& text)
{
    const char* const kOperators = "=!<>";
    const size_t begin = text.find_first_of(std::string("\"") + kOperators);
    const std::string written = trimmed(text.substr(0, begin));
    const bool isName = !written.empty() && written.find_first_of(" \t") == std::string::npos &&
                        toLower(written) != "say";
    if (begin == std::string::npos || text[begin] == '"' || !isName) {
        return false;
    }
    const size_t end = std::min(text.find_first_not_of(kOperators, begin), text.size());
    const std::string comparison = text.substr(begin, end - begin);
    const std::vector<std::string> known = {"==", "!=", "<", ">", "<=", ">="};
    const std::string name = book.variables.count(written) != 0 ? written : toLower(written);
    const std::optional<uint64_t> value = wholeNumber(trimmed(text.substr(end)), kLargestValue);
    if (book.variables.count(name) == 0) {
        mistake("the script has no variable '" + written + "'");
    } else if (std::find(known.begin(), known.end(), comparison) == known.end()) {
        mistake("'" + comparison + "' does not compare: == != < > <= >=");
    } else if (!value) {
        mistake("'" + trimmed(text.substr(end)) + "' is no value of a variable: 0 to 65535");
    } else {
        TestCommand& command = add(Kind::variable);
        command.name = name;
        command.comparison = comparison;
        command.count = *value;
    }
    return true;
}

// As the script has to write it: a text with quotes inside has none around it.
std::string written(const std::string& text)
{
    return text.find('"') == std::string::npos ? "\"" + text + "\"" : text;
}

}  // namespace

std::optional<double> amountIn(const std::string& text)
{
    constexpr size_t kMostCharacters = 9;
    const bool isNumber = !text.empty() && text.size() <= kMostCharacters && text[0] != '.' &&
                          text.find_first_not_of("0123456789.") == std::string::npos &&
                          std::count(text.begin(), text.end(), '.') <= 1;
    return isNumber ? std::make_optional(toDouble(text.c_str())) : std::nullopt;
}

std::optional<BookTest> readBookTest(const std::string& text, const Book& book,
                                     std::vector<TestMessage>& mistakes)
{
    return TestReader(book, mistakes).read(text);
}

std::string tapLineOf(uint16_t code, const Book& book)
{
    if (code != 0 && (code == book.game.replayCode || code == book.game.stopCode)) {
        return code == book.game.stopCode ? "stop\n" : "replay\n";
    }
    for (const auto& [name, areaCode] : book.areas) {
        if (areaCode == code && name.find('"') == std::string::npos) {
            // Quotes keep comments away.
            const bool needsQuotes = name.find_first_of("#' \t") != std::string::npos;
            return "tap " + (needsQuotes ? "\"" + name + "\"" : name) + "\n";
        }
    }
    return "tap " + std::to_string(code) + "\n";
}

std::string expectationsOf(const Outcome& outcome, const Book& book)
{
    std::string lines;
    for (const Heard& heard : outcome.heard) {
        const pen::Sound& sound = heard.sound;
        lines += sound.choices.size() > 1 ? "expect say one of" : "expect say";
        for (const uint16_t media : sound.choices) {
            lines += " " + written(book.texts.at(media).text);
        }
        lines += "\n";
    }
    if (outcome.heard.empty()) {
        lines += "expect silence\n";
    }
    for (const auto& [name, change] : outcome.variables) {
        lines += "expect " + name + " == " + std::to_string(change.now) + "\n";
    }
    return lines;
}

}  // namespace play
