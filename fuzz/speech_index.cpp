// Any file as the index of an audio folder: it is told that it is damaged, or what is saved of it
// is read as it was.
#include "fuzz/Fuzzing.h"

#include "speech/SpeechIndex.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::clearFolder();
    const std::string file = fuzzing::fileWith(data, size, SpeechIndex::kFileName);
    fuzzing::fileWith("Moo", "moo.ogg");
    SpeechIndex index(fuzzing::folder());
    const bool isGood = index.state() == SpeechIndex::State::good;
    fuzzing::require(isGood == index.problem().empty(), "a problem is told");
    const bool isOurs = index.spokenInto("moo") != nullptr;
    fuzzing::require(isGood || !isOurs, "nothing is taken from a damaged index");
    fuzzing::require(index.save(), "it can be saved");
    const std::string saved = fuzzing::bytesOf(file);

    SpeechIndex again(fuzzing::folder());
    fuzzing::require(again.state() == SpeechIndex::State::good, "what was saved is good");
    fuzzing::require((again.spokenInto("moo") != nullptr) == isOurs, "a file stays ours");
    fuzzing::require(again.save(), "it can be saved again");
    fuzzing::requireEqual(saved, fuzzing::bytesOf(file), "what was saved is read as it was");
    fuzzing::requireEqual(std::string(reinterpret_cast<const char*>(data), size),
                          isGood ? std::string(reinterpret_cast<const char*>(data), size)
                                 : fuzzing::bytesOf(file + ".damaged"),
                          "a damaged one is kept");
    return 0;
}
