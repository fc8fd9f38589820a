#include "publish/SoundFiles.h"

#include <list>
#include <optional>
#include <vector>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "programs/ProcessRunner.h"
#include "recording/VoiceFile.h"
#include "speech/AudioFile.h"
#include "speech/Engines.h"
#include "speech/SpeechIndex.h"
#include "speech/SpeechProgram.h"
#include "speech/Utterance.h"
#include "ttbasic/ScriptLanguage.h"

namespace {

constexpr int kStopped = -1;  // exit code of a program that crashed, was stopped or did not start

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

// What a build knows while it speaks: the audio folder, what is remembered of it, and where the
// author is told.
class AudioMaker
{
public:
    AudioMaker(const Oid::OidProject& usedProject, ProcessRunner& usedRunner)
        : project(usedProject),
          runner(usedRunner),
          folder(audioFolder(project)),
          index(folder),
          engines(currentEngines())
    {}

    // Removes what a build left that was killed while it converted: a part of an audio file.
    void removeCutOff();
    // Removes the files that we spoke when text or voice were others.
    void removeStale();
    // Makes what is missing.
    SpeechOutcome makeMissing(const SpeechProgress& progress);
    // Files that were only touched since need not be looked into again.
    void keepWhatIsNoted();

private:
    // A text whose audio file is being made: first by the speech program, then by the converter.
    struct Making
    {
        std::string audioName;
        Utterance said;
        std::string speech;  // files
        std::string sound;
        enum class Step { speak, convert, finish } step = Step::speak;
        bool isSpeechOwn = false;  // the speech file is the author's
        std::string refused;       // why it has no file
    };

    std::list<Making> missing() const;
    std::optional<ProgramCall> next(Making& text, int exitCode);
    void expectSpeech(const std::list<Making>& texts);
    std::optional<ProgramCall> speak(Making& text);
    std::optional<ProgramCall> convert(Making& text, int exitCode);
    std::optional<ProgramCall> conversion(Making& text);
    bool convertByOurselves(const Making& text);
    void finish(Making& text, int exitCode);

    bool isStale(const std::string& audioName, const Utterance& now);
    void removeStale(const std::string& audioName, const Utterance& now);
    void remember(const Making& text);
    void tellIndexFails();
    void tellEnd(const Making& text);
    void tell(const std::string& message) { runner.echo((message + "\n").c_str()); }
    void tellRefused(const Making& text)
    {
        tell("Error: The text '" + shown(text.said.text) + "' " + text.refused);
    }

    const Oid::OidProject& project;
    ProcessRunner& runner;
    const std::string folder;
    SpeechIndex index;
    const Engines engines;
    bool indexFails = false;  // which was told
    bool complete = true;
};

// --- What is cut off -----------------------------------------------------------------------------

// Only beside a speech file of ours, which goes when the audio file is whole. So it is none of the
// author's.
void AudioMaker::removeCutOff()
{
    for (const auto& [audioName, said] : project.compiler.talkTexts) {
        const std::string sound = audioFileIn(folder, audioName);
        if (FileSystem::doesFileExist(speechFileIn(folder, audioName)) &&
            index.isSpeechOurs(audioName) && isCutOff(sound) && FileSystem::deleteFile(sound)) {
            index.forget(audioName);
            tell("The audio file of '" + shown(said.text) + "' is cut off and is made again");
        }
    }
}

// --- What is out of date -------------------------------------------------------------------------

void AudioMaker::removeStale()
{
    if (!index.problem().empty()) {
        tell("Warning: " + index.problem());
    }
    std::vector<std::pair<std::string, Utterance>> stale;
    for (const auto& [audioName, said] : project.compiler.talkTexts) {
        const Utterance now = utteranceOf(said, project.compiler.voices.at(said.voice), engines);
        if (isStale(audioName, now)) {
            stale.emplace_back(audioName, now);
        }
    }
    // What could not be noted as ours afterwards is not made anew.
    if (!stale.empty() && !index.save()) {
        tell("Error: Can't write file '" + index.path() +
             "', so audio files that are out of date stay");
        indexFails = true;
        return;
    }
    for (const auto& [audioName, now] : stale) {
        removeStale(audioName, now);
    }
}

bool AudioMaker::isStale(const std::string& audioName, const Utterance& now)
{
    const Utterance* const spoken = index.spokenInto(audioName);
    return spoken != nullptr && !soundAlike(*spoken, now);
}

void AudioMaker::removeStale(const std::string& audioName, const Utterance& now)
{
    const Utterance before = *index.spokenInto(audioName);
    const std::string file = audioFileIn(folder, audioName);
    if (!FileSystem::deleteFile(file)) {
        tell("Error: Can't remove file '" + Platform::nativePath(file) + "', which is out of date");
        return;
    }
    index.forget(audioName);
    const std::string text = "The audio file of '" + shown(now.text) + "' ";
    tell(before.text != now.text ? text + "says '" + shown(before.text) + "' and is made again"
                                 : text + "has another voice and is made again");
}

// --- What is missing -----------------------------------------------------------------------------

std::list<AudioMaker::Making> AudioMaker::missing() const
{
    std::list<Making> texts;
    for (const auto& [audioName, said] : project.compiler.talkTexts) {
        const std::string file = audioFileIn(folder, audioName);
        if (!FileSystem::doesFileExist(file)) {
            Making& text = texts.emplace_back();
            text.audioName = audioName;
            text.said = utteranceOf(said, project.compiler.voices.at(said.voice), engines);
            text.speech = speechFileIn(folder, audioName);
            text.isSpeechOwn =
                FileSystem::doesFileExist(text.speech) && !index.isSpeechOurs(audioName);
            text.sound = file;
        }
    }
    return texts;
}

SpeechOutcome AudioMaker::makeMissing(const SpeechProgress& progress)
{
    std::list<Making> texts = missing();
    if (texts.empty()) {
        return SpeechOutcome::complete;
    }
    FileSystem::createDirectory(folder);
    expectSpeech(texts);
    std::vector<ProgramWork> works;
    for (Making& text : texts) {
        works.push_back(
            {[&](int exitCode) { return next(text, exitCode); }, [&] { tellEnd(text); }});
    }
    const int total = static_cast<int>(texts.size());
    int begun = 0;
    bool cancelled = false;
    runner.runAll(works, [&] {
        cancelled = progress && !progress(begun++, total);
        return !cancelled;
    });
    for (const Making& text : texts) {
        index.rememberSpeech(text.audioName);
    }
    if (!cancelled && progress && !progress(total, total)) {
        cancelled = !complete;  // stopped in the middle of the last ones
    }
    if (cancelled) {
        return SpeechOutcome::cancelled;
    }
    return complete ? SpeechOutcome::complete : SpeechOutcome::incomplete;
}

// Before the first one is written, so that also what a killed build leaves is known as ours.
void AudioMaker::expectSpeech(const std::list<Making>& texts)
{
    for (const Making& text : texts) {
        if (!text.isSpeechOwn) {
            index.expectSpeech(text.audioName);
        }
    }
    if (index.isChanged() && !index.save()) {
        tellIndexFails();
    }
}

void AudioMaker::tellEnd(const Making& text)
{
    if (!text.refused.empty()) {
        tellRefused(text);
    } else if (text.isSpeechOwn) {
        tell("The audio file of '" + shown(text.said.text) + "' is made of your own '" +
             Platform::nativePath(text.speech) + "'");
    }
}

std::optional<ProgramCall> AudioMaker::next(Making& text, int exitCode)
{
    std::optional<ProgramCall> call;
    if (text.step == Making::Step::speak) {
        call = speak(text);
    } else if (text.step == Making::Step::convert) {
        call = convert(text, exitCode);
    } else {
        finish(text, exitCode);
    }
    complete = complete && text.refused.empty();
    return call;
}

// Programs would write through a link in the place of a file, and wait for a pipe there.
bool isFree(const std::string& folder, const std::string& file)
{
    return FileSystem::whyNoFile(file).empty() && FileSystem::placeOutside(folder, file).empty();
}

// As starting it would look for it: on PATH, else beside our own program.
bool isThere(const std::string& program)
{
    const std::string ours = FileSystem::exeDirectory() + FileSystem::directorySeparator + program;
    return !Platform::findProgram(Platform::programToStart(program)).empty() ||
           !Platform::findProgram(Platform::programToStart(ours)).empty();
}

// Nothing is spoken over a recording of the author's: it becomes the audio file.
std::optional<ProgramCall> AudioMaker::speak(Making& text)
{
    const std::string& language = text.said.settings.language;
    if (!text.isSpeechOwn && !ScriptLanguage::isLanguage(language)) {
        text.refused = "is not spoken: '" + shown(language) + "' is not the name of a language";
        return std::nullopt;
    }
    for (const std::string& file : {text.speech, text.sound}) {
        if (!isFree(folder, file)) {
            text.refused = "is not spoken: '" + Platform::nativePath(file) +
                           "' leads out of the folder or is no file";
            return std::nullopt;
        }
    }
    if (text.isSpeechOwn) {
        return conversion(text);
    }
    switch (refusalOf(text.audioName, text.said.text)) {
    case Refusal::longName:
        text.refused = "is too long for the name of an audio file";
        return std::nullopt;
    case Refusal::longText:
        text.refused = "is too long for the speech program";
        return std::nullopt;
    case Refusal::sharedName:
    case Refusal::none:
        break;
    }
    text.step = Making::Step::convert;
    return callToSpeak(text.said.text, text.said.settings, text.speech, runner.readsLatin1());
}

// How the speech program ended is not looked at: without its file the conversion fails.
std::optional<ProgramCall> AudioMaker::convert(Making& text, int exitCode)
{
    if (exitCode == kStopped) {
        FileSystem::deleteFile(text.speech);  // half a text, too
    }
    if (FileSystem::doesFileExist(text.sound)) {
        FileSystem::deleteFile(text.speech);  // the author has put a file there in the meantime
        return std::nullopt;
    }
    return conversion(text);
}

std::optional<ProgramCall> AudioMaker::conversion(Making& text)
{
    text.step = Making::Step::finish;
    if (!isThere("ffmpeg.exe") && convertByOurselves(text)) {
        finish(text, 0);
        return std::nullopt;
    }
    return ProgramCall{"ffmpeg.exe",
                       {"-hide_banner", "-loglevel", "error", "-i",
                        Platform::nativePath(text.speech), "-ar", "22050", "-ac", "1",
                        Platform::nativePath(text.sound)},
                       {}};
}

// False when the speech is no sound that we can read: then it is a matter for ffmpeg.
bool AudioMaker::convertByOurselves(const Making& text)
{
    const std::optional<QByteArray> speech = readInput(text.speech);
    const MonoSound sound = speech ? recording::soundOfFile(speech->toStdString()) : MonoSound{};
    if (sound.samples.empty()) {
        return false;
    }
    const std::string why = recording::writeWhole(text.sound, recording::pensFileOf(sound));
    if (!why.empty()) {
        tell("Error: Can't write file '" + Platform::nativePath(text.sound) + "': " + why);
    }
    return true;
}

bool isWav(const std::string& file)
{
    constexpr char kBeginning[] = "RIFF";
    QFile opened;
    return openInput(opened, file) && opened.read(sizeof kBeginning - 1) == kBeginning;
}

// On a full disk ffmpeg leaves a part of a file, or an empty one, and some of its versions say with
// their exit code that all went well.
void AudioMaker::finish(Making& text, int exitCode)
{
    if (exitCode != 0 || (isCutOff(text.sound) && isWav(text.speech))) {
        FileSystem::deleteFile(text.sound);  // half a file would pass for a whole one ever after
    }
    if (!FileSystem::doesFileExist(text.sound)) {
        text.refused = "has no audio file";
        return;
    }
    if (!text.isSpeechOwn) {
        FileSystem::deleteFile(text.speech);
        remember(text);
    }
}

// At once, so that also what was made before a cancelled build ends is known as ours.
void AudioMaker::remember(const Making& text)
{
    const bool saved = index.remember(text.audioName, text.said) && index.save();
    if (!saved) {
        tellIndexFails();
    }
}

void AudioMaker::tellIndexFails()
{
    if (!indexFails) {
        tell("Error: Can't write file '" + index.path() +
             "', so the files that are spoken now count as your own");
        indexFails = true;
    }
}

void AudioMaker::keepWhatIsNoted()
{
    if (index.isChanged()) {
        index.save();
    }
}

}  // namespace

SpeechOutcome createSoundFiles(const Oid::OidProject& project, ProcessRunner& runner,
                               const SpeechProgress& progress)
{
    const FileSystem::WorkingFolder sameAfterwards;
    putToolsOnPath();
    return makeSoundFiles(project, runner, progress);
}

SpeechOutcome makeSoundFiles(const Oid::OidProject& project, ProcessRunner& runner,
                             const SpeechProgress& progress)
{
    AudioMaker maker(project, runner);
    maker.removeCutOff();
    maker.removeStale();
    const SpeechOutcome outcome = maker.makeMissing(progress);
    maker.keepWhatIsNoted();
    return outcome;
}
