// Texts that the pen does not say as they are written.
#include <QtGlobal>

#include "base/TextHelpers.h"
#include "hints/HintLists.h"
#include "hints/ScriptPlaces.h"

namespace hints {

namespace {

using Text = ScriptOutline::Text;

// One `say` a line, each with the voice.
TextEdits oneAfterTheOther(const Book& book, const Text* first, const Text* last)
{
    const ScriptOutline::Statement& say = book.script.statements[first->statement];
    const std::string line = book.lineOfScript(say.place.line);
    const int begin = say.place.column - 1;
    const std::string start = line.substr(0, first->word.place.column - 1);
    const bool isIndented = start.find_first_not_of(" \t") >= static_cast<std::size_t>(begin);
    TextEdits edits;
    for (const Text* text = first; text != last; ++text) {
        const ScriptOutline::Place& place = text->word.place;
        const int end = place.column + place.length;
        const int gap = (text + 1)->word.place.column - end;
        edits.push_back({place.line, end, gap, "\n" + (isIndented ? start : start.substr(begin))});
    }
    return edits;
}

// The texts of one `say`: what follows it is the first one of another.
const Text* endOfSay(const std::vector<Text>& texts, const Text* first)
{
    const Text* text = first;
    while (text != texts.data() + texts.size() && text->statement == first->statement) {
        ++text;
    }
    return text;
}

void findSeveralTexts(const Book& book, Report& report)
{
    const std::vector<Text>& texts = book.script.texts;
    const Text* const end = texts.data() + texts.size();
    for (const Text* first = texts.data(); first != end;) {
        const Text* const next = endOfSay(texts, first);
        const Text* const last = next - 1;
        if (last != first) {
            Finding& finding =
                report.add(placeInScript(across(first->word.place, last->word.place)));
            finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Say one after the other"),
                              oneAfterTheOther(book, first, last)};
        }
        first = next;
    }
}

void findPercentSigns(const Book& book, Report& report)
{
    for (const Text& text : book.script.texts) {
        const std::size_t at = text.word.text.find("%%");
        if (at == std::string_view::npos) {
            continue;
        }
        const int column = text.word.place.column + static_cast<int>(at);
        Finding& finding =
            report.add(placeInScript(ScriptOutline::Place{text.word.place.line, column, 2}));
        finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Write one percent sign"),
                          TextEdits{{text.word.place.line, column, 2, "%"}}};
    }
}

// The text that comes last is in the file, so the others are told.
void findSharedAudio(const Book& book, Report& report)
{
    std::map<std::string, const Text*> last;
    for (const Text& text : book.script.texts) {
        last[text.audioName] = &text;
    }
    for (const Text& text : book.script.texts) {
        const Text& spoken = *last.at(text.audioName);
        if (text.text != spoken.text || text.voice != spoken.voice) {
            report.add(placeInScript(text.word),
                       {std::string(spoken.text), itostr(spoken.word.place.line)});
        }
    }
}

void findLongAudioNames(const Book& book, Report& report)
{
    constexpr std::size_t kLongest = 251;  // bytes, with ".ogg" what a file system takes
    for (const Text& text : book.script.texts) {
        if (text.audioName.size() > kLongest) {
            report.add(placeInScript(text.word), {itostr(static_cast<int>(text.audioName.size()))});
        }
    }
}

// An option without its value does not compile.
void findRefusedLanguages(const Book& book, Report& report)
{
    for (const ScriptOutline::Voice& voice : book.script.voices) {
        for (const ScriptOutline::VoiceOption& option : voice.options) {
            const bool isLanguage = toLower(std::string(option.word.text)) == "lang";
            if (isLanguage && option.value.place.line > 0 &&
                !ScriptLanguage::isLanguage(option.value.text)) {
                report.add(placeInScript(option.value), {std::string(option.value.text)});
            }
        }
    }
}

}  // namespace

std::vector<Hint> sayHints()
{
    return {
        {"several-texts",
         QT_TRANSLATE_NOOP("Hints", "The pen says only one of these texts, at random"),
         Subject::book, findSeveralTexts},
        {"percent-signs",
         QT_TRANSLATE_NOOP("Hints", "The saved project has one percent sign less here"),
         Subject::book, findPercentSigns},
        {"shared-audio-file",
         QT_TRANSLATE_NOOP("Hints", "This text shares its audio file with \"%1\" in line %2, and "
                                    "the pen says that one here, too"),
         Subject::book, findSharedAudio},
        {"long-text",
         QT_TRANSLATE_NOOP("Hints", "This text is too long: the name of its audio file has %1 "
                                    "characters, and 251 are the most"),
         Subject::book, findLongAudioNames},
        {"voice-language",
         QT_TRANSLATE_NOOP("Hints", "\"%1\" cannot be a language, so the texts of this voice are "
                                    "not spoken"),
         Subject::book, findRefusedLanguages},
    };
}

}  // namespace hints
