#pragma once

#include <cstddef>
#include <string>

namespace KVTextEditor {

// Replaces the first occurrence of a text again and again until there is none left. The result is
// that of starting again at the beginning after each replacement, found in one pass: what lies
// before a replacement holds no occurrence, so the next one ends behind that place.
// Intended: a replacement that contains the search text never ends; the caller runs the pass in
// pieces and decides when it is enough.
class ReplaceAll
{
public:
    enum State { running, finished, tooLarge };

    // The search text is not empty.
    ReplaceAll(std::u16string text, std::u16string search, const std::u16string& replacement);

    // Goes on for so many characters.
    State run(std::size_t characters);
    // The whole text as it is now, finished or not; the pass is over then.
    std::u16string takeText();

    // The pass stops when the text is longer; in characters, 1 GB unless changed.
    std::size_t limit = std::size_t(1) << 29;

private:
    std::size_t remaining() const;
    // Takes at most so many characters, but none behind one with which an occurrence may end; says
    // how many it took.
    std::size_t takeNext(std::size_t most);
    bool searchEndsHere() const;

    std::u16string search;
    std::u16string reversedReplacement;
    std::u16string done;      // holds no occurrence
    std::u16string replaced;  // reversed: comes next, beginning with its last character
    std::u16string source;    // from position on it comes after that
    std::size_t position = 0;
};

}  // namespace KVTextEditor
