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

}  // namespace

ReadingSheet readingSheetOf(const std::vector<SpeechText>& texts)
{
    ReadingSheet sheet;
    for (size_t i = 0; i < texts.size(); ++i) {
        if (texts[i].inItsPlace.line == 0) {
            voiceOf(sheet, texts[i].said.voice).lines.push_back({0, i});
        }
    }
    int number = 0;
    for (ReadingSheet::Voice& voice : sheet.voices) {
        for (ReadingSheet::Line& line : voice.lines) {
            line.number = ++number;
        }
    }
    return sheet;
}

std::string asPlainText(const ReadingSheet& sheet, const std::vector<SpeechText>& texts)
{
    const size_t width = std::max<size_t>(3, itostr(static_cast<int>(texts.size())).size());
    std::string plain;
    for (const ReadingSheet::Voice& voice : sheet.voices) {
        plain += (plain.empty() ? "" : "\n") + voice.name + "\n";
        for (const ReadingSheet::Line& line : voice.lines) {
            plain += lineOf(line.number, width, texts[line.text].said.text);
        }
    }
    return plain;
}
