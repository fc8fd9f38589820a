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
    emitLine(ifPrefix + "J(" + label + ")    " + asmDbg() + command);
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

// One line of code.
void ttbasic::emitLine(const std::string& line)
{
    code += line;
    code += "\r\n";
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
