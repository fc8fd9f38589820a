#include "recording/VoiceFile.h"

#include "base/PlatformFiles.h"
#include "recording/Loudness.h"
#include "sound/Resampler.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <sndfile.h>

namespace recording {

namespace {

// A file as libsndfile reads and writes it.
struct MemoryFile
{
    std::string bytes;
    size_t place = 0;
};

MemoryFile& fileOf(void* user)
{
    return *static_cast<MemoryFile*>(user);
}

sf_count_t length(void* user)
{
    return static_cast<sf_count_t>(fileOf(user).bytes.size());
}

sf_count_t tell(void* user)
{
    return static_cast<sf_count_t>(fileOf(user).place);
}

sf_count_t seek(sf_count_t offset, int origin, void* user)
{
    const sf_count_t from = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? tell(user) : length(user);
    fileOf(user).place = static_cast<size_t>(std::max<sf_count_t>(0, from + offset));
    return tell(user);
}

sf_count_t read(void* to, sf_count_t count, void* user)
{
    MemoryFile& file = fileOf(user);
    const size_t place = std::min(file.place, file.bytes.size());
    const size_t found = std::min(static_cast<size_t>(count), file.bytes.size() - place);
    std::memcpy(to, file.bytes.data() + place, found);
    file.place = place + found;
    return static_cast<sf_count_t>(found);
}

sf_count_t write(const void* from, sf_count_t count, void* user)
{
    MemoryFile& file = fileOf(user);
    const auto size = static_cast<size_t>(count);
    file.bytes.resize(std::max(file.bytes.size(), file.place + size));
    std::memcpy(file.bytes.data() + file.place, from, size);
    file.place += size;
    return count;
}

struct SoundEnd
{
    void operator()(SNDFILE* sound) const { sf_close(sound); }
};
using OpenSound = std::unique_ptr<SNDFILE, SoundEnd>;

OpenSound openIn(MemoryFile& file, int mode, SF_INFO& info)
{
    SF_VIRTUAL_IO io{length, seek, read, write, tell};
    return OpenSound(sf_open_virtual(&io, mode, &info, &file));
}

// Only memory can be missing.
std::string encoded(const MonoSound& sound, int format, double quality)
{
    constexpr size_t kPiece = 4096;  // samples at once: the encoder has them on its stack
    MemoryFile file;
    SF_INFO info{};
    info.samplerate = sound.rate;
    info.channels = 1;
    info.format = format;
    OpenSound open = openIn(file, SFM_WRITE, info);
    if (open == nullptr) {
        throw std::bad_alloc();
    }
    sf_command(open.get(), SFC_SET_VBR_ENCODING_QUALITY, &quality, sizeof quality);
    sf_command(open.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
    for (size_t i = 0; i < sound.samples.size(); i += kPiece) {
        const size_t count = std::min(kPiece, sound.samples.size() - i);
        sf_write_float(open.get(), &sound.samples[i], static_cast<sf_count_t>(count));
    }
    open.reset();
    return std::move(file.bytes);
}

std::string vorbisFileOf(const MonoSound& sound)
{
    constexpr double kQuality = 0.5;
    return encoded(sound, SF_FORMAT_OGG | SF_FORMAT_VORBIS, kQuality);
}

}  // namespace

MonoSound atRate(const MonoSound& sound, int rate)
{
    if (sound.rate == rate) {
        return sound;
    }
    constexpr size_t kPiece = 16384;
    MonoSound made{{}, rate};
    Resampler resampler(1, sound.rate, rate);
    const auto take = [&made](const std::vector<float>& stereo) {
        for (size_t i = 0; i < stereo.size(); i += 2) {
            made.samples.push_back(stereo[i]);
        }
    };
    for (size_t i = 0; i < sound.samples.size(); i += kPiece) {
        const auto from = sound.samples.begin() + static_cast<std::ptrdiff_t>(i);
        const size_t count = std::min(kPiece, sound.samples.size() - i);
        take(resampler.convert({from, from + static_cast<std::ptrdiff_t>(count)}));
    }
    take(resampler.finish());
    return made;
}

// The encoder changes loudness and peaks a little; what it changed is aimed at the next time.
std::string voiceFileOf(const MonoSound& sound)
{
    constexpr int kRounds = 5;
    constexpr double kNear = 0.1;    // LU
    constexpr double kMargin = 0.3;  // dB: others measure peaks a little differently
    const MonoSound voice = atRate(sound, kVoiceRate);
    double loudness = kLoudness;
    double peak = kHighestPeak - kMargin;
    std::string bytes;
    for (int round = 0; round < kRounds; ++round) {
        bytes = vorbisFileOf(levelled(voice, loudness, peak));
        const Level got = levelOf(soundOfFile(bytes));
        const double missing = kLoudness - got.loudness;
        const double above = got.peak - (kHighestPeak - kMargin / 2);
        if (std::isinf(missing) || (std::abs(missing) < kNear && above <= 0)) {
            break;
        }
        loudness += missing;
        peak -= std::max(0.0, above);
    }
    return bytes;
}

std::string pensFileOf(const MonoSound& sound)
{
    return vorbisFileOf(atRate(sound, kVoiceRate));
}

std::string flacFileOf(const MonoSound& sound)
{
    return encoded(sound, SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 0);
}

MonoSound soundOfFile(const std::string& bytes)
{
    constexpr size_t kPiece = 4096;  // frames
    MemoryFile file{bytes};
    SF_INFO info{};
    const OpenSound open = openIn(file, SFM_READ, info);
    if (open == nullptr || info.channels < 1) {
        return {};
    }
    MonoSound sound{{}, info.samplerate};
    const auto width = static_cast<size_t>(info.channels);
    std::vector<float> frames(kPiece * width);
    for (;;) {
        const sf_count_t count = sf_readf_float(open.get(), frames.data(), kPiece);
        if (count <= 0) {
            return sound;
        }
        for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
            float sum = 0;
            for (size_t channel = 0; channel < width; ++channel) {
                sum += frames[i * width + channel];
            }
            sound.samples.push_back(sum / static_cast<float>(width));
        }
    }
}

std::string writeWhole(const std::string& path, const std::string& bytes)
{
    const QString native = QString::fromStdString(Platform::nativePath(path));
    QDir().mkpath(QFileInfo(native).absolutePath());
    Platform::FileReplacement file(path);
    if (file.file() == nullptr ||
        std::fwrite(bytes.data(), 1, bytes.size(), file.file()) != bytes.size() || !file.commit()) {
        return Platform::lastFileError();
    }
    return {};
}

}  // namespace recording
