#pragma once

#include "gme/Messages.h"

#include <map>
#include <string>
#include <vector>

namespace gme {

// YAML text made ready for the parser, one form per line and nothing but what a game needs.
struct PreparedYaml
{
    std::string text;
    std::vector<int> insertedLines;  // lines of text that have no line of their own in the file
    // Long plain texts of list entries, by the line of text where a short one stands for them.
    // The parser is slow by the character, and the lines of scripts are nearly all of a game.
    std::map<int, std::string> entries;

    // The line in the file of a line of text; both count from 1.
    int fileLine(int line) const;
    // A line of text as the file has it, without indentation and comment.
    std::string fileText(int line) const;
};

// Takes the comments out and refuses every form of YAML that no game needs, where it can be named
// in plain words and before it can cost time or memory: anchors, aliases, tags, block texts,
// bracketed lists other than the empty ones, quoted texts over several lines, document markers.
// False after the messages when there was such a line; all of them are reported.
bool prepareYaml(const std::string& source, PreparedYaml& prepared, Messages& messages);

}  // namespace gme
