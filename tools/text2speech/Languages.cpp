#include "tools/text2speech/Languages.h"

#include <sstream>
#include <vector>

#include "base/TextHelpers.h"
#include "tools/text2speech/SpeakingProgram.h"

namespace {

void add(Languages& languages, const std::string& name, const Language& language)
{
    const auto [entry, isNew] = languages.emplace(toLower(name), language);
    if (!isNew && language.rank < entry->second.rank) {
        entry->second = language;
    }
}

// "zh 5", as it stands in brackets behind a voice that speaks other languages as well.
void addOthers(Languages& languages, const std::string& brackets, const Language& voice)
{
    std::istringstream text(brackets);
    for (std::string other; std::getline(text, other, ')');) {
        const size_t start = other.find('(');
        std::istringstream words(start == std::string::npos ? "" : other.substr(start + 1));
        std::string name;
        int rank = 0;
        if (words >> name >> rank) {
            add(languages, name, {voice.voice, voice.title, rank + 1});
        }
    }
}

// " 5  de              --/M      German             gmw/de               (x 5)"
void addVoice(Languages& languages, const std::string& line)
{
    std::istringstream words(line);
    int priority = 0;
    std::string code;
    std::string ageAndSex;
    std::string title;
    std::string file;
    if (!(words >> priority >> code >> ageAndSex >> title >> file) || code == "variant" ||
        file.compare(0, 3, "mb/") == 0) {
        return;
    }
    strReplace(title, "_", " ");
    const std::string name = file.substr(file.rfind('/') + 1);
    const Language language = {name, title, 0};
    add(languages, code, language);
    add(languages, name, language);
    std::string others;
    std::getline(words, others);
    addOthers(languages, others, language);
}

}  // namespace

Languages parseLanguages(const std::string& table)
{
    Languages languages;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        addVoice(languages, line);
    }
    return languages;
}

std::string findLanguages(Languages& languages)
{
    QByteArray table;
    std::string problem = runSpeakingProgram(kEspeak, {"--voices"}, "",
                                             [&](const QByteArray& piece) { table += piece; });
    languages = parseLanguages(table.toStdString());
    return problem;
}
