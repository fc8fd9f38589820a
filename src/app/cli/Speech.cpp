#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdarg>
#include <cstdio>
#include <set>

#include "app/cli/Commands.h"
#include "app/cli/SpeechProgress.h"
#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"
#include "oid/OpenProject.h"
#include "oid/OutputLock.h"
#include "programs/TerminalRunner.h"
#include "publish/BuildDriver.h"
#include "publish/SoundFiles.h"
#include "recording/BookSounds.h"
#include "speech/Engines.h"
#include "speech/SpeechImport.h"
#include "speech/SpeechIndex.h"
#include "speech/SpeechProgram.h"
#include "speech/SpeechTexts.h"
#include "speech/Tidy.h"

namespace {

int printToStandardError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int size = vfprintf(stderr, format, arguments);
    va_end(arguments);
    return size;
}

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

// The texts of a project, and its audio folder.
struct SpokenBook
{
    Oid::OidProject project;
    std::string folder;
    SpeechIndex index{""};
    std::vector<SpeechText> texts;
};

bool compile(Oid::OidProject& project, const std::string& path, const DiagnosticSink& sink)
{
    if (!Oid::openProject(project, path, sink)) {
        return false;
    }
    project.compiler.reportTo(sink);
    return compileScript(project.compiler, false);
}

// False, with the messages, when the project cannot be opened or its script has mistakes.
bool readBook(SpokenBook& book, const Arguments& arguments,
              PrintFunction print = printToStandardOutput)
{
    Platform::useUtf8ForSystemTexts();
    if (!compile(book.project, arguments.operands[0], printWith(print))) {
        return false;
    }
    putToolsOnPath();
    book.folder = audioFolder(book.project);
    book.index = SpeechIndex(book.folder);
    if (!book.index.problem().empty()) {
        print("Warning: %s\n", book.index.problem().c_str());
    }
    const Engines engines = currentEngines();
    if (!engines.problem().empty()) {
        print("Warning: %s\n", engines.problem().c_str());
    }
    book.texts = speechTexts(book.project, engines);
    lookUp(book.texts, book.folder, book.index);
    return true;
}

// As long as it lives no other program changes the book's audio files; false, with a message, when
// one does.
bool take(OutputLock& lock)
{
    return lock.take([](const char* line) { fputs(line, stdout); });
}

// Likewise; what another program has noted until then is read again.
bool take(OutputLock& lock, SpokenBook& book)
{
    if (!take(lock)) {
        return false;
    }
    book.index = SpeechIndex(book.folder);
    return true;
}

bool hasFile(const SpeechText& text)
{
    return text.state == SpeechState::spoken || text.state == SpeechState::recorded ||
           text.state == SpeechState::stale;
}

// Whose file is replaced is looked at now: the author may have put one there in the meantime.
recording::Places placesOf(const SpeechText& text, SpokenBook& book)
{
    recording::Places places;
    places.target = text.file;
    places.originals = recording::originalsOf(book.folder);
    places.keepsEarlier = book.index.spokenInto(text.audioName) == nullptr;
    return places;
}

// "901-audio/say_adam_Moo.ogg", as beside the project.
std::string shownFile(const SpokenBook& book, const std::string& name)
{
    return FileSystem::getFilenameOfPath(book.folder) + "/" + name;
}

std::string audioFileName(const SpeechText& text)
{
    return FileSystem::getFilenameOfPath(text.file);
}

// --- list ----------------------------------------------------------------------------------------

std::string reasonOf(const SpeechText& text)
{
    switch (text.refusal) {
    case Refusal::longName:
        return " (too long for the name of an audio file)";
    case Refusal::longText:
        return " (too long for the speech program)";
    case Refusal::sharedName:
        return " (shares its audio file with the text in line " + itostr(text.inItsPlace.line) +
               ")";
    case Refusal::none:
        break;
    }
    return {};
}

// "spoken    12    1.5 s  eve: Moo"
void printText(const SpeechText& text)
{
    const std::string line = text.place.line != 0 ? itostr(text.place.line) : "-";
    char seconds[32] = "-";
    if (hasFile(text)) {
        snprintf(seconds, sizeof seconds, "%.1f s", secondsOf(text.file));
    }
    printf("%-8s %5s %8s  %s: %s%s\n", nameOf(text.state), line.c_str(), seconds,
           text.said.voice.c_str(), text.said.text.c_str(), reasonOf(text).c_str());
}

QJsonObject objectOf(const SpeechText& one, const SpokenBook& book)
{
    const QJsonValue none;
    return {{"name", text(one.audioName)},
            {"voice", text(one.said.voice)},
            {"text", text(one.said.text)},
            {"line", one.place.line != 0 ? QJsonValue(one.place.line) : none},
            {"file", text(shownFile(book, audioFileName(one)))},
            {"seconds", hasFile(one) ? QJsonValue(secondsOf(one.file)) : none},
            {"state", nameOf(one.state)}};
}

int list(const Arguments& arguments)
{
    const bool asJson = arguments.has("--json");
    SpokenBook book;
    if (!readBook(book, arguments, asJson ? printToStandardError : printToStandardOutput)) {
        return kFailed;
    }
    QJsonArray all;
    for (const SpeechText& text : book.texts) {
        if (asJson) {
            all << objectOf(text, book);
        } else {
            printText(text);
        }
    }
    if (asJson) {
        fputs(QJsonDocument(all).toJson().constData(), stdout);
    }
    return kFine;
}

// --- speak ---------------------------------------------------------------------------------------

int speak(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!compile(project, arguments.operands[0], printWith(printToStandardOutput))) {
        return kFailed;
    }
    OutputLock lock(project, kBuildLock);
    if (!take(lock)) {
        return kFailed;
    }
    project.compiler.prepareWelcomeMessage(project.productName);
    TerminalRunner runner;
    const SpeechProgress progress =
        Platform::standardOutputIsTerminal() ? SpeechProgress(showSpeechProgress) : nullptr;
    return createSoundFiles(project, runner, progress) == SpeechOutcome::complete ? kFine : kFailed;
}

// --- import --------------------------------------------------------------------------------------

std::vector<std::string> filesIn(const QDir& folder)
{
    std::vector<std::string> files;
    for (const QFileInfo& file : folder.entryInfoList(QDir::Files, QDir::Name)) {
        files.push_back(file.filePath().toStdString());
    }
    return files;
}

std::string nameOfFile(const std::string& path)
{
    return QFileInfo(text(path)).fileName().toStdString();
}

std::string audioNames(const SpeechImport::Doubt& doubt, const SpokenBook& book)
{
    std::string names;
    for (const size_t text : doubt.texts) {
        names += (names.empty() ? "" : ", ") + book.texts[text].audioName;
    }
    return names;
}

// True when every file was taken.
bool printDoubts(const SpeechImport& import, const SpokenBook& book)
{
    for (const SpeechImport::Doubt& doubt : import.secondBest) {
        printf("Error: '%s' was not taken: another file fits %s better\n",
               nameOfFile(doubt.file).c_str(), audioNames(doubt, book).c_str());
    }
    for (const SpeechImport::Doubt& doubt : import.rivals) {
        printf("Error: '%s' was not taken: other files fit %s as well\n",
               nameOfFile(doubt.file).c_str(), audioNames(doubt, book).c_str());
    }
    for (const SpeechImport::Doubt& doubt : import.fitSeveral) {
        printf("Error: '%s' was not taken: it fits %s\n", nameOfFile(doubt.file).c_str(),
               audioNames(doubt, book).c_str());
    }
    for (const std::string& file : import.fitNothing) {
        printf("Error: '%s' fits no text\n", nameOfFile(file).c_str());
    }
    return import.secondBest.empty() && import.rivals.empty() && import.fitSeveral.empty() &&
           import.fitNothing.empty();
}

bool adopt(const SpeechImport::Match& match, SpokenBook& book)
{
    const recording::Places places = placesOf(book.texts[match.text], book);
    const recording::FileReport report = recording::adoptSound(match.file, places);
    const std::string words = report.text.toStdString();
    if (report.done == recording::FileReport::Done::failed) {
        printf("Error: %s\n", words.c_str());
        return false;
    }
    printf("%s -> %s\n", nameOfFile(match.file).c_str(), words.c_str());
    return true;
}

int import(const Arguments& arguments)
{
    SpokenBook book;
    if (!readBook(book, arguments)) {
        return kFailed;
    }
    const QDir folder(text(Platform::nativePath(arguments.operands[2])));
    if (!folder.exists()) {
        printf("Error: Can't open folder '%s'\n", arguments.operands[2].c_str());
        return kFailed;
    }
    if (folder == QDir(text(Platform::nativePath(book.folder)))) {
        printf("Error: '%s' is the audio folder of the book itself\n",
               arguments.operands[2].c_str());
        return kFailed;
    }
    OutputLock lock(book.project, kBuildLock);
    if (!take(lock, book)) {
        return kFailed;
    }
    FileSystem::createDirectory(book.folder);
    const std::vector<std::string> files = filesIn(folder);
    if (files.empty()) {
        printf("There are no files in '%s'\n", arguments.operands[2].c_str());
    }
    const SpeechImport import = matchRecordings(files, book.texts, book.index.sheetNumbers());
    bool isFine = true;
    for (const SpeechImport::Match& match : import.taken) {
        isFine = adopt(match, book) && isFine;
    }
    return printDoubts(import, book) && isFine ? kFine : kFailed;
}

// --- tidy ----------------------------------------------------------------------------------------

// All are told before the first one moves.
int tidy(const Arguments& arguments)
{
    SpokenBook book;
    if (!readBook(book, arguments)) {
        return kFailed;
    }
    const std::vector<std::string> names = unusedAudio(book.folder, book.texts);
    for (const std::string& name : names) {
        const std::string audioName = QFileInfo(text(name)).completeBaseName().toStdString();
        const bool isOurs = name == audioName + ".ogg" && book.index.spokenInto(audioName);
        printf("%s%s\n", shownFile(book, name).c_str(), isOurs ? "" : " (your own)");
    }
    if (arguments.has("--dry-run")) {
        return kFine;
    }
    OutputLock lock(book.project, kBuildLock);
    if (!take(lock)) {
        return kFailed;
    }
    int status = kFine;
    for (const std::string& name : names) {
        if (!moveToTrash(book.folder + FileSystem::directorySeparator + name)) {
            printf("Error: '%s' stays: it cannot be moved to the trash\n",
                   shownFile(book, name).c_str());
            status = kFailed;
        }
    }
    return status;
}

// --- even-out ------------------------------------------------------------------------------------

// What we spoke stays ours.
bool evenOut(const SpeechText& text, SpokenBook& book)
{
    const recording::Places places = placesOf(text, book);
    const Utterance* const spoken = book.index.spokenInto(text.audioName);
    const recording::FileReport report = recording::evenOut(places);
    const bool failed = report.done == recording::FileReport::Done::failed;
    printf("%s%s\n", failed ? "Error: " : "", report.text.toStdString().c_str());
    if (report.done == recording::FileReport::Done::written && spoken != nullptr &&
        !(book.index.remember(text.audioName, Utterance(*spoken)) && book.index.save())) {
        printf("Error: Can't write file '%s'\n", book.index.path().c_str());
        return false;
    }
    return !failed;
}

int evenOut(const Arguments& arguments)
{
    SpokenBook book;
    if (!readBook(book, arguments)) {
        return kFailed;
    }
    OutputLock lock(book.project, kBuildLock);
    if (!take(lock, book)) {
        return kFailed;
    }
    bool isFine = true;
    std::set<std::string> done;
    for (const SpeechText& text : book.texts) {
        if (hasFile(text) && done.insert(text.file).second) {
            isFine = evenOut(text, book) && isFine;
        }
    }
    return isFine ? kFine : kFailed;
}

// --- The command ---------------------------------------------------------------------------------

struct Action
{
    const char* name;
    size_t operands;     // with the project and its own name
    const char* option;  // that it knows; null for none
    int (*run)(const Arguments& arguments);
};

const std::vector<Action>& actions()
{
    static const std::vector<Action> all = {{"list", 2, "--json", list},
                                            {"speak", 2, nullptr, speak},
                                            {"import", 3, nullptr, import},
                                            {"tidy", 2, "--dry-run", tidy},
                                            {"even-out", 2, nullptr, evenOut}};
    return all;
}

// What is wrong with the words for an action; empty if nothing is.
std::string mistakeIn(const Arguments& arguments, const Action& action)
{
    const std::string name = action.name;
    if (arguments.operands.size() > action.operands) {
        return "unexpected argument '" + arguments.operands[action.operands] + "'";
    }
    if (arguments.operands.size() < action.operands) {
        return "speech PROJECT " + name + " needs FOLDER";
    }
    for (const auto& [option, value] : arguments.options) {
        if (action.option == nullptr || option != action.option) {
            return "speech PROJECT " + name + " has no option " + option;
        }
    }
    return {};
}

int speech(const Arguments& arguments)
{
    if (arguments.operands.size() < 2) {
        return usageError("speech PROJECT needs list, speak, import FOLDER, tidy or even-out");
    }
    const std::string& name = arguments.operands[1];
    for (const Action& action : actions()) {
        if (name == action.name) {
            const std::string mistake = mistakeIn(arguments, action);
            return mistake.empty() ? action.run(arguments) : usageError(mistake);
        }
    }
    return usageError("speech PROJECT does not know '" + name + "'");
}

}  // namespace

Command speechCommand()
{
    return {
        "speech",
        "PROJECT list|speak|import FOLDER|tidy|even-out",
        "Texts and their audio files: lists them; speaks what is missing or out of date; takes\n"
        "      recordings from a folder; moves files that no text uses to the trash; makes all\n"
        "      equally loud.",
        {{"--json", nullptr, "list: as one JSON array"},
         {"--dry-run", nullptr, "tidy: only tell which files it would move"}},
        speech,
        3};
}
