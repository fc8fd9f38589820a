#include "speech/SpeechImport.h"

#include <QFileInfo>

#include <algorithm>
#include <map>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "speech/ReadingSheet.h"

namespace {

// How a file names a text, the surest way first.
enum Way { byAudioName, byText, byNumber };

struct Meaning
{
    Way way = byNumber;
    std::vector<size_t> texts;
};

// Composed, since some systems take the letters of names apart.
QString composed(const std::string& text)
{
    return QString::fromStdString(text).normalized(QString::NormalizationForm_C);
}

std::string asAudioName(const QString& text)
{
    return replaceNonAscii(text.toStdString());
}

class Matcher
{
public:
    explicit Matcher(const std::vector<SpeechText>& allTexts);
    SpeechImport match(const std::vector<std::string>& files);

private:
    using Texts = std::multimap<std::string, size_t>;

    Meaning meaningOf(const QString& name) const;
    static std::vector<size_t> find(const Texts& texts, const std::string& name);
    std::vector<size_t> findNumber(const QString& name) const;
    void decide(size_t text, const std::map<Way, std::vector<std::string>>& files);

    Texts audioNames;
    Texts saidTexts;
    std::map<int, size_t> numbers;
    SpeechImport import;
};

Matcher::Matcher(const std::vector<SpeechText>& allTexts)
{
    for (const ReadingSheet::Voice& voice : readingSheetOf(allTexts).voices) {
        for (const ReadingSheet::Line& line : voice.lines) {
            const SpeechText& text = allTexts[line.text];
            numbers[line.number] = line.text;
            audioNames.emplace(text.audioName, line.text);
            saidTexts.emplace(asAudioName(composed(text.said.text)), line.text);
        }
    }
}

// Exactly, or else whatever the capitals.
std::vector<size_t> Matcher::find(const Texts& texts, const std::string& name)
{
    std::vector<size_t> exact;
    std::vector<size_t> alike;
    for (const auto& [candidate, text] : texts) {
        if (candidate == name) {
            exact.push_back(text);
        } else if (toLower(candidate) == toLower(name)) {
            alike.push_back(text);
        }
    }
    return exact.empty() ? alike : exact;
}

// "07", "7 Moo" and "7_moo", but not "7up".
std::vector<size_t> Matcher::findNumber(const QString& name) const
{
    const auto isDigit = [](QChar c) { return c >= '0' && c <= '9'; };
    const auto end = std::find_if_not(name.begin(), name.end(), isDigit);
    if (end == name.begin() || (end != name.end() && end->isLetterOrNumber())) {
        return {};
    }
    bool fits = false;
    const int number = name.left(static_cast<int>(end - name.begin())).toInt(&fits);
    const auto found = numbers.find(number);
    return fits && found != numbers.end() ? std::vector<size_t>{found->second}
                                          : std::vector<size_t>();
}

Meaning Matcher::meaningOf(const QString& name) const
{
    const std::string plain = asAudioName(name);
    for (const auto& [way, texts] :
         {std::pair(byAudioName, find(audioNames, plain)),
          std::pair(byText, find(saidTexts, plain)), std::pair(byNumber, findNumber(name))}) {
        if (!texts.empty()) {
            return {way, texts};
        }
    }
    return {};
}

SpeechImport Matcher::match(const std::vector<std::string>& files)
{
    std::map<size_t, std::map<Way, std::vector<std::string>>> wanted;  // by text
    for (const std::string& file : files) {
        const QFileInfo info(composed(Platform::nativePath(file)));
        const Meaning meaning = meaningOf(info.completeBaseName());
        if (meaning.texts.empty()) {
            import.fitNothing.push_back(file);
        } else if (meaning.texts.size() > 1) {
            import.fitSeveral.push_back({file, meaning.texts});
        } else {
            wanted[meaning.texts.front()][meaning.way].push_back(file);
        }
    }
    for (const auto& [text, candidates] : wanted) {
        decide(text, candidates);
    }
    return std::move(import);
}

void Matcher::decide(size_t text, const std::map<Way, std::vector<std::string>>& files)
{
    const std::vector<std::string>& best = files.begin()->second;
    if (best.size() == 1) {
        import.taken.push_back({best.front(), text});
    }
    for (const auto& [way, candidates] : files) {
        const bool areBest = &candidates == &best;
        if (areBest && best.size() == 1) {
            continue;
        }
        for (const std::string& file : candidates) {
            (areBest ? import.rivals : import.secondBest).push_back({file, {text}});
        }
    }
}

}  // namespace

SpeechImport matchRecordings(const std::vector<std::string>& files,
                             const std::vector<SpeechText>& texts)
{
    return Matcher(texts).match(files);
}
