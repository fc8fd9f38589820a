#include "ttbasic/CompileScript.h"

#include "ttbasic/ttbasic.h"

bool compileScript(ttbasic& script, bool debugMode)
{
    try {
        return script.parse(debugMode);
    } catch (const ttbasic::StackUnderflow& underflow) {
        return script.error(underflow.what());
    }
}
