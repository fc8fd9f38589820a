// Names of variables and subs that do not lead where they seem to.
#include <QtGlobal>

#include "base/TextHelpers.h"
#include "base/Unicode.h"
#include "hints/HintLists.h"
#include "hints/ScriptPlaces.h"

#include <algorithm>
#include <set>

namespace hints {

namespace {

using Outline = ScriptOutline;
using Access = Outline::Access;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Letters, digits and underscores only, no digit first.
bool isAssemblersName(std::string_view name)
{
    if (name.empty() || isDigit(name.front())) {
        return false;
    }
    while (!name.empty()) {
        char32_t c = 0;
        if (!Utf8::takeCharacter(name, c) || (c != '_' && !isLetterOrNumber(c))) {
            return false;
        }
    }
    return true;
}

// "12", "0x1F" and "0o17" are numbers to the assembler, "1st" is nothing.
bool isAssemblersNumber(const std::string& word)
{
    const std::string start = toLower(word.substr(0, 2));
    if (word.size() > 2 && start == "0x") {
        return word.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string::npos;
    }
    if (word.size() > 2 && start == "0o") {
        return word.find_first_not_of("01234567", 2) == std::string::npos;
    }
    return word.find_first_not_of("0123456789") == std::string::npos;
}

// The compiler fills these without the author's doing.
bool isCompilers(const std::string& name)
{
    return name == "rnd" || name.front() == ScriptLanguage::kReservedStart ||
           name.rfind("ifexp", 0) == 0;
}

std::set<std::string> namesThatAre(const Outline& script, bool set)
{
    std::set<std::string> names;
    for (const Outline::Variable& variable : script.variables) {
        if ((variable.access == Access::set) == set) {
            names.insert(toLower(variable.name));
        }
    }
    return names;
}

void findCapitals(const Book& book, Report& report)
{
    const std::set<std::string> read = namesThatAre(book.script, false);
    for (const Outline::Variable& variable : book.script.variables) {
        const std::string lowered = toLower(variable.name);
        if (variable.access == Access::set && lowered != variable.name && read.count(lowered) > 0) {
            Finding& finding = report.add(placeInScript(variable.word), {variable.name, lowered});
            const Outline::Place& place = variable.word.place;
            finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Write it in small letters"),
                              TextEdits{{place.line, place.column, place.length, lowered}}};
        }
    }
}

// The first place of each name that is set (or read) and in the whole script never the other.
void findLonely(const Book& book, Report& report, bool set)
{
    std::set<std::string> others = namesThatAre(book.script, !set);
    for (const Outline::Variable& variable : book.script.variables) {
        if ((variable.access == Access::set) == set && !isCompilers(variable.name) &&
            others.insert(toLower(variable.name)).second) {
            report.add(placeInScript(variable.word), {variable.name});
        }
    }
}

void findNeverRead(const Book& book, Report& report)
{
    findLonely(book, report, true);
}

void findNeverSet(const Book& book, Report& report)
{
    findLonely(book, report, false);
}

// A tab is part of a name. What begins with a digit is told where a name is meant, not a number.
void findVariableNames(const Book& book, Report& report)
{
    std::set<std::string> told;
    const auto tell = [&](const Outline::Word& word) {
        if (told.emplace(word.text).second) {
            report.add(placeInScript(word), {std::string(word.text)});
        }
    };
    for (const Outline::Variable& variable : book.script.variables) {
        if (!isAssemblersName(variable.name)) {
            tell(variable.word);
        }
    }
    for (const Outline::Token& token : book.script.tokens) {
        if (token.kind == Outline::TokenKind::number && !isAssemblersNumber(token.text)) {
            tell(token.word);
        }
    }
}

// The compiler names the steps of a script asm1, asm2 and so on.
void findStepNames(const Book& book, Report& report)
{
    constexpr std::string_view kStep = "asm";
    for (const Outline::Sub& sub : book.script.subs) {
        const std::string_view name = sub.name.text;
        if (name.size() > kStep.size() && name.substr(0, kStep.size()) == kStep &&
            std::all_of(name.begin() + kStep.size(), name.end(), isDigit)) {
            report.add(placeInScript(sub.name), {std::string(name)});
        }
    }
}

// Where there is no such sub, the compiler says so.
void findRefusedTargets(const Book& book, Report& report)
{
    for (const Outline::Goto& jump : book.script.gotos) {
        if (!isAssemblersName(jump.target.text) && book.subs.count(jump.target.text) > 0) {
            report.add(placeInScript(jump.target), {std::string(jump.target.text)});
        }
    }
}

}  // namespace

std::vector<Hint> nameHints()
{
    return {
        {"capitals",
         QT_TRANSLATE_NOOP("Hints", "'%1' is set here, but '%2' is read: names are read in small "
                                    "letters, and these are two variables"),
         Subject::book, findCapitals},
        {"never-read", QT_TRANSLATE_NOOP("Hints", "The variable '%1' is set but never read"),
         Subject::book, findNeverRead},
        {"never-set",
         QT_TRANSLATE_NOOP("Hints", "The variable '%1' is read but never set, so it is always 0"),
         Subject::book, findNeverSet},
        {"variable-name",
         QT_TRANSLATE_NOOP("Hints", "No game can be built with a variable named '%1': letters, "
                                    "digits and underscores are possible, but no digit first"),
         Subject::book, findVariableNames},
        {"step-name",
         QT_TRANSLATE_NOOP("Hints", "The compiler uses the name '%1' itself; one of the two would "
                                    "be lost"),
         Subject::book, findStepNames},
        {"goto-refused",
         QT_TRANSLATE_NOOP("Hints", "No game can be built with a goto to '%1': letters, digits and "
                                    "underscores are possible, but no digit first"),
         Subject::book, findRefusedTargets},
    };
}

}  // namespace hints
