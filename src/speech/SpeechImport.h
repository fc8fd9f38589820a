#pragma once

#include <string>
#include <vector>

#include "speech/SpeechIndex.h"
#include "speech/SpeechTexts.h"

// Which of the author's own recordings belong to which texts, told by the names of the files.
struct SpeechImport
{
    // How a file names a text, the surest way first.
    enum Way { byAudioName, byText, byNumber, byWords };
    struct Match
    {
        std::string file;
        size_t text;  // in the texts
        Way way;
    };
    // What cannot be decided, or is not needed.
    struct Doubt
    {
        std::string file;
        std::vector<size_t> texts;  // which the file may mean
    };

    std::vector<Match> taken;             // at most one for each text, in the order of the texts
    std::vector<std::string> fitNothing;  // files
    // Files with a name that fits several texts.
    std::vector<Doubt> fitSeveral;
    // Files that fit one text, as others do, so that none of them is taken.
    std::vector<Doubt> rivals;
    // Files that fit one text for which there is one with a better name.
    std::vector<Doubt> secondBest;
};

// A file may be named, whatever its extension, like the audio name of a text ("say_adam_Moo"); like
// the text, where every character that is not an ASCII letter or digit counts as "_" ("Moo!",
// "Moo_"); begin with the number of the text on the reading sheet ("07 Moo"); or have the letters
// and digits of the text, whatever else stands between and behind them ("Moo"). The first that fits
// is meant; capitals count only where a name fits several texts without them. The files are paths,
// of which only the last part is looked at. Only numbers that were given count; while none ever
// was, they are those that a sheet would have now.
SpeechImport matchRecordings(const std::vector<std::string>& files,
                             const std::vector<SpeechText>& texts, const SheetNumbers& given = {});
