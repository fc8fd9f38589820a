#include "speech/SpeechProgram.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"

// Our speech program prints in the encoding that its output is shown in. A variable, not an option:
// another speech program may take its place.
static Surroundings readableMessages(bool readsLatin1)
{
    return {{}, {{"TEXT2SPEECH_LATIN1", readsLatin1 ? "1" : ""}}};
}

ProgramCall callToSpeak(const std::string& text, const ttbasic::VOICE& voice,
                        const std::string& speechFile, bool readsLatin1)
{
    return {"Text2Speech.exe",
            {"-q", "-v", voice.language, "-a", itostr(voice.age), "-g", voice.female ? "f" : "m",
             "-f", Platform::nativePath(speechFile), "-t", text},
            readableMessages(readsLatin1)};
}

// Intended: not undone, and only the first of the two folders is looked for, so that a second build
// adds nothing.
void putToolsOnPath()
{
    const std::string tools = Platform::nativePath(FileSystem::exeDirectory() + "\\tools\\");
    const std::string speech = tools + "text2speech_win" + Platform::searchPathSeparator;
    const std::string path = Platform::searchPath();
    if (path.find(speech) == std::string::npos) {
        const std::string sound =
            Platform::nativePath(tools + "ffmpeg\\bin") + Platform::searchPathSeparator;
        Platform::setEnvironmentVariable("PATH", speech + sound + path);
    }
}
