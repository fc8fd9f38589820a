// Numbers of areas that the pen does not read, or takes for another.
#include <QtGlobal>

#include "hints/HintLists.h"
#include "oid/OidRawCodes.h"

#include <set>

namespace hints {

namespace {

constexpr int kSmallest = 1000;  // of what the pen has for areas
constexpr int kLargest = 14999;
constexpr int kFirstForAreas = 1001;

bool isProductNumber(const Book& book, int oid)
{
    return oid == book.project.productId;
}

// A number that nothing has: mostly the one behind all others.
int freeNumber(const Book& book)
{
    std::set<int> taken;
    for (const auto& entry : book.project.oids) {
        taken.insert(entry.second.oid);
    }
    for (const auto& entry : book.codesFile.names) {
        taken.insert(entry.second.code);
    }
    for (const auto& special : {book.codesFile.replay, book.codesFile.stop}) {
        if (special) {
            taken.insert(special->code);
        }
    }
    const auto behind = taken.upper_bound(kLargest);
    const int last = behind == taken.begin() ? 0 : *std::prev(behind);
    if (last < kLargest) {
        return std::max(last + 1, kFirstForAreas);
    }
    int number = kFirstForAreas;
    while (taken.count(number) > 0) {
        ++number;
    }
    return number;
}

// Offers a free number, which is looked for once.
class FreeNumber
{
public:
    explicit FreeNumber(const Book& wholeBook) : book(wholeBook) {}

    void offer(Finding& finding)
    {
        if (!number) {
            number = freeNumber(book);
        }
        if (*number <= kLargest) {
            finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Give it a free number"),
                              AreaNumber{finding.diagnostic.subject, *number}};
        }
    }

private:
    const Book& book;
    std::optional<int> number;
};

// Every name with a number of its own that the condition holds of.
template <class Condition>
void findNumbers(const Book& book, Report& report, Condition condition)
{
    FreeNumber free(book);
    for (const auto& [name, area] : book.areas) {
        const std::optional<int> oid = book.numberOf(name);
        if (oid && !isProductNumber(book, *oid) && condition(*oid)) {
            free.offer(report.add(area, {std::to_string(*oid)}));
        }
    }
}

bool hasPattern(int oid)
{
    return oid != 0 && oid_raw_codes::hasRawCode(oid);
}

void findWithoutPattern(const Book& book, Report& report)
{
    findNumbers(book, report, [](int oid) { return !hasPattern(oid); });
}

void findTooSmall(const Book& book, Report& report)
{
    findNumbers(book, report, [](int oid) { return hasPattern(oid) && oid < kSmallest; });
}

void findTooLarge(const Book& book, Report& report)
{
    findNumbers(book, report, [](int oid) { return hasPattern(oid) && oid > kLargest; });
}

// Of names with one number all but the first are told.
void findTwice(const Book& book, Report& report)
{
    FreeNumber free(book);
    std::map<int, std::string> first;
    for (const auto& [name, area] : book.areas) {
        const std::optional<int> oid = book.numberOf(name);
        if (!oid || *oid == 0) {
            continue;
        }
        const auto [entry, isNew] = first.emplace(*oid, name);
        if (!isNew) {
            free.offer(report.add(area, {std::to_string(*oid), entry->second}));
        }
    }
}

// The codes file keeps the numbers that the last build gave to subs without an area, and to steps.
void findLabels(const Book& book, Report& report)
{
    FreeNumber free(book);
    std::map<int, std::string> labels;
    for (const auto& [name, code] : book.codesFile.names) {
        labels.emplace(code.code, name);
    }
    const auto addSpecial = [&](const std::optional<gme::GivenCode>& code, const char* name) {
        if (code) {
            labels.emplace(code->code, name);
        }
    };
    addSpecial(book.codesFile.replay, "replay");
    addSpecial(book.codesFile.stop, "stop");
    for (const auto& [name, area] : book.areas) {
        const auto label = labels.find(book.numberOf(name).value_or(0));
        if (label != labels.end() && label->second != name) {
            free.offer(report.add(area, {std::to_string(label->first), label->second}));
        }
    }
}

}  // namespace

std::vector<Hint> areaNumberHints()
{
    return {
        {"number-without-pattern",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: there is no dot pattern for the number "
                                    "%3, so nothing is printed"),
         Subject::book, findWithoutPattern},
        {"number-too-small",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: the number %3 is below 1000, where the "
                                    "pen looks for books and its own signs"),
         Subject::book, findTooSmall},
        {"number-too-large",
         QT_TRANSLATE_NOOP("Hints",
                           "Area '%1' on page %2: the number %3 is above 14999 and the pen "
                           "does not know it"),
         Subject::book, findTooLarge},
        {"number-twice",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: the area '%4' has the number %3, too; "
                                    "the pen takes both for one"),
         Subject::book, findTwice},
        {"number-of-a-step",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: in the last build '%4' had the number "
                                    "%3; the next build gives it another one"),
         Subject::book, findLabels},
    };
}

}  // namespace hints
