// The product's name and number, and what there is of it as a whole.
#include <QFileInfo>
#include <QString>
#include <QtGlobal>

#include "document/BookNumbers.h"
#include "hints/HintLists.h"

namespace hints {

namespace {

constexpr int kFirstHomeMade = 900;
constexpr int kLastHomeMade = 950;
constexpr int kMostSteps = 13998;
constexpr int kFirstStepCode = 1000;
constexpr int kLastStepCode = 14999;
constexpr int kMuch = 80;  // percent of the steps

Diagnostic placeOfProduct(const Book& book)
{
    Diagnostic place;
    place.subject = book.project.productName;
    return place;
}

// Those of the name that fulfil the condition, each once: "\" /".
template <class Condition>
std::string charactersOf(const std::string& name, Condition condition)
{
    QStringList found;
    for (const uint c : QString::fromStdString(name).toUcs4()) {
        if (condition(c)) {
            found << QString::fromUcs4(&c, 1);
        }
    }
    found.removeDuplicates();
    return found.join(' ').toStdString();
}

// Quotes and the backslash end or change the name in the game's description; the others cannot
// stand in the name of a file here or on the pen.
bool isForbidden(uint c)
{
    return c < 0x20 || QString("\"\\/:*?<>|").contains(QChar(c));
}

// The game file has one byte for each character.
bool isGarbled(uint c)
{
    constexpr uint kLastOfLatin1 = 0xFF;
    return c > kLastOfLatin1;
}

void findForbiddenCharacters(const Book& book, Report& report)
{
    const std::string found = charactersOf(book.project.productName, isForbidden);
    if (!found.empty()) {
        report.add(placeOfProduct(book), {found});
    }
}

void findGarbledCharacters(const Book& book, Report& report)
{
    const std::string found = charactersOf(book.project.productName, isGarbled);
    if (!found.empty()) {
        report.add(placeOfProduct(book), {found});
    }
}

void findLongName(const Book& book, Report& report)
{
    const int length = QString::fromStdString(book.project.productName).toUcs4().size();
    if (length > static_cast<int>(gme::kLongestComment)) {
        report.add(placeOfProduct(book), {std::to_string(length)});
    }
}

void findTakenNumber(const Book& book, Report& report)
{
    if (book.project.projectPath.empty()) {
        return;
    }
    const QStringList others =
        projectsOfSameNumber(book.project.projectPath, book.project.productId);
    if (!others.isEmpty()) {
        report.add(placeOfProduct(book),
                   {std::to_string(book.project.productId), others.join(", ").toStdString()});
    }
}

void findForeignNumber(const Book& book, Report& report)
{
    const int number = book.project.productId;
    if (number < kFirstHomeMade || number > kLastHomeMade) {
        report.add(placeOfProduct(book), {std::to_string(number)});
    }
}

void findMissingStart(const Book& book, Report& report)
{
    const int number = book.project.productId;
    for (const auto& area : book.areas) {
        if (book.numberOf(area.first) == number) {
            return;
        }
    }
    if (!book.areas.empty()) {
        report.add(placeOfProduct(book), {std::to_string(number)});
    }
}

// Each step and each sub without an area takes a code of its own, which areas leave to them.
void findManySteps(const Book& book, Report& report)
{
    const ttbasic& script = book.project.compiler;
    int steps = script.labelCounter;
    for (const auto& sub : script.labels) {
        steps += book.areas.count(sub.first) == 0 ? 1 : 0;
    }
    int most = kMostSteps;
    for (const auto& area : book.areas) {
        const int oid = book.numberOf(area.first).value_or(0);
        most -= oid >= kFirstStepCode && oid <= kLastStepCode ? 1 : 0;
    }
    if (steps > most) {
        report.add(QT_TRANSLATE_NOOP("Hints",
                                     "The script has %1 steps; %2 are the most that a game "
                                     "can have"),
                   placeOfProduct(book), {std::to_string(steps), std::to_string(most)});
    } else if (static_cast<std::int64_t>(steps) * 100 >= static_cast<std::int64_t>(most) * kMuch) {
        report.add(placeOfProduct(book), {std::to_string(steps), std::to_string(most)});
    }
}

}  // namespace

std::vector<Hint> productHints()
{
    return {
        {"product-name-characters",
         QT_TRANSLATE_NOOP("Hints", "The name of the product cannot have these characters: %1"),
         Subject::book, findForbiddenCharacters},
        {"product-name-too-long",
         QT_TRANSLATE_NOOP("Hints", "The name of the product has %1 characters; no game can be "
                                    "built with more than 49"),
         Subject::book, findLongName},
        {"product-name-garbled",
         QT_TRANSLATE_NOOP("Hints", "The game file cannot hold these characters of the product's "
                                    "name: %1"),
         Subject::book, findGarbledCharacters},
        {"product-number-taken",
         QT_TRANSLATE_NOOP("Hints", "Other books in this folder have the number %1, too, and "
                                    "the same picture files: %2"),
         Subject::book, findTakenNumber},
        {"product-number-foreign",
         QT_TRANSLATE_NOOP("Hints", "The number of the product is %1; books made at home have 900 "
                                    "to 950, others may be those of a bought book"),
         Subject::book, findForeignNumber},
        {"no-start-area",
         QT_TRANSLATE_NOOP("Hints", "No area has the product's number %1: nothing on the pages "
                                    "starts the book, so a page of symbols has to"),
         Subject::book, findMissingStart},
        {"many-steps",
         QT_TRANSLATE_NOOP("Hints", "The script has %1 steps of the %2 that a game can have"),
         Subject::book, findManySteps},
    };
}

}  // namespace hints
