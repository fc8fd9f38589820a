#include "speech/SpeechImport.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <map>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "speech/ReadingSheet.h"

namespace {

using Way = SpeechImport::Way;

struct Meaning
{
    Way way = Way::byNumber;
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

// What is left of "Who lays eggs?" where a file's name can hold no such sign: letters and digits.
std::string wordsOf(const QString& text)
{
    QString words;
    std::copy_if(text.begin(), text.end(), std::back_inserter(words),
                 [](QChar c) { return c.isLetterOrNumber() || c.isSurrogate() || c.isMark(); });
    return words.toStdString();
}

class Matcher
{
public:
    Matcher(const std::vector<SpeechText>& allTexts, const SheetNumbers& given);
    SpeechImport match(const std::vector<std::string>& files);

private:
    // By a name in small letters and the name as it is.
    using Texts = std::multimap<std::pair<std::string, std::string>, size_t>;

    static void add(Texts& texts, const std::string& name, size_t text)
    {
        texts.emplace(std::pair(toLower(name), name), text);
    }
    Meaning meaningOf(const QString& name) const;
    static std::vector<size_t> find(const Texts& texts, const std::string& name);
    std::vector<size_t> findNumber(const QString& name) const;
    void decide(size_t text, const std::map<Way, std::vector<std::string>>& files);

    Texts audioNames;
    Texts saidTexts;
    Texts saidWords;
    std::map<int, size_t> numbers;
    SpeechImport import;
};

Matcher::Matcher(const std::vector<SpeechText>& allTexts, const SheetNumbers& given)
{
    for (const ReadingSheet::Voice& voice : readingSheetOf(allTexts, given).voices) {
        for (const ReadingSheet::Line& line : voice.lines) {
            const SpeechText& text = allTexts[line.text];
            if (given.empty() || given.count(text.audioName) != 0) {
                numbers[line.number] = line.text;
            }
            add(audioNames, text.audioName, line.text);
            const QString said = composed(text.said.text);
            add(saidTexts, asAudioName(said), line.text);
            add(saidWords, wordsOf(said), line.text);
        }
    }
}

// Exactly, or else whatever the capitals.
std::vector<size_t> Matcher::find(const Texts& texts, const std::string& name)
{
    std::vector<size_t> exact;
    std::vector<size_t> alike;
    const std::string lower = toLower(name);
    for (auto found = texts.lower_bound({lower, ""});
         found != texts.end() && found->first.first == lower; ++found) {
        (found->first.second == name ? exact : alike).push_back(found->second);
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
    const std::string words = wordsOf(name);
    for (const auto& [way, texts] :
         {std::pair(Way::byAudioName, find(audioNames, plain)),
          std::pair(Way::byText, find(saidTexts, plain)),
          std::pair(Way::byNumber, findNumber(name)),
          std::pair(Way::byWords,
                    words.empty() ? std::vector<size_t>() : find(saidWords, words))}) {
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
        import.taken.push_back({best.front(), text, files.begin()->first});
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
                             const std::vector<SpeechText>& texts, const SheetNumbers& given)
{
    return Matcher(texts, given).match(files);
}
