#include "pen/SoundLength.h"

#include <algorithm>
#include <cstdint>

namespace pen {

namespace {

// Little-endian; 0 beyond the end.
uint64_t numberAt(const std::string& bytes, size_t at, size_t size)
{
    uint64_t number = 0;
    for (size_t i = 0; i < size && at + size <= bytes.size(); ++i) {
        number |= uint64_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
    }
    return number;
}

double ratio(uint64_t amount, uint64_t amountInASecond)
{
    return amountInASecond == 0
               ? 0
               : static_cast<double>(amount) / static_cast<double>(amountInASecond);
}

// The last page tells how many samples there are up to its end, the first packet the rate.
double oggSeconds(const std::string& bytes)
{
    constexpr size_t kSamplesAt = 6;        // in a page
    constexpr size_t kRateAt = 12;          // in the first packet
    constexpr uint64_t kMost = 1ULL << 48;  // samples; a page may also have none, which is all ones
    const size_t packet = bytes.find("\x01vorbis");
    const size_t lastPage = bytes.rfind("OggS");
    const uint64_t samples = numberAt(bytes, lastPage + kSamplesAt, 8);
    return packet == std::string::npos || samples > kMost
               ? 0
               : ratio(samples, numberAt(bytes, packet + kRateAt, 4));
}

double wavSeconds(const std::string& bytes)
{
    constexpr size_t kFirstChunk = 12;
    constexpr size_t kChunkHeader = 8;
    uint64_t bytesInASecond = 0;
    for (size_t at = kFirstChunk; at + kChunkHeader <= bytes.size();) {
        const auto size = static_cast<size_t>(numberAt(bytes, at + 4, 4));
        const size_t content = at + kChunkHeader;
        if (bytes.compare(at, 4, "fmt ") == 0) {
            bytesInASecond = numberAt(bytes, content + 8, 4);
        } else if (bytes.compare(at, 4, "data") == 0) {
            return ratio(std::min(size, bytes.size() - content), bytesInASecond);
        }
        at = content + size + size % 2;
    }
    return 0;
}

}  // namespace

double soundSeconds(const std::string& bytes)
{
    if (bytes.compare(0, 4, "OggS") == 0) {
        return oggSeconds(bytes);
    }
    return bytes.compare(0, 4, "RIFF") == 0 ? wavSeconds(bytes) : 0;
}

}  // namespace pen
