#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <limits>

#include "app/cli/Commands.h"
#include "app/cli/PlayableBook.h"
#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "play/Coverage.h"
#include "play/Exploration.h"
#include "play/TestRun.h"

namespace {

// Those beside the project, in order of their names.
std::vector<std::string> testFilesBeside(const std::string& project)
{
    const QFileInfo info(QString::fromStdString(project));
    const std::string folder =
        project.substr(0, project.size() - info.fileName().toStdString().size());
    std::vector<std::string> files;
    for (const QString& name : info.dir().entryList({"*.booktest"}, QDir::Files, QDir::Name)) {
        files.push_back(folder + name.toStdString());
    }
    return files;
}

void printMessages(const std::string& file, const std::vector<play::TestMessage>& messages)
{
    for (const play::TestMessage& message : messages) {
        printf("%s:%d: %s\n", file.c_str(), message.line, message.text.c_str());
    }
}

// "3 taps", "1 tap".
std::string counted(std::size_t count, const std::string& what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

// Runs the tests of a file; true when all is as expected.
bool runFile(const std::string& file, const play::Book& book, play::Reached& reached)
{
    const std::optional<QByteArray> text = readInput(file);
    if (!text) {
        fprintf(stderr, "%s", FileSystem::cannotOpen(file).c_str());
        return false;
    }
    std::vector<play::TestMessage> mistakes;
    const std::optional<play::BookTest> test =
        play::readBookTest(text->toStdString(), book, mistakes);
    printMessages(file, mistakes);
    if (!test) {
        printf("%s: not run\n", file.c_str());
        return false;
    }
    const play::TestResult result = play::runBookTest(*test, book);
    printMessages(file, result.failures);
    reached.add(result.reached);
    const std::string outcome = result.failures.empty()
                                    ? "all as expected"
                                    : counted(result.failures.size(), "line") + " failed";
    printf("%s: %s, %s: %s\n", file.c_str(), counted(result.taps, "tap").c_str(),
           counted(result.expectations, "expectation").c_str(), outcome.c_str());
    return result.failures.empty();
}

bool runFiles(const std::vector<std::string>& files, const play::Book& book, play::Reached& reached)
{
    bool areAllFine = true;
    for (const std::string& file : files) {
        areAllFine = runFile(file, book, reached) && areAllFine;
    }
    return areAllFine;
}

std::string partOf(const play::Coverage::Part& part, const char* what)
{
    return std::to_string(part.reached) + " of " + std::to_string(part.all) + " " + what;
}

void printCoverage(const play::Coverage& coverage)
{
    printf("The tests reach %s, %s, %s.\n", partOf(coverage.lines, "lines").c_str(),
           partOf(coverage.branches, "branches").c_str(), partOf(coverage.areas, "areas").c_str());
    for (const std::string& missing : coverage.missing) {
        printf("%s\n", missing.c_str());
    }
}

void printFinding(const play::Exploration::Finding& finding, const play::Book& book)
{
    const std::string statement = play::statementOf(book, finding.incident.line);
    printf("%s (tap %llu, on %s)%s\n", wordsOf(finding.incident).c_str(),
           static_cast<unsigned long long>(finding.taps), finding.area.c_str(),
           statement.empty() ? "" : (": " + statement).c_str());
}

// True when nothing but silence was found, which may be meant.
bool exploreBook(const play::Book& book, std::uint64_t taps, std::uint64_t seed)
{
    const play::Exploration found = play::explore(book, taps, seed);
    printf("Random taps: %llu, on %zu of %zu areas.\n", static_cast<unsigned long long>(taps),
           found.areasTouched, book.areas.size());
    for (const play::Exploration::Finding& finding : found.findings) {
        printFinding(finding, book);
    }
    for (const std::string& area : found.silentAreas) {
        printf("area %s: nothing is ever said\n", area.c_str());
    }
    return found.findings.empty();
}

// What was asked for.
struct Request
{
    std::uint64_t taps = 0;  // 0: none at random
    std::uint64_t seed = 1;
    std::string mistake;
};

Request requestOf(const Arguments& arguments)
{
    Request request;
    const std::string wrong = "N must be a number from 0 on, not '";
    if (arguments.has("--explore") && !readSeed(arguments.value("--explore"), request.taps)) {
        request.mistake = wrong + arguments.value("--explore") + "'";
    } else if (arguments.has("--seed") && !readSeed(arguments.value("--seed"), request.seed)) {
        request.mistake = wrong + arguments.value("--seed") + "'";
    }
    return request;
}

int test(const Arguments& arguments)
{
    const Request request = requestOf(arguments);
    if (!request.mistake.empty()) {
        return usageError(request.mistake);
    }
    const std::string& project = arguments.operands[0];
    const std::optional<play::Book> book = openBookOfProject(project);
    if (!book) {
        return kFailed;
    }
    std::vector<std::string> files(arguments.operands.begin() + 1, arguments.operands.end());
    if (files.empty()) {
        files = testFilesBeside(project);
    }
    bool isFine = !files.empty() || arguments.has("--explore");
    if (!isFine) {
        fprintf(stderr, "Error: There is no file *.booktest beside '%s'\n", project.c_str());
    }
    play::Reached reached;
    isFine = runFiles(files, *book, reached) && isFine;
    if (arguments.has("--coverage")) {
        printCoverage(coverageOf(*book, reached));
    }
    if (arguments.has("--explore")) {
        isFine = exploreBook(*book, request.taps, request.seed) && isFine;
    }
    return isFine ? kFine : kFailed;
}

}  // namespace

Command testCommand()
{
    return {"test",
            "PROJECT [FILE...]",
            "Runs the book tests of the files, or all of *.booktest beside the project.",
            {{"--coverage", nullptr, "then list what of script and areas no test reached"},
             {"--explore", "N", "then tap N times at random and tell what goes wrong"},
             {"--seed", "N", "where the chance of --explore begins"}},
            test,
            std::numeric_limits<std::size_t>::max()};
}
