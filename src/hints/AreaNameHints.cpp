// Names of areas that do not come through to the game as they are written.
#include <QtGlobal>

#include "gme/Codes.h"
#include "gme/Yaml.h"
#include "hints/HintLists.h"

namespace hints {

namespace {

// The description's table of codes with these names; each as it is written there.
std::optional<std::vector<std::string>> namesRead(const std::vector<std::string>& names)
{
    std::string text = "scriptcodes:\n";
    for (const std::string& name : names) {
        text += "    " + name + ":  1\n";
    }
    gme::YamlNode root;
    gme::Messages unheard("", [](const Diagnostic&) {});
    if (!gme::readYaml(text, root, unheard) || root.children.size() != 1) {
        return std::nullopt;
    }
    std::vector<std::string> read;
    for (const gme::YamlNode& entry : root.children[0].children) {
        read.push_back(entry.key);
    }
    return read;
}

std::vector<std::string> namesOf(const Book& book)
{
    std::vector<std::string> names;
    for (const auto& area : book.areas) {
        names.push_back(area.first);
    }
    return names;
}

// Tells of each name what a game description makes of it: nothing where it is refused. Names that
// come through are left out. Mostly all do, so many are read together.
template <class Tell>
void tellLostNames(const std::vector<std::string>& names, Tell tell)
{
    const auto read = namesRead(names);
    if (names.empty() || read == names) {
        return;
    }
    if (names.size() == 1) {
        tell(names[0], read && read->size() == 1 ? &read->front() : nullptr);
        return;
    }
    const auto half = names.begin() + static_cast<std::ptrdiff_t>(names.size() / 2);
    tellLostNames({names.begin(), half}, tell);
    tellLostNames({half, names.end()}, tell);
}

void findRefused(const Book& book, Report& report)
{
    tellLostNames(namesOf(book), [&](const std::string& name, const std::string* read) {
        if (read == nullptr) {
            report.add(book.areas.at(name));
        }
    });
}

void findChanged(const Book& book, Report& report)
{
    tellLostNames(namesOf(book), [&](const std::string& name, const std::string* read) {
        if (read != nullptr) {
            report.add(book.areas.at(name), {*read});
        }
    });
}

// A script whose name is a number would be refused among others, and there are always others: the
// steps that the compiler makes.
void findNumbers(const Book& book, Report& report)
{
    for (const auto& [name, area] : book.areas) {
        if (book.subs.count(name) > 0 && gme::numericName(name)) {
            report.add(area);
        }
    }
}

}  // namespace

std::vector<Hint> areaNameHints()
{
    return {
        {"area-name-refused",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: no game can be built with this name"),
         Subject::book, findRefused},
        {"area-name-changed",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: the game reads this name as '%3'"),
         Subject::book, findChanged},
        {"area-name-number",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: no game can be built with a sub whose "
                                    "name is a number"),
         Subject::book, findNumbers},
    };
}

}  // namespace hints
