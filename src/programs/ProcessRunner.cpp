#include "programs/ProcessRunner.h"

#include <algorithm>
#include <utility>

#include "base/TextHelpers.h"

// A single quote character is a word, not a pair of quotes.
static std::string withoutQuotes(const std::string& word)
{
    const bool quoted = word.size() > 1 && word.front() == '"' && word.back() == '"';
    return quoted ? word.substr(1, word.size() - 2) : word;
}

std::vector<std::string> commandWords(const std::string& commandLine)
{
    std::vector<std::string> words;
    SplitStringKeepQuotes(commandLine, words, false);
    std::transform(words.begin(), words.end(), words.begin(), withoutQuotes);
    const auto isNamed = [](const std::string& word) { return !word.empty(); };
    words.erase(words.begin(), std::find_if(words.begin(), words.end(), isNamed));
    return words;
}

bool ProcessRunner::run(const std::string& program, const std::vector<std::string>& arguments,
                        bool wait, const Surroundings& surroundings)
{
    return !isRunning() && start(program, arguments, wait, surroundings);
}

bool ProcessRunner::exec(const KVString& commandLine, bool wait)
{
    std::vector<std::string> words = commandWords(QString(commandLine).toStdString());
    if (words.empty()) {
        return run("", {}, wait);
    }
    return run(words.front(), {words.begin() + 1, words.end()}, wait);
}

void ProcessRunner::runAll(const std::vector<ProgramWork>& works,
                           const std::function<bool()>& mayBegin)
{
    if (isRunning() || works.size() < kMany) {  // each start is refused while a program is running
        ProcessRunner::doAll(works, mayBegin);
    } else {
        doAll(works, mayBegin);
    }
}

void ProcessRunner::doAll(const std::vector<ProgramWork>& works,
                          const std::function<bool()>& mayBegin)
{
    for (const ProgramWork& work : works) {
        if (!mayBegin()) {
            return;
        }
        int code = 0;
        while (const std::optional<ProgramCall> call = work.next(code)) {
            const bool started = run(call->program, call->arguments, true, call->surroundings);
            code = started ? exitCode() : -1;
        }
        work.shown();
    }
}

void ProcessRunner::whenEnded(std::function<void()> step)
{
    steps.push_back(std::move(step));
    if (!isRunning()) {
        takeSteps();
    }
}

void ProcessRunner::takeSteps()
{
    for (const auto& step : std::exchange(steps, {})) {
        step();
    }
}
