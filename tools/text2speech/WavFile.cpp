#include "tools/text2speech/WavFile.h"

#include <cstdio>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"

namespace {

constexpr int kStart = 4096;       // bytes in which the samples begin in all usual files
constexpr int kChunkHeader = 8;    // a name of four letters and a length
constexpr int kFirstChunk = 12;    // behind "RIFF", the length of all and "WAVE"
constexpr int kSmallestFile = 44;  // bytes, without a sample

// Little endian, as all numbers of the format.
qint64 numberAt(const QByteArray& bytes, int position)
{
    qint64 number = 0;
    for (int i = 3; i >= 0; --i) {
        number = number * 256 + static_cast<unsigned char>(bytes[position + i]);
    }
    return number;
}

std::string whyUnwritable(const std::string& file)
{
    const std::string folder = FileSystem::getDirectoryOfPath(file);
    if (!folder.empty() && !FileSystem::doesFileExist(folder)) {
        return "the folder '" + folder + "' does not exist";
    }
    return "cannot write the file '" + file + "'";
}

}  // namespace

void ArrivingSound::add(const QByteArray& piece)
{
    fwrite(piece.constData(), 1, static_cast<size_t>(piece.size()), file);
    start += piece.left(kStart - start.size());
    size += piece.size();
}

bool ArrivingSound::isWav() const
{
    return size >= kSmallestFile && start.startsWith("RIFF") && start.mid(8, 4) == "WAVE";
}

// Of the samples; -1 when they begin later than we look.
int ArrivingSound::positionOfData() const
{
    qint64 chunk = kFirstChunk;
    while (chunk + kChunkHeader <= start.size()) {
        const int position = static_cast<int>(chunk);
        if (start.mid(position, 4) == "data") {
            return position + kChunkHeader;
        }
        const qint64 length = numberAt(start, position + 4);
        chunk += kChunkHeader + length + length % 2;
    }
    return -1;
}

bool ArrivingSound::completeHeader() const
{
    const int data = positionOfData();
    if (data < 0) {
        return true;
    }
    const qint64 told = numberAt(start, data - 4);
    if (told > 0 && told <= size - data) {
        return true;
    }
    return writeLengthAt(4, size - kChunkHeader) && writeLengthAt(data - 4, size - data);
}

bool ArrivingSound::writeLengthAt(long position, qint64 length) const
{
    unsigned char bytes[4];
    for (int i = 0; i < 4; ++i) {
        bytes[i] = static_cast<unsigned char>(length >> (8 * i));
    }
    return fseek(file, position, SEEK_SET) == 0 && fwrite(bytes, 1, 4, file) == 4;
}

std::string writeWav(const std::string& file, const std::string& speaker,
                     const std::function<std::string(ArrivingSound&)>& speak)
{
    Platform::FileReplacement target(file);
    if (target.file() == nullptr) {
        return whyUnwritable(file);
    }
    ArrivingSound sound(target.file());
    std::string problem = speak(sound);
    if (!problem.empty()) {
        return problem;
    }
    if (sound.isEmpty()) {
        return speaker + " made no sound";
    }
    if (!sound.isWav()) {
        return "what " + speaker + " made is no WAV file";
    }
    const bool written = sound.completeHeader() && target.commit();
    return written ? std::string() : whyUnwritable(file);
}
