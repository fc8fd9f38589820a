#pragma once

#include "gme/LineParser.h"
#include "gme/ScriptLine.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace gme {

// Gives every register its number in the game file. First all registers are noted, then numbers are
// assigned: numbered registers keep theirs, the named ones take the free numbers from 0 on in
// ascending order of their names.
class Registers
{
public:
    static constexpr uint32_t kMost = 65535;  // entries of the table, which counts them in 16 bits

    void noteUse(const Register& reg);
    void noteUseIn(const ScriptLine& line);
    void noteInitialValue(const InitialValue& initial);
    // False when the table would be larger than kMost.
    bool assignNumbers();

    // These are for after the assignment.
    uint16_t numberOf(const Register& reg) const;
    // The first values from register 0 to the highest one that scripts use; at least one.
    std::vector<uint16_t> initialTable() const;

private:
    struct Use
    {
        bool inScripts = false;
        uint16_t initialValue = 0;
        uint32_t number = 0;
    };

    Use& useOf(const Register& reg);
    size_t tableSize() const;

    std::map<std::string, Use> named;
    std::map<uint16_t, Use> numbered;
};

}  // namespace gme
