#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// The samples of an audio file, mono or stereo, piece by piece: WAV, Ogg, FLAC, MP3 and what else
// libsndfile reads.
class SoundFile
{
public:
    enum class State {
        good,
        notOpened,  // the system's words are in reason()
        notSound,   // no format that is known, or damaged from its beginning
        tooManyChannels,
        damaged  // behind the samples that have been read
    };

    // Opens the file; afterwards state() tells whether it can be read.
    explicit SoundFile(const std::string& path);
    ~SoundFile();
    SoundFile(const SoundFile&) = delete;
    SoundFile& operator=(const SoundFile&) = delete;

    State state() const { return now; }
    const std::string& reason() const { return systemReason; }
    // 0 unless the file was opened as a sound; the next likewise.
    int channels() const;
    int rate() const;        // frames a second
    double seconds() const;  // infinite where the file does not say, as one that is cut off
    bool isOggVorbis() const;

    // The next frames, channels interleaved, -1 to 1: at most that many, none at the end.
    std::vector<float> read(size_t frames);

    static constexpr int kMostChannels = 2;

private:
    struct Handle;

    std::unique_ptr<Handle> handle;  // null where the file could not be opened
    State now = State::good;
    std::string systemReason;
};
