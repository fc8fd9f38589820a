#pragma once

#include "play/PlayedBook.h"

#include <optional>
#include <string>
#include <vector>

namespace play {

// Something to say about a line of a test file.
struct TestMessage
{
    int line = 0;  // from 1
    std::string text;
};

// One line of a test that does or expects something.
struct TestCommand
{
    enum class Kind {
        start,
        tap,       // code
        wait,      // amount, in seconds
        seed,      // count
        repeat,    // count times what stands before the end
        end,       // of the innermost repeat
        say,       // what is said next is texts[0], or whatever is chosen is one of the texts
        silence,   // nothing is said, or nothing more
        variable,  // name, comparison, count
        sound,     // amount: until the first sound, or until rest where nothing is said
        rest       // amount: until rest
    };
    enum class Unit { steps, seconds };

    Kind kind = Kind::start;
    int line = 0;
    std::string words;  // as they are written, without "expect"
    uint16_t code = 0;
    uint64_t count = 0;
    double amount = 0;
    Unit unit = Unit::steps;
    bool isOneOf = false;
    std::vector<std::string> texts;
    std::string name;
    std::string comparison;
    size_t other = 0;  // of a repeat the index of its end, of an end that of its repeat
};

// A test of a book, as the author writes it (docs/manual/en/book-tests.md).
struct BookTest
{
    std::vector<TestCommand> commands;
};

// A number such as "20" or "2.5", of at most nine characters.
std::optional<double> amountIn(const std::string& text);

// Reads the text of a test file. Names are those of the book. None when there are mistakes; all of
// them are told, in the order of the lines.
std::optional<BookTest> readBookTest(const std::string& text, const Book& book,
                                     std::vector<TestMessage>& mistakes);

// The line of a test that touches the code, with its line end: by the area's name where there is
// one.
std::string tapLineOf(uint16_t code, const Book& book);

// The lines of a test that expect what came of a tap, each with its line end: what was said or
// silence, and the variables that were changed.
std::string expectationsOf(const Outcome& outcome, const Book& book);

}  // namespace play
