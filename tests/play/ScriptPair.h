#pragma once

#include "play/PlayedBook.h"
#include "tests/play/Interpreter.h"
#include "tests/play/RandomScript.h"

#include <string>

// A script in compiler, assembler and pen on the one side, and in an interpreter that knows nothing
// of them on the other.
class ScriptPair
{
public:
    explicit ScriptPair(const RandomScript& script);

    // Touches the area of a sub in both. False when what it does has no end in one of them.
    bool tap(const std::string& sub);
    // Whether it has no end in the pen.
    bool penWasStopped() const { return played.outcome().wasStopped; }
    // What the last tap said, and all variables that are not 0.
    std::string ofPen() const;
    std::string ofInterpreter() const;
    // How often the last tap said something.
    size_t says() const { return interpreter.said().size(); }

private:
    play::PlayedBook played;
    Interpreter interpreter;
};
