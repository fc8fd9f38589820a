#include <QString>

#include <cstdio>

#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"
#include "speech/Engines.h"
#include "tools/text2speech/Speech.h"

namespace {

constexpr char kHelp[] =
    "Usage: Text2Speech [OPTIONS] -f FILE.wav -t TEXT\n"
    "\n"
    "Speaks a text into a WAV file, by espeak-ng or by what engines.ini names for the\n"
    "language: the one of your own settings, then the one beside this program.\n"
    "\n"
    "  -f FILE.wav  the file\n"
    "  -t TEXT      what is said (UTF-8)\n"
    "  -v LANGUAGE  the language, such as en (the default), de or fr\n"
    "  -a AGE       of the speaker, 1 to 99 years (30)\n"
    "  -g f|m       a woman or a man (m)\n"
    "  -q           quiet: only errors are printed\n"
    "  -l           lists the languages, with the engine where it is not espeak-ng\n"
    "  -e           prints which engine speaks for the -v, -a and -g given\n"
    "  -h           prints this help\n"
    "\n"
    "Messages come in Latin-1 instead of UTF-8 while the environment variable\n"
    "TEXT2SPEECH_LATIN1 is set. TEXT2SPEECH_SPEED and TEXT2SPEECH_PITCH, 1 to 99 (3),\n"
    "are for engines whose command asks for them.\n";

// In UTF-8; in Latin-1 for a console that shows the output so. What that does not have becomes a
// question mark.
void print(FILE* stream, const std::string& text)
{
    const bool latin1 = !Platform::environmentVariable("TEXT2SPEECH_LATIN1").empty();
    const QByteArray bytes =
        latin1 ? QString::fromStdString(text).toLatin1() : QByteArray::fromStdString(text);
    fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

int fail(const std::string& reason)
{
    print(stderr, "Text2Speech: " + reason + "\n");
    return 1;
}

// By their names, with what is shown of them.
using Titles = std::map<std::string, std::string>;

// Languages that an engine speaks only because of "*" are those that espeak-ng has, too.
Titles titlesOf(const Languages& languages, const Engines& engines)
{
    Titles titles;
    for (const auto& [name, language] : languages) {
        const Engine* const engine = engines.find(name);
        titles[name] =
            engine == nullptr ? language.title : language.title + ", by " + engine->program();
    }
    for (const auto& [name, program] : engines.programs()) {
        titles.emplace(name, "by " + program);
    }
    return titles;
}

int listLanguages(const Engines& engines)
{
    if (!engines.problem().empty()) {
        return fail(engines.problem());
    }
    Languages languages;
    const std::string problem = spokenLanguages(languages);
    for (const auto& [name, title] : titlesOf(languages, engines)) {
        print(stdout, name + std::string(name.size() < 20 ? 20 - name.size() : 0, ' ') + ' ' +
                          title + '\n');
    }
    return problem.empty() ? 0 : fail(problem);
}

int tellEngine(const Engines& engines, const ttbasic::VOICE& voice)
{
    if (!engines.problem().empty()) {
        return fail(engines.problem());
    }
    print(stdout, engines.identity(voice) + '\n');
    return 0;
}

void takeNumber(int& number, const char* variable)
{
    const int value = toInt(Platform::environmentVariable(variable).c_str());
    if (value >= 1 && value <= 99) {
        number = value;
    }
}

int carryOut(Request request)
{
    if (!request.error.empty()) {
        return fail(request.error + "\nTry 'Text2Speech -h'.");
    }
    if (request.help) {
        fputs(kHelp, stdout);
        return 0;
    }
    const Engines engines(engineFiles(Platform::nativePath(Platform::exeDirectory())));
    if (request.list) {
        return listLanguages(engines);
    }
    takeNumber(request.voice.speed, "TEXT2SPEECH_SPEED");
    takeNumber(request.voice.pitch, "TEXT2SPEECH_PITCH");
    if (request.tellEngine) {
        return tellEngine(engines, request.voice);
    }
    const std::string problem = speak(request, engines);
    if (!problem.empty()) {
        return fail(problem);
    }
    if (!request.quiet) {
        print(stdout, request.file + "\n");
    }
    return 0;
}

}  // namespace

int main()
{
    Platform::useUtf8ForSystemTexts();
    std::vector<std::string> words = Platform::commandLineArguments();
    words.erase(words.begin(), words.begin() + (words.empty() ? 0 : 1));  // the program
    return carryOut(readRequest(words));
}
