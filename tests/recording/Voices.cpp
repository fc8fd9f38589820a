#include "tests/recording/Voices.h"

#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <stdexcept>

namespace {

constexpr double kCircle = 2 * 3.14159265358979;

std::string number(size_t value, size_t size)
{
    std::string bytes;
    for (size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
    return bytes;
}

MonoSound made(double seconds, int rate)
{
    MonoSound sound{{}, rate};
    sound.samples.resize(sound.samplesIn(seconds));
    return sound;
}

// The number behind the last of these words.
double numberAfter(const std::string& text, const std::string& word)
{
    const size_t place = text.rfind(word);
    if (place == std::string::npos) {
        throw std::runtime_error("no " + word + " in " + text);
    }
    const std::string rest = text.substr(place + word.size());
    return rest.find("-inf") < rest.find('\n') ? -HUGE_VAL : std::stod(rest);
}

}  // namespace

MonoSound toneOf(double seconds, double height, int rate, double hertz)
{
    MonoSound sound = made(seconds, rate);
    for (size_t i = 0; i < sound.samples.size(); ++i) {
        const double place = static_cast<double>(i) / rate;
        sound.samples[i] = static_cast<float>(height * std::sin(kCircle * hertz * place));
    }
    return sound;
}

MonoSound silenceOf(double seconds, double noise, int rate)
{
    MonoSound sound = made(seconds, rate);
    std::mt19937 random(1);
    std::uniform_real_distribution<float> samples(-1, 1);
    for (float& sample : sound.samples) {
        sample = static_cast<float>(noise) * samples(random);
    }
    return sound;
}

MonoSound voiceOf(double seconds, double height, int rate)
{
    MonoSound sound = made(seconds, rate);
    for (size_t i = 0; i < sound.samples.size(); ++i) {
        const double time = static_cast<double>(i) / rate;
        const double syllable = std::pow(std::abs(std::sin(kCircle * 1.9 * time)), 1.5);
        double wave = 0;
        for (int harmonic = 1; harmonic <= 14; ++harmonic) {
            wave += std::cos(kCircle * 137 * harmonic * time) / 14;
        }
        sound.samples[i] = static_cast<float>(height * syllable * wave);
    }
    return sound;
}

MonoSound joined(const std::vector<MonoSound>& sounds)
{
    MonoSound all{{}, sounds.front().rate};
    for (const MonoSound& sound : sounds) {
        all.samples.insert(all.samples.end(), sound.samples.begin(), sound.samples.end());
    }
    return all;
}

void writeWav(const std::string& path, const MonoSound& sound)
{
    const auto rate = static_cast<size_t>(sound.rate);
    const std::string data(reinterpret_cast<const char*>(sound.samples.data()),
                           sound.samples.size() * sizeof(float));
    writeFile(path, "RIFF" + number(36 + data.size(), 4) + "WAVEfmt " + number(16, 4) +
                        number(3, 2) + number(1, 2) + number(rate, 4) + number(rate * 4, 4) +
                        number(4, 2) + number(32, 2) + "data" + number(data.size(), 4) + data);
}

Measured measuredByFfmpeg(const std::string& path, int times)
{
    const ProgramRun run = runProgram(
        "ffmpeg", {"-hide_banner", "-nostats", "-stream_loop", std::to_string(times - 1), "-i",
                   path, "-filter_complex", "ebur128=peak=true", "-f", "null", "-"});
    return {numberAfter(run.err, "    I:"), numberAfter(run.err, "    Peak:")};
}

std::string kindOf(const std::string& path)
{
    std::string kind = runProgram("ffprobe", {"-v", "error", "-show_entries",
                                              "stream=codec_name,sample_rate,channels", "-of",
                                              "csv=p=0:s=\\ ", path})
                           .out;
    kind.erase(std::remove(kind.begin(), kind.end(), '\n'), kind.end());
    return kind;
}
