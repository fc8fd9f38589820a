// The speech of a book of many texts with the real programs: on all cores, as a build does it,
// against one text after the other. In turns, a part of the texts each, so that what else the
// machine does meets both. Ends with 1 when they take more than 0.6 of the time.

#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <string>

#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "programs/TerminalRunner.h"
#include "publish/SoundFiles.h"

namespace {

constexpr int kTexts = 200;
constexpr int kTurns = 5;
constexpr double kMostOfTheTime = 0.6;  // on two cores

// Does the works as a runner that knows no better.
class OneAfterTheOther : public TerminalRunner
{
    void doAll(const std::vector<ProgramWork>& works,
               const std::function<bool()>& mayBegin) override
    {
        ProcessRunner::doAll(works, mayBegin);
    }
};

Oid::OidProject bookIn(const QTemporaryDir& folder, int turn)
{
    Oid::OidProject book;
    book.projectPath = folder.filePath(QStringLiteral("book.oidpro")).toStdString();
    for (int i = 0; i < kTexts / kTurns; ++i) {
        const std::string name = "text_" + std::to_string(turn) + "_" + std::to_string(i);
        book.compiler.talkTexts[name] = {i % 2 == 0 ? "adam" : "eve",
                                         "This is what the cow number " + std::to_string(i) +
                                             " has to say about the weather on the farm."};
    }
    return book;
}

// The seconds that the texts of a turn take; negative when they fail.
double secondsFor(ProcessRunner& runner, int turn)
{
    const QTemporaryDir folder;
    const Oid::OidProject book = bookIn(folder, turn);
    const auto start = std::chrono::steady_clock::now();
    const bool isComplete = createSoundFiles(book, runner) == SpeechOutcome::complete;
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    return isComplete ? time.count() : -1;
}

}  // namespace

int main()
{
    Platform::setEnvironmentVariable("PATH", PLINKETT_BIN_DIR "/tools/text2speech_win:" +
                                                 Platform::searchPath());
    OneAfterTheOther one;
    TerminalRunner all;
    double alone = 0;
    double together = 0;
    for (int turn = 0; turn < kTurns; ++turn) {
        const double slow = secondsFor(one, turn);
        const double fast = secondsFor(all, turn);
        if (slow < 0 || fast < 0) {
            return 1;
        }
        printf("%d texts: %5.2f s one after the other, %5.2f s on all cores\n", kTexts / kTurns,
               slow, fast);
        alone += slow;
        together += fast;
    }
    printf("%d texts: %5.2f s one after the other, %5.2f s on all cores: %.2f of the time\n",
           kTexts, alone, together, together / alone);
    return together <= kMostOfTheTime * alone ? 0 : 1;
}
