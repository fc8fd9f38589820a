#pragma once

#include <string>
#include <variant>
#include <vector>

namespace hints {

// Another text for a part of the script: line and column from 1, column and length in bytes of the
// line. The text may have line ends ("\n"); with length 0 it is put in.
struct TextEdit
{
    int line = 0;
    int column = 0;
    int length = 0;
    std::string text;

    bool operator==(const TextEdit& other) const
    {
        return line == other.line && column == other.column && length == other.length &&
               text == other.text;
    }
};

// Edits in the order of the script, which do not overlap; all places are those before any of them.
using TextEdits = std::vector<TextEdit>;

// Another number for all areas of a name.
struct AreaNumber
{
    std::string name;
    int oid = 0;

    bool operator==(const AreaNumber& other) const
    {
        return name == other.name && oid == other.oid;
    }
};

// Another print resolution for a page, which is counted from 1.
struct PrintResolution
{
    int page = 0;
    int dpi = 0;

    bool operator==(const PrintResolution& other) const
    {
        return page == other.page && dpi == other.dpi;
    }
};

// What puts right what a hint has found, without taking away anything that the author has written.
struct Fix
{
    const char* words = nullptr;  // what a button says, marked for translations as those of hints
    std::variant<TextEdits, AreaNumber, PrintResolution> change;

    bool operator==(const Fix& other) const
    {
        return words == other.words && change == other.change;
    }
};

// Where each line of a script begins.
std::vector<std::size_t> startsOfLines(const std::string& script);

// The script with the edits.
std::string edited(const std::string& script, const TextEdits& edits);

}  // namespace hints
