#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <vector>

// What others have to say about a part of the text: a line beside its number, with a wave below the
// part, and the words as its tool tip.
struct TextMark
{
    enum Kind { error, warning, hint };  // the worst first

    // As compilers count: line from 1, column from 1 and length in bytes of UTF-8. Column 0: the
    // line as a whole.
    int line = 0;
    int column = 0;
    int length = 0;
    Kind kind = error;
    QString words;
};

// The marks of a text, by line. They stay where they are while the text changes, until there are
// new ones.
class LineMarks
{
public:
    using Range = std::pair<const TextMark*, const TextMark*>;

    void set(std::vector<TextMark> newMarks);
    const std::vector<TextMark>& all() const { return marks; }
    // The marks of a line, counted from 0: from the first to just before the second.
    Range of(int line) const;
    // None without a mark.
    std::optional<TextMark::Kind> worst_of(int line) const;

private:
    std::vector<TextMark> marks;  // in the order of the text
};
