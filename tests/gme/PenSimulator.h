#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Plays a game file as the pen does: what a tap does to the registers and what is to be heard.
class PenSimulator
{
public:
    // Activates the game: every register gets its first value.
    explicit PenSimulator(const std::string& gameFile);

    // Runs the script of a code and all jumps from there. False when the jumps do not come to an
    // end.
    bool tap(uint32_t code);

    uint16_t registerValue(size_t number) const;
    // One list of media indexes per play command since the last call.
    std::vector<std::vector<unsigned>> takePlays();

private:
    static constexpr uint32_t kNoCode = 0xFFFFFFFF;

    // Returns the code to jump to, or kNoCode.
    uint32_t run(uint32_t code);
    bool holdsCondition(size_t at) const;
    uint32_t runLine(size_t commandsAt);
    void runCommand(size_t at, size_t playListAt);
    void calculate(uint16_t opcode, uint16_t& target, uint16_t value);
    void play(unsigned first, unsigned last, size_t playListAt);
    uint16_t operand(size_t at) const;
    uint16_t& registerAt(size_t number);

    unsigned get8(size_t at) const;
    uint16_t get16(size_t at) const;
    uint32_t get32(size_t at) const;

    std::string bytes;
    std::vector<uint16_t> registers;
    std::vector<std::vector<unsigned>> plays;
    uint32_t jumpTo = kNoCode;
};
