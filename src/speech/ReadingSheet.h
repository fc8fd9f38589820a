#pragma once

#include <string>
#include <vector>

#include "speech/SpeechIndex.h"
#include "speech/SpeechTexts.h"

// A sheet to read a book's texts from, for somebody who records them elsewhere: the voices one
// after the other, their texts numbered. A recording finds its text again by this number, also
// after the script has changed: a number that is noted (SpeechIndex) stays its text's.
struct ReadingSheet
{
    struct Line
    {
        int number;   // from 1; each once
        size_t text;  // in the texts that the sheet was made of
    };
    struct Voice
    {
        std::string name;
        std::vector<Line> lines;
    };

    std::vector<Voice> voices;  // in the order in which they speak first
};

// Texts are in the order of their use. One that the pen never says, because another one has its
// audio name, is not on the sheet. Texts without a number get further ones, in the order of the
// sheet.
ReadingSheet readingSheetOf(const std::vector<SpeechText>& texts, const SheetNumbers& given = {});

// The numbers that its texts have.
SheetNumbers numbersOf(const ReadingSheet& sheet, const std::vector<SpeechText>& texts);

// The sheet as a text: each voice with its name, and below it a line for each text.
std::string asPlainText(const ReadingSheet& sheet, const std::vector<SpeechText>& texts);
