#include "sound/SoundFile.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <sndfile.h>

namespace {

FILE* fileOf(void* user)
{
    return static_cast<FILE*>(user);
}

sf_count_t seek(sf_count_t offset, int origin, void* user)
{
    return Platform::seekFile(fileOf(user), offset, origin);
}

sf_count_t tell(void* user)
{
    return Platform::seekFile(fileOf(user), 0, SEEK_CUR);
}

sf_count_t length(void* user)
{
    const sf_count_t before = tell(user);
    const sf_count_t end = Platform::seekFile(fileOf(user), 0, SEEK_END);
    seek(before, SEEK_SET, user);
    return end;
}

sf_count_t readBytes(void* bytes, sf_count_t count, void* user)
{
    return static_cast<sf_count_t>(std::fread(bytes, 1, static_cast<size_t>(count), fileOf(user)));
}

sf_count_t writeNothing(const void*, sf_count_t, void*)
{
    return 0;
}

// Files of floating point samples may hold anything.
float audible(float sample)
{
    return std::isfinite(sample) ? std::clamp(sample, -1.0F, 1.0F) : 0.0F;
}

}  // namespace

// libsndfile reads through functions of ours, so that paths are ours, too.
struct SoundFile::Handle
{
    explicit Handle(FILE* opened) : file(opened)
    {
        SF_VIRTUAL_IO io{length, seek, readBytes, writeNothing, tell};
        sound = sf_open_virtual(&io, SFM_READ, &info, file);
    }
    ~Handle()
    {
        if (sound != nullptr) {
            sf_close(sound);
        }
        std::fclose(file);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    FILE* file;
    SF_INFO info{};
    SNDFILE* sound = nullptr;
};

SoundFile::SoundFile(const std::string& path)
{
    FILE* const file = FileSystem::myfopen(path, "rb");
    if (file == nullptr) {
        now = State::notOpened;
        systemReason = Platform::lastFileError();
        return;
    }
    handle = std::make_unique<Handle>(file);
    if (handle->sound == nullptr || handle->info.channels < 1 || handle->info.samplerate < 1) {
        now = State::notSound;
    } else if (handle->info.channels > kMostChannels) {
        now = State::tooManyChannels;
    }
}

SoundFile::~SoundFile() = default;

int SoundFile::channels() const
{
    return handle != nullptr ? handle->info.channels : 0;
}

int SoundFile::rate() const
{
    return handle != nullptr ? handle->info.samplerate : 0;
}

double SoundFile::seconds() const
{
    if (handle != nullptr && handle->info.frames == SF_COUNT_MAX) {
        return std::numeric_limits<double>::infinity();
    }
    return rate() > 0 ? static_cast<double>(handle->info.frames) / rate() : 0;
}

bool SoundFile::isOggVorbis() const
{
    return handle != nullptr && handle->info.format == (SF_FORMAT_OGG | SF_FORMAT_VORBIS);
}

std::vector<float> SoundFile::read(size_t frames)
{
    if (now != State::good) {
        return {};
    }
    const auto width = static_cast<size_t>(channels());
    std::vector<float> samples(frames * width);
    const sf_count_t count =
        sf_readf_float(handle->sound, samples.data(), static_cast<sf_count_t>(frames));
    samples.resize(static_cast<size_t>(std::max<sf_count_t>(count, 0)) * width);
    std::transform(samples.begin(), samples.end(), samples.begin(), audible);
    if (samples.empty() && sf_error(handle->sound) != SF_ERR_NO_ERROR) {
        now = State::damaged;
    }
    return samples;
}
