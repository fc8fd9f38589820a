#include "pen/FlatGame.h"

namespace pen {

namespace {

constexpr size_t kCodes = 65536;

}  // namespace

FlatGame::FlatGame(const PenGame& game) : scripts(kCodes)
{
    reserve(game);
    for (const auto& [code, script] : game.scripts) {
        scripts[code] = {static_cast<uint32_t>(lines.size()), static_cast<uint32_t>(script.size()),
                         true};
        for (const Line& line : script) {
            add(line);
        }
    }
}

void FlatGame::reserve(const PenGame& game)
{
    size_t lineCount = 0;
    size_t conditionCount = 0;
    size_t commandCount = 0;
    size_t playCount = 0;
    for (const auto& entry : game.scripts) {
        lineCount += entry.second.size();
        for (const Line& line : entry.second) {
            conditionCount += line.conditions.size();
            commandCount += line.commands.size();
            playCount += line.playList.size();
        }
    }
    lines.reserve(lineCount);
    conditions.reserve(conditionCount);
    commands.reserve(commandCount);
    playLists.reserve(playCount);
}

void FlatGame::add(const Line& line)
{
    lines.push_back(
        {conditions.data() + conditions.size(), commands.data() + commands.size(),
         playLists.data() + playLists.size(), static_cast<uint32_t>(line.conditions.size()),
         static_cast<uint32_t>(line.commands.size()), static_cast<uint32_t>(line.playList.size())});
    conditions.insert(conditions.end(), line.conditions.begin(), line.conditions.end());
    commands.insert(commands.end(), line.commands.begin(), line.commands.end());
    playLists.insert(playLists.end(), line.playList.begin(), line.playList.end());
}

}  // namespace pen
