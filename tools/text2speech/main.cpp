#include <QString>

#include <cstdio>

#include "base/PlatformProcess.h"
#include "tools/text2speech/Languages.h"
#include "tools/text2speech/Speech.h"

namespace {

constexpr char kHelp[] =
    "Usage: Text2Speech [OPTIONS] -f FILE.wav -t TEXT\n"
    "\n"
    "Speaks a text into a WAV file, by espeak-ng.\n"
    "\n"
    "  -f FILE.wav  the file\n"
    "  -t TEXT      what is said (UTF-8)\n"
    "  -v LANGUAGE  the language, such as en (the default), de or fr\n"
    "  -a AGE       of the speaker, 1 to 99 years (30)\n"
    "  -g f|m       a woman or a man (m)\n"
    "  -q           quiet: only errors are printed\n"
    "  -l           lists the languages\n"
    "  -h           prints this help\n"
    "\n"
    "Messages come in Latin-1 instead of UTF-8 while the environment variable\n"
    "TEXT2SPEECH_LATIN1 is set.\n";

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

int listLanguages()
{
    Languages languages;
    const std::string problem = findLanguages(languages);
    if (!problem.empty()) {
        return fail(problem);
    }
    for (const auto& [name, language] : languages) {
        printf("%-20s %s\n", name.c_str(), language.title.c_str());
    }
    return 0;
}

int carryOut(const Request& request)
{
    if (!request.error.empty()) {
        return fail(request.error + "\nTry 'Text2Speech -h'.");
    }
    if (request.help) {
        fputs(kHelp, stdout);
        return 0;
    }
    if (request.list) {
        return listLanguages();
    }
    const std::string problem = speak(request);
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
