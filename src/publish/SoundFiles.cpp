#include "publish/SoundFiles.h"

#include <vector>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "programs/ProcessRunner.h"
#include "speech/SpeechProgram.h"

namespace {

using Voices = std::map<std::string, ttbasic::VOICE>;

constexpr char kSound[] = ".ogg";
constexpr char kSpeech[] = ".wav";  // for a while only
constexpr int kStopped = -1;        // exit code of a program that crashed or was stopped

// A text that has no audio file yet.
struct NewText
{
    std::string audioName;
    ttbasic::TALKTEXT said;
};

std::vector<NewText> newTexts(const Oid::OidProject& project, const std::string& folder)
{
    std::vector<NewText> texts;
    const std::string start = folder + FileSystem::directorySeparator;
    for (const auto& [audioName, said] : project.compiler.talkTexts) {
        std::string file = start;
        file += audioName + kSound;
        if (!FileSystem::doesFileExist(file)) {
            texts.push_back({audioName, said});
        }
    }
    return texts;
}

// A text as a message shows it: long ones are cut, between two characters.
std::string shown(const std::string& text)
{
    constexpr size_t kLongest = 200;  // bytes
    if (text.size() <= kLongest) {
        return text;
    }
    size_t end = kLongest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
        --end;
    }
    return text.substr(0, end) + "...";
}

bool refuse(const std::string& text, const std::string& reason, ProcessRunner& runner)
{
    runner.echo(("Error: The text '" + shown(text) + "' " + reason + "\n").c_str());
    return false;
}

bool canBeMade(const NewText& text, ProcessRunner& runner)
{
    constexpr size_t kLongestName = 255;  // bytes, on every usual file system
    if (text.audioName.size() + sizeof kSound - 1 > kLongestName) {
        return refuse(text.said.text, "is too long for the name of an audio file", runner);
    }
    if (text.said.text.size() > Platform::longestArgument) {
        return refuse(text.said.text, "is too long for the speech program", runner);
    }
    return true;
}

bool speak(const std::string& text, const ttbasic::VOICE& voice, const std::string& speech,
           ProcessRunner& runner)
{
    const ProgramCall call = callToSpeak(text, voice, speech, runner.readsLatin1());
    return runner.run(call.program, call.arguments, true, call.surroundings);
}

bool convert(const std::string& speech, const std::string& sound, ProcessRunner& runner)
{
    return runner.run("ffmpeg.exe",
                      {"-hide_banner", "-loglevel", "error", "-i", Platform::nativePath(speech),
                       "-ar", "22050", "-ac", "1", Platform::nativePath(sound)},
                      true);
}

// The end of the speech program is not looked at: without its file the conversion fails.
bool makeSoundFile(const NewText& text, const Voices& voices, const std::string& folder,
                   ProcessRunner& runner)
{
    const ttbasic::VOICE& voice = voices.at(text.said.voice);
    if (!canBeMade(text, runner)) {
        return false;
    }
    const std::string base = folder + FileSystem::directorySeparator + text.audioName;
    const std::string speech = base + kSpeech;
    const std::string sound = base + kSound;
    if (speak(text.said.text, voice, speech, runner) && runner.exitCode() == kStopped) {
        FileSystem::deleteFile(speech);  // half a text, too
    }
    if (!convert(speech, sound, runner) || runner.exitCode() != 0) {
        FileSystem::deleteFile(sound);  // half a file would pass for a whole one ever after
    }
    if (!FileSystem::doesFileExist(sound)) {
        return refuse(text.said.text, "has no audio file", runner);
    }
    FileSystem::deleteFile(speech);
    return true;
}

}  // namespace

SpeechOutcome createSoundFiles(const Oid::OidProject& project, ProcessRunner& runner,
                               const SpeechProgress& progress)
{
    const std::string folder = audioFolder(project);
    const FileSystem::WorkingFolder sameAfterwards;
    putToolsOnPath();
    const std::vector<NewText> texts = newTexts(project, folder);
    if (texts.empty()) {
        return SpeechOutcome::complete;
    }
    FileSystem::createDirectory(folder);

    SpeechOutcome outcome = SpeechOutcome::complete;
    const int total = static_cast<int>(texts.size());
    for (int done = 0; done < total; ++done) {
        if (progress && !progress(done, total)) {
            return SpeechOutcome::cancelled;
        }
        if (!makeSoundFile(texts[static_cast<size_t>(done)], project.compiler.voices, folder,
                           runner)) {
            outcome = SpeechOutcome::incomplete;
        }
    }
    if (progress) {
        progress(total, total);
    }
    return outcome;
}
