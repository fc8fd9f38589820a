#include "fuzz/Fuzzing.h"

#include "base/PrintFunction.h"
#include "oid/PrintImage.h"
#include "ttbasic/ttbasic.h"

#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fuzzing {

void require(bool condition, const std::string& words)
{
    if (!condition) {
        std::fprintf(stderr, "Not so: %s\n", words.c_str());
        std::abort();
    }
}

void requireEqual(const std::string& one, const std::string& other, const std::string& words)
{
    if (one == other) {
        return;
    }
    const auto difference = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    constexpr ptrdiff_t kBefore = 60;
    constexpr size_t kShown = 300;
    const auto at = std::max<ptrdiff_t>(difference.first - one.begin() - kBefore, 0);
    const auto start = static_cast<size_t>(at);
    require(false, words + "\n--- one, from byte " + std::to_string(start) + "\n" +
                       one.substr(start, kShown) + "\n--- other\n" + other.substr(start, kShown));
}

uint8_t Choices::byte()
{
    if (left == 0) {
        return 0;
    }
    --left;
    return *data++;
}

uint32_t Choices::number()
{
    uint32_t value = 0;
    for (int i = 0; i < 4; ++i) {
        value = value << 8 | byte();
    }
    return value;
}

std::string Choices::text(size_t longest)
{
    return take(std::min<size_t>({byte(), longest, left}));
}

std::string Choices::take(size_t length)
{
    std::string result(reinterpret_cast<const char*>(data), length);
    data += length;
    left -= length;
    return result;
}

std::string folder()
{
    static const QTemporaryDir kFolder("/dev/shm/plinkett-fuzz-XXXXXX");
    require(kFolder.isValid(), "there is a folder in memory");
    return kFolder.path().toStdString();
}

void clearFolder()
{
    for (const auto& entry : std::filesystem::directory_iterator(folder())) {
        std::filesystem::remove_all(entry);
    }
}

std::string fileWith(const uint8_t* data, size_t size, const std::string& name)
{
    return fileWith(std::string(reinterpret_cast<const char*>(data), size), name);
}

std::string fileWith(const std::string& bytes, const std::string& name)
{
    std::string path = folder() + "/" + name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

std::string bytesOf(const std::string& path)
{
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

void keepQuiet()
{
    setDefaultPrintf(printNothing);
    ttbasic::redirectPrintfTo(printNothing);
    mi_printf = printNothing;
}

}  // namespace fuzzing
