#include <limits>

#include "base/TextHelpers.h"
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
    emitCommand({"J(", label, ")    ", asmDbg(), command});
    emitFallThrough("", label);
    asmLabel(label);
}

std::string ttbasic::asmDbg()
{
    return {};
}

// Opens the next step or, with the name of a sub, its script.
void ttbasic::asmLabel(const std::string& name)
{
    emitLine({"    ", name, ":"});
}

void ttbasic::emitLine(Pieces pieces)
{
    if (!isTooLarge()) {
        for (const std::string_view piece : pieces) {
            code += piece;
        }
        code += "\r\n";
    }
}

// A command that the pen carries out only when the conditions of all open blocks hold.
void ttbasic::emitCommand(Pieces pieces)
{
    if (!isTooLarge()) {
        code += ifPrefix;
        emitLine(pieces);
    }
}

// Every line of nested blocks repeats all their conditions, so a short script can ask for more code
// than the machine has memory.
bool ttbasic::isTooLarge() const
{
    return code.size() > codeLimit;
}

// 0 to 996, in decimal.
std::string ttbasic::randomSummand()
{
    return itostr(random.next() % 997);
}

void ttbasic::increase(int& counter)
{
    if (counter < std::numeric_limits<int>::max()) {
        ++counter;
    }
}

std::string ttbasic::nextLabel()
{
    increase(labelCounter);
    return "asm" + itostr(labelCounter);
}

// When the conditions of the line before do not hold, the pen still has to go on with the next
// step.
void ttbasic::emitFallThrough(std::string_view condition, const std::string& label)
{
    if (ifPrefix.find('?') != std::string::npos) {
        emitLine({kCommandStart, condition, "J(", label, ")  $rnd += ", randomSummand()});
    }
}
