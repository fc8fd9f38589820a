#pragma once

#include "gme/ScriptLine.h"

#include <string>
#include <string_view>
#include <vector>

namespace gme {

// Reads the tokens of a script line, of "init" or of "welcome". Every read function leaves the
// position alone when its token is not there, and remembers what it looked for: the failure that
// lies furthest to the right is the one worth telling.
class LineScanner
{
public:
    // An operator and the number that stands for it in the game file.
    struct Operator
    {
        const char* text;
        uint16_t code;
    };

    explicit LineScanner(std::string_view line) : text(line) {}

    size_t position() const { return at; }
    void goBackTo(size_t position, size_t largeNumberCount);

    void skipSpace();
    // Behind any white space.
    bool isAtEnd();

    // Each skips the white space before its token.
    bool readSign(char sign);
    bool readWord(std::string_view word);
    bool readNumber(uint16_t& number);
    bool readRegister(Register& reg);
    bool readValue(Operand& value);
    bool readAudioName(std::string& name);
    bool readScriptName(std::string& name);
    template <size_t count>
    bool readOperator(const Operator (&operators)[count], const char* kind, uint16_t& code)
    {
        return readOperator(operators, operators + count, kind, code);
    }

    // True when the next token begins with an ASCII digit, or with the given character.
    bool isBeforeDigit();
    bool isBefore(char c);

    // Remembers that the thing was looked for here. Always false.
    bool fail(const std::string& expected);
    // "syntax error in column 8: a comparison or an assignment expected before "= $y"".
    std::string failure() const;
    // Its place in bytes.
    size_t failurePosition() const { return furthest; }

    // The numbers that were reduced modulo 65536.
    const std::vector<Word>& largeNumbers() const { return large; }

private:
    bool readOperator(const Operator* first, const Operator* last, const char* kind,
                      uint16_t& code);
    bool readDigits(unsigned base, uint16_t& number);
    bool readQuotedName(std::string& name);
    void noteIfInsideWord(const std::string& expected);
    size_t wordLength(bool withDots) const;
    char current(size_t ahead = 0) const;

    std::string_view text;
    size_t at = 0;
    size_t furthest = 0;
    std::vector<std::string> expectations;  // at the furthest failure
    std::vector<Word> large;
};

// Reads one command and appends it, and the files that it plays, to the line. False when there is
// no command here; the scanner knows why.
bool readCommand(LineScanner& scanner, ScriptLine& line);

}  // namespace gme
