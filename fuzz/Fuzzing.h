#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// What the fuzz targets share. A target is one function, which libFuzzer calls with bytes of its
// own making, and the replay (ReplayMain.cpp) with those of a file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace fuzzing {

// Ends the process with the words, which libFuzzer reports as a finding, unless the condition
// holds.
void require(bool condition, const std::string& words);
// The same for two texts that have to be equal; both are shown from where they differ.
void requireEqual(const std::string& one, const std::string& other, const std::string& words);

// The bytes as a series of choices. At their end every choice is 0.
class Choices
{
public:
    Choices(const uint8_t* bytes, size_t count) : data(bytes), left(count) {}

    uint8_t byte();
    uint32_t number();  // of four bytes
    // 0 to n - 1.
    int below(int n) { return static_cast<int>(number() % static_cast<uint32_t>(n)); }
    bool oneIn(int n) { return below(n) == 0; }
    std::string text(size_t longest);
    std::string rest() { return take(left); }
    bool isAtEnd() const { return left == 0; }

private:
    std::string take(size_t length);

    const uint8_t* data;
    size_t left;
};

// A folder of this process in memory, empty at first, gone at the end.
std::string folder();
// Makes it empty again.
void clearFolder();
// The path of a file there, with these bytes.
std::string fileWith(const uint8_t* data, size_t size, const std::string& name);
std::string fileWith(const std::string& bytes, const std::string& name);
std::string bytesOf(const std::string& path);

// Messages of the core are not heard.
void keepQuiet();

}  // namespace fuzzing
