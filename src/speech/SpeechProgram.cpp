#include "speech/SpeechProgram.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"

namespace {

// Our speech program prints in the encoding that its output is shown in, and hands speed and pitch
// to engines that use them. Variables, not options: another speech program may take its place.
Surroundings surroundingsFor(const ttbasic::VOICE& voice, bool readsLatin1)
{
    return {{},
            {{"TEXT2SPEECH_LATIN1", readsLatin1 ? "1" : ""},
             {"TEXT2SPEECH_SPEED", itostr(voice.speed)},
             {"TEXT2SPEECH_PITCH", itostr(voice.pitch)}}};
}

// Where our tools lie.
std::string toolsFolder()
{
    return Platform::nativePath(FileSystem::exeDirectory() + "\\tools\\");
}

bool isOnPath(const std::string& folder)
{
    return Platform::searchPath().find(folder + Platform::searchPathSeparator) != std::string::npos;
}

}  // namespace

ProgramCall callToSpeak(const std::string& text, const ttbasic::VOICE& voice,
                        const std::string& speechFile, bool readsLatin1)
{
    return {"Text2Speech.exe",
            {"-q", "-v", voice.language, "-a", itostr(voice.age), "-g", voice.female ? "f" : "m",
             "-f", Platform::nativePath(speechFile), "-t", text},
            surroundingsFor(voice, readsLatin1)};
}

// Before the first text is spoken our folder is not on PATH yet, but it will come first.
std::string speechProgramFolder()
{
    const std::string ours = toolsFolder() + "text2speech_win";
    return isOnPath(ours)
               ? FileSystem::getDirectoryOfPath(Platform::programToStart("Text2Speech.exe"))
               : ours;
}

// Intended: not undone, and only the first of the two folders is looked for, so that a second build
// adds nothing.
void putToolsOnPath()
{
    const std::string tools = toolsFolder();
    const std::string speech = tools + "text2speech_win";
    if (!isOnPath(speech)) {
        const char separator = Platform::searchPathSeparator;
        const std::string sound = Platform::nativePath(tools + "ffmpeg\\bin");
        Platform::setEnvironmentVariable("PATH", speech + separator + sound + separator +
                                                     Platform::searchPath());
    }
}
