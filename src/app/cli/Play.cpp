#include <cstdio>
#include <iostream>

#include "app/cli/Commands.h"
#include "app/cli/OutcomeAsText.h"
#include "app/cli/PlayableBook.h"
#include "play/BookTest.h"

namespace {

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

// Without white space around it, and without a byte-order mark.
std::string trimmed(const std::string& line)
{
    const std::string kMark = "\xEF\xBB\xBF";
    const size_t begin = startsWith(line, kMark) ? kMark.size() : 0;
    const size_t first = line.find_first_not_of(" \t\r", begin);
    const size_t last = line.find_last_not_of(" \t\r");
    return first == std::string::npos ? std::string() : line.substr(first, last + 1 - first);
}

// Does what a line says; the reason when it cannot: "there is no area 'cwo'".
class Reader
{
public:
    explicit Reader(play::PlayedBook& playedBook) : played(playedBook) {}

    std::string act(const std::string& line);

private:
    std::string wait(const std::string& seconds);
    std::string tap(const std::string& name);
    std::string tapSpecial(const std::string& name, uint16_t code);

    play::PlayedBook& played;
};

std::string Reader::act(const std::string& line)
{
    const std::string kWait = "wait ";
    const std::string kTap = "tap ";
    const pen::PenGame& game = played.book().game;
    if (line == "start") {
        played.start();
        return {};
    }
    if (line == "replay" || line == "stop") {
        return tapSpecial(line, line == "stop" ? game.stopCode : game.replayCode);
    }
    if (startsWith(line, kWait)) {
        return wait(trimmed(line.substr(kWait.size())));
    }
    return tap(startsWith(line, kTap) && played.book().areas.count(line) == 0
                   ? trimmed(line.substr(kTap.size()))
                   : line);
}

std::string Reader::wait(const std::string& seconds)
{
    const std::optional<double> amount = play::amountIn(seconds);
    if (!amount) {
        return "'" + seconds + "' is no number of seconds";
    }
    played.wait(*amount);
    return {};
}

std::string Reader::tap(const std::string& name)
{
    const std::optional<uint16_t> code = codeOf(played.book(), name);
    if (!code) {
        return played.book().areas.empty() ? "'" + name + "' is no code"
                                           : "there is no area '" + name + "'";
    }
    played.tap(*code);
    return {};
}

std::string Reader::tapSpecial(const std::string& name, uint16_t code)
{
    if (code == 0) {
        return "the game has no code for '" + name + "'";
    }
    played.tap(code);
    return {};
}

ExitStatus playLines(play::PlayedBook& played, bool isJson)
{
    Reader reader(played);
    ExitStatus status = kFine;
    int number = 0;
    for (std::string line; std::getline(std::cin, line);) {
        ++number;
        line = trimmed(line);
        if (line.empty()) {
            continue;
        }
        const std::string problem = reader.act(line);
        if (!problem.empty()) {
            fprintf(stderr, "Error: line %d: %s\n", number, problem.c_str());
            status = kFailed;
            continue;
        }
        played.runToRest();
        const auto textOf = isJson ? outcomeAsJson : outcomeAsLines;
        fputs(textOf(line, played.outcome(), played.book()).c_str(), stdout);
        fflush(stdout);
    }
    return status;
}

int playGame(const Arguments& arguments)
{
    pen::PenOptions options;
    if (arguments.has("--seed") && !readSeed(arguments.value("--seed"), options.seed)) {
        return usageError("N must be a number from 0 on, not '" + arguments.value("--seed") + "'");
    }
    std::optional<play::Book> book = openBook(arguments.operands[0]);
    if (!book) {
        return kFailed;
    }
    play::PlayedBook played(std::move(*book), options);
    return playLines(played, arguments.has("--json"));
}

}  // namespace

Command playCommand()
{
    return {"play",
            "FILE.gme|PROJECT",
            "Plays a game without a pen: reads taps, one a line, and tells what comes of each.",
            {{"--seed", "N", "where chance begins; the same number, the same choices"},
             {"--json", nullptr, "one JSON object a tap instead of lines"}},
            playGame};
}
