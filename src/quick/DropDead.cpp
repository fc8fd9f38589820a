// Once values are used where they are read, most registers of the stack machine are read by nobody.
#include "quick/GraphPasses.h"
#include "quick/LinePasses.h"
#include "quick/Liveness.h"

#include <algorithm>

namespace quick {

namespace {

// One command backwards.
void passBackwards(const Command& command, Live& live)
{
    const auto read = [&live](Register reg) {
        live.alive.insert(reg);
        live.overwritten.erase(reg);
    };
    if (command.opcode == gme::Opcode::kAssign) {
        live.alive.erase(command.target);
        live.overwritten.insert(command.target);
    } else {
        read(command.target);
    }
    if (command.value.isRegister) {
        read(command.value.value);
    }
}

}  // namespace

void dropDead(Commands& commands, const Live& behind)
{
    Live live = behind;
    Commands kept;
    for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
        if (live.has(command->target) || command->mayFail()) {
            passBackwards(*command, live);
            kept.push_back(*command);
        }
    }
    std::reverse(kept.begin(), kept.end());
    commands = std::move(kept);
}

void dropDead(Graph& graph)
{
    const std::vector<RegisterSet> live = liveAtBeginning(graph);
    for (Node& node : graph.nodes) {
        for (Line& line : node.lines) {
            const RegisterSet behind = line.jump ? live[*line.jump] : RegisterSet();
            dropDead(line.commands, {graph.temporaries, behind});
        }
    }
}

RegisterSet liveBefore(const Commands& commands, Live behind)
{
    for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
        passBackwards(*command, behind);
    }
    return behind.alive;
}

}  // namespace quick
