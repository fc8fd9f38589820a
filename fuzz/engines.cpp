// Any file as the settings that name the programs which speak: what is wrong is told with its
// place, or each language has an engine whose command holds nothing of the text but where it says.
#include "fuzz/Fuzzing.h"

#include "speech/Engines.h"

namespace {

void require(const Engine& engine, const std::string& text)
{
    ttbasic::VOICE voice;
    voice.language = "de-at";
    Engine::Values values = engine.valuesOf(voice);
    values["text"] = text;
    values["textfile"] = "/text";
    values["wav"] = "/wav";
    const std::vector<std::string> words = engine.filled(values);
    fuzzing::require(words.size() == engine.words.size(), "a text makes no further words");
    fuzzing::requireEqual(words.front(), engine.program(), "a text does not choose the program");
    for (const std::string& word : words) {
        fuzzing::require(text.empty() || word.rfind(text, 0) != 0 || text[0] != '-',
                         "a text is no option");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string file = fuzzing::fileWith(data, size, "engines.ini");
    LanguageEngines engines;
    const std::string problem = readEngineFile(file, engines);
    const Engines all({file});
    fuzzing::requireEqual(problem, all.problem(), "what is wrong");
    if (!problem.empty()) {
        fuzzing::require(problem.rfind(file + ", line ", 0) == 0, "a problem has a place");
        fuzzing::require(all.programs().empty(), "there are no engines");
        return 0;
    }
    for (const auto& [language, engine] : engines) {
        fuzzing::require(language == "*" || isLanguageName(language), "a language");
        if (!engine.words.empty()) {
            require(engine, "--Ju 'x' {wav}");
            const Engine* const found = all.find(language == "*" ? "xx-none" : language);
            fuzzing::require(found != nullptr, "who speaks it");
        }
    }
    return 0;
}
