#pragma once

#include "pen/PenGame.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace pen {

// The scripts of a game with all that running them touches close together. The many small lists of
// a large game are more than a processor keeps at hand.
class FlatGame
{
public:
    struct FlatLine
    {
        const Condition* conditions;
        const Command* commands;
        const uint16_t* playList;
        uint32_t conditionCount;
        uint32_t commandCount;
        uint32_t playCount;
    };

    explicit FlatGame(const PenGame& game);
    FlatGame(const FlatGame&) = delete;
    FlatGame& operator=(const FlatGame&) = delete;
    FlatGame(FlatGame&&) = default;
    FlatGame& operator=(FlatGame&&) = default;

    bool hasScript(uint16_t code) const { return scripts[code].isThere; }
    size_t lineCount(uint16_t code) const { return scripts[code].lineCount; }
    const FlatLine& line(uint16_t code, size_t index) const
    {
        return lines[scripts[code].firstLine + index];
    }

private:
    struct FlatScript
    {
        uint32_t firstLine = 0;
        uint32_t lineCount = 0;
        bool isThere = false;
    };

    void reserve(const PenGame& game);
    void add(const Line& line);

    std::vector<FlatScript> scripts;  // by code
    std::vector<FlatLine> lines;
    // What the lines point into; they never move.
    std::vector<Condition> conditions;
    std::vector<Command> commands;
    std::vector<uint16_t> playLists;
};

}  // namespace pen
