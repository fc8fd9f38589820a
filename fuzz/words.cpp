// Any line as words: all splitters end, and agree where they do the same.
#include "fuzz/Fuzzing.h"

#include "base/QuotedWords.h"
#include "base/TextHelpers.h"
#include "programs/ProcessRunner.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> words;
    std::vector<std::string> bare;
    SplitStringKeepQuotes(text, words, false);
    SplitStringKeepQuotes(text, bare, true);
    const std::vector<QuotedWord> places = quotedWordsOf(text);
    fuzzing::require(words.size() == places.size() && bare.size() == places.size(),
                     "there are as many words");
    for (size_t i = 0; i < places.size(); ++i) {
        fuzzing::requireEqual(words[i], std::string(places[i].in(text)), "a word");
        fuzzing::requireEqual(bare[i], std::string(places[i].contentIn(text)), "without quotes");
        fuzzing::require(i == 0 || places[i - 1].end <= places[i].begin, "words follow each other");
    }
    for (const std::string& word : commandWords(text)) {
        fuzzing::require(word.size() <= text.size(), "a word of a command is a part of it");
    }
    std::vector<std::string> arguments = bare;
    arguments.insert(arguments.begin(), "program");
    parseCommandLineOptions({{"o", "default"}}, arguments);
    return 0;
}
