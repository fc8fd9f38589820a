#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// Carries scripts out as docs/manual/en/script.md tells it, statement by statement, without
// compiler and pen. For scripts without mistakes only.
class Interpreter
{
public:
    explicit Interpreter(const std::string& script);

    // The area of a sub is touched. False when its statements came to no end.
    bool tap(const std::string& sub);

    // A text for each choice of a `say`: "eve: Moo!".
    using Say = std::vector<std::string>;
    // By the last tap, in order.
    const std::vector<Say>& said() const { return saysOfTap; }
    // All that were ever set; the others are 0.
    const std::map<std::string, uint16_t>& variables() const { return values; }

    static constexpr int kMostStatements = 4000;  // behind a tap

private:
    struct Branch;
    struct Statement
    {
        enum class Kind { assignment, ifBlock, select, jump, say };
        Kind kind;
        std::string name;        // of a variable or a sub
        std::string expression;  // of an assignment or an `if`
        Say sounds;              // the names of audio files
        std::vector<Branch> branches;
    };
    using Block = std::vector<Statement>;
    // The block of an `if` (1) and of its `else` (0), of a `case`, and of `default` (none).
    struct Branch
    {
        std::optional<uint16_t> value;
        Block block;
    };

    // How a block ended.
    enum class End { reached, jumped, tooLong };

    void readLines(const std::string& script);
    Block readBlock(std::vector<std::string>& ends);
    void readIf(Statement& statement);
    void readSelect(Statement& statement);
    void readSay(Statement& statement, const std::string& rest);

    End run(const Block& block);
    End run(const Statement& statement);
    End runSelect(const Statement& statement);
    void say(const Statement& statement);

    std::vector<std::string> lines;  // without comments, white space around them, and empty ones
    size_t next = 0;                 // of them
    std::map<std::string, Block> subs;
    std::map<std::string, std::string> texts;  // by the name of the audio file: "eve: Moo!"

    std::map<std::string, uint16_t> values;
    std::vector<Say> saysOfTap;
    std::string target;  // of the jump that is being taken
    int statements = 0;  // run behind the tap
};
