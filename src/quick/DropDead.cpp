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
        if (live.temporaries.has(reg)) {
            live.alive.insert(reg);
        } else {
            live.overwritten.erase(reg);
        }
    };
    if (command.opcode != gme::Opcode::kAssign) {
        read(command.target);
    } else if (live.temporaries.has(command.target)) {
        live.alive.erase(command.target);
    } else {
        live.overwritten.insert(command.target);
    }
    if (command.value.isRegister) {
        read(command.value.value);
    }
}

}  // namespace

void dropDead(Commands& commands, Live behind)
{
    auto kept = commands.rbegin();
    for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
        if (behind.has(command->target) || command->mayFail()) {
            passBackwards(*command, behind);
            *kept++ = *command;
        }
    }
    commands.erase(commands.begin(), kept.base());
}

void dropDead(Graph& graph)
{
    const std::vector<RegisterSet> live = liveAtBeginning(graph);
    for (Node& node : graph.nodes) {
        for (Line& line : node.lines) {
            dropDead(line.commands,
                     {graph.temporaries, line.jump ? live[*line.jump] : RegisterSet()});
        }
    }
}

RegisterSet liveBefore(const Commands& commands, Live behind)
{
    for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
        passBackwards(*command, behind);
    }
    return std::move(behind.alive);
}

}  // namespace quick
