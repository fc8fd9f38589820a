#pragma once

#include "quick/Values.h"

// The passes over the commands of one line.
namespace quick {

// Which registers are read behind a place: all that are no temporaries, and some of these.
struct Live
{
    const RegisterFlags& temporaries;
    RegisterSet alive;             // of the temporaries
    RegisterSet overwritten = {};  // others that nobody reads before they get another value

    bool has(Register reg) const
    {
        return temporaries.has(reg) ? alive.has(reg) : !overwritten.has(reg);
    }
};

// Numbers take the place of registers that hold them, an original that of its copy, and what only
// says again what is so goes. start: what is known before the first command.
void carryValues(Commands& commands, Values start, const RegisterFlags& temporaries);

// The same of one command, where the values are what is known before it. None when its target holds
// the result already.
std::optional<Command> carried(Command command, const Values& values,
                               const RegisterFlags& temporaries);

// "t := b, t *= 2, a := t" becomes "a := b, a *= 2" where nobody else reads t.
void writeDirectly(Commands& commands, const Live& behind);

// "a += 3, a += 4" becomes "a += 7".
void sumAdditions(Commands& commands);

// What calculates something that nobody reads goes, but for divisions that may be by zero.
void dropDead(Commands& commands, Live behind);

// The temporaries that are read from the first command on, when these are read behind the last.
RegisterSet liveBefore(const Commands& commands, Live behind);

}  // namespace quick
