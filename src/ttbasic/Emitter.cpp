#include "base/TextHelpers.h"
#include "ttbasic/Numbers.h"
#include "ttbasic/ttbasic.h"

void ttbasic::updateIfPrefix()
{
    ifPrefix = kCommandStart;
    for (const std::string& condition : conditions) {
        ifPrefix += condition;
        ifPrefix += " ? ";
    }
}

// Each command is a step of its own and jumps to the next one.
void ttbasic::asmCmd(const std::string& command)
{
    const std::string label = nextLabel();
    emitCommand("J(" + label + ")    " + asmDbg() + command);
    emitFallThrough("J(" + label + ")  ");
    asmLabel(label);
}

std::string ttbasic::asmDbg()
{
    return {};
}

// Opens the next step or, with the name of a sub, its script.
void ttbasic::asmLabel(const std::string& name)
{
    emitLine("    " + name + ":");
}

void ttbasic::emitLine(const std::string& line)
{
    if (!isTooLarge()) {
        code += line;
        code += "\r\n";
    }
}

// A command that the pen carries out only when the conditions of all open blocks hold.
void ttbasic::emitCommand(const std::string& command)
{
    if (!isTooLarge()) {
        code += ifPrefix;
        emitLine(command);
    }
}

// Every line of nested blocks repeats all their conditions, so a short script can ask for more code
// than the machine has memory.
bool ttbasic::isTooLarge() const
{
    return code.size() > codeLimit;
}

std::string ttbasic::nextLabel()
{
    increase(labelCounter);
    return "asm" + itostr(labelCounter);
}

// When the conditions of the line before do not hold, the pen still has to go on with the next
// step.
void ttbasic::emitFallThrough(const std::string& jump)
{
    if (ifPrefix.find('?') != std::string::npos) {
        emitLine(kCommandStart + jump + "$rnd += " + randomSummand());
    }
}
