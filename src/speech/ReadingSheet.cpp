#include "speech/ReadingSheet.h"

#include <algorithm>

#include "base/TextHelpers.h"

namespace {

ReadingSheet::Voice& voiceOf(ReadingSheet& sheet, const std::string& name)
{
    const auto found = std::find_if(sheet.voices.begin(), sheet.voices.end(),
                                    [&](const auto& voice) { return voice.name == name; });
    return found != sheet.voices.end() ? *found
                                       : sheet.voices.emplace_back(ReadingSheet::Voice{name, {}});
}

// "  7  Moo": numbers stand one below the other.
std::string lineOf(int number, size_t width, const std::string& text)
{
    const std::string digits = itostr(number);
    return std::string(width - digits.size(), ' ') + digits + "  " + text + "\n";
}

int lastOf(const SheetNumbers& numbers)
{
    int last = 0;
    for (const auto& [name, number] : numbers) {
        last = std::max(last, number);
    }
    return last;
}

}  // namespace

ReadingSheet readingSheetOf(const std::vector<SpeechText>& texts, const SheetNumbers& given)
{
    ReadingSheet sheet;
    for (size_t i = 0; i < texts.size(); ++i) {
        if (texts[i].inItsPlace.line == 0) {
            voiceOf(sheet, texts[i].said.voice).lines.push_back({0, i});
        }
    }
    int last = lastOf(given);
    for (ReadingSheet::Voice& voice : sheet.voices) {
        for (ReadingSheet::Line& line : voice.lines) {
            const auto found = given.find(texts[line.text].audioName);
            line.number = found != given.end() ? found->second : ++last;
        }
    }
    return sheet;
}

SheetNumbers numbersOf(const ReadingSheet& sheet, const std::vector<SpeechText>& texts)
{
    SheetNumbers numbers;
    for (const ReadingSheet::Voice& voice : sheet.voices) {
        for (const ReadingSheet::Line& line : voice.lines) {
            numbers[texts[line.text].audioName] = line.number;
        }
    }
    return numbers;
}

std::string asPlainText(const ReadingSheet& sheet, const std::vector<SpeechText>& texts)
{
    const size_t width = std::max<size_t>(3, itostr(lastOf(numbersOf(sheet, texts))).size());
    std::string plain;
    for (const ReadingSheet::Voice& voice : sheet.voices) {
        plain += (plain.empty() ? "" : "\n") + voice.name + "\n";
        for (const ReadingSheet::Line& line : voice.lines) {
            plain += lineOf(line.number, width, texts[line.text].said.text);
        }
    }
    return plain;
}
