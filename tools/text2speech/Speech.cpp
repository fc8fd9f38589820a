#include "tools/text2speech/Speech.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "tools/text2speech/Espeak.h"
#include "tools/text2speech/Languages.h"

#include <iterator>

namespace {

constexpr int kHeaderSize = 44;  // bytes of the header that espeak-ng writes

// The voice for a language; returns what is wrong with it.
std::string findVoice(const std::string& language, std::string& voice)
{
    Languages languages;
    std::string problem = findLanguages(languages);
    if (!problem.empty()) {
        return problem;
    }
    const auto found = languages.find(toLower(language));
    if (found == languages.end()) {
        return "unknown language '" + language + "' (Text2Speech -l lists them)";
    }
    voice = found->second.voice;
    return {};
}

std::string whyUnwritable(const std::string& file)
{
    const std::string folder = FileSystem::getDirectoryOfPath(file);
    if (!folder.empty() && !FileSystem::doesFileExist(folder)) {
        return "the folder '" + folder + "' does not exist";
    }
    return "cannot write the file '" + file + "'";
}

// How espeak-ng is to sound: one of its voice variants, and a pitch from 0 to 99.
struct VoiceVariant
{
    const char* name;
    int pitch;
};

struct AgeGroup
{
    int oldest;  // years
    VoiceVariant female;
    VoiceVariant male;
};

constexpr AgeGroup kGroups[] = {
    {12, {"f3", 99}, {"m2", 99}},  // child
    {24, {"f5", 65}, {"m2", 68}},  // young
    {59, {"f2", 55}, {"m3", 50}},  // adult
    {99, {"f1", 30}, {"m1", 42}},  // old
};

// Child (up to 12 years), young, adult (from 25) or old (from 60): the eight voices differ in
// timbre and each in its pitch.
VoiceVariant variantFor(bool female, int age)
{
    const AgeGroup* group = std::begin(kGroups);
    while (group + 1 != std::end(kGroups) && age > group->oldest) {
        ++group;
    }
    return female ? group->female : group->male;
}

// The sound comes through a pipe, since espeak-ng itself cuts long paths.
QStringList espeakArguments(const Request& request, const std::string& voice)
{
    const VoiceVariant variant = variantFor(request.female, request.age);
    return {"--stdin", "-b",
            "1",  // UTF-8
            "-v",      QString::fromStdString(voice + "+" + variant.name),
            "-p",      QString::number(variant.pitch),
            "--stdout"};
}

// A WAV file while it arrives. What cannot be written is noticed when the file is committed.
class ArrivingSound
{
public:
    explicit ArrivingSound(FILE* target) : file(target) {}

    void add(const QByteArray& piece)
    {
        fwrite(piece.constData(), 1, static_cast<size_t>(piece.size()), file);
        start += piece.left(kHeaderSize - start.size());
        size += piece.size();
    }

    bool hasHeader() const { return start.size() == kHeaderSize && start.startsWith("RIFF"); }

    // Writing into a pipe, espeak-ng does not know the lengths that belong into the header.
    bool completeHeader() const
    {
        constexpr long kLengthOfAll = 4;
        constexpr long kLengthOfSamples = kHeaderSize - 4;
        return writeLengthAt(kLengthOfAll, size - 8) &&
               writeLengthAt(kLengthOfSamples, size - kHeaderSize);
    }

private:
    bool writeLengthAt(long position, qint64 length) const
    {
        unsigned char bytes[4];
        for (int i = 0; i < 4; ++i) {
            bytes[i] = static_cast<unsigned char>(length >> (8 * i));
        }
        return fseek(file, position, SEEK_SET) == 0 && fwrite(bytes, 1, 4, file) == 4;
    }

    FILE* file;
    QByteArray start;
    qint64 size = 0;
};

}  // namespace

std::string speak(const Request& request)
{
    std::string voice;
    std::string problem = findVoice(request.language, voice);
    if (!problem.empty()) {
        return problem;
    }
    Platform::FileReplacement target(request.file);
    if (target.file() == nullptr) {
        return whyUnwritable(request.file);
    }
    ArrivingSound sound(target.file());
    problem = runEspeak(espeakArguments(request, voice), request.text,
                        [&](const QByteArray& piece) { sound.add(piece); });
    if (!problem.empty()) {
        return problem;
    }
    if (!sound.hasHeader()) {
        return "espeak-ng made no sound";
    }
    const bool written = sound.completeHeader() && target.commit();
    return written ? std::string() : whyUnwritable(request.file);
}
