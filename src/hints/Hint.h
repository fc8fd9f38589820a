#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Diagnostic.h"
#include "hints/Fix.h"

// Advice to the author of a book: what compiles and prints without a word and yet goes wrong on
// paper or with the pen.
namespace hints {

struct Book;
struct Hint;

// One place that a hint is about.
struct Finding
{
    const Hint* hint = nullptr;
    // Severity hint; its kind is the hint's name, its text is in English.
    Diagnostic diagnostic;
    // The words with "%1", "%2" and so on, and what belongs there.
    const char* words = nullptr;
    std::vector<std::string> arguments;
    std::optional<Fix> fix;  // where there is a safe one
};

// True as soon as nobody wants to know any more; asked from the thread that looks for hints.
using Cancelled = std::function<bool()>;

// Takes what a hint finds.
class Report
{
public:
    Report(std::vector<Finding>& allFindings, Cancelled isCancelled)
        : findings(allFindings), cancelled(std::move(isCancelled))
    {}

    // The findings from now on are this hint's.
    void begin(const Hint& next) { hint = &next; }
    // One more finding; the place's subject, page, area, line, column and length are used. Of an
    // area, "%1" is the name and "%2" the page, of a page "%1" its number; other arguments follow.
    // The reference holds until the next finding.
    Finding& add(const Diagnostic& place, const std::vector<std::string>& arguments = {});
    // The same in other words than the hint's.
    Finding& add(const char* words, const Diagnostic& place,
                 const std::vector<std::string>& arguments = {});

    bool isCancelled() const { return cancelled && cancelled(); }

private:
    std::vector<Finding>& findings;
    Cancelled cancelled;
    const Hint* hint = nullptr;
};

// What a hint looks at. Those about pages say the same until pages, areas or their pictures change,
// whatever is done to the script or the product.
enum class Subject { book, pages };

// A kind of advice.
struct Hint
{
    // Small letters, digits and dashes. Its section in docs/manual/en/hints.md bears it, and a
    // comment with it quiets the hint on its line of the script.
    const char* name;
    // What is said to the author, marked with QT_TRANSLATE_NOOP("Hints", ...).
    const char* words;
    Subject subject;
    // Looks through the book. Writes nothing but its report, may run on any thread.
    void (*find)(const Book& book, Report& report);
};

// All of them, in the order of docs/manual/en/hints.md.
const std::vector<Hint>& allHints();

// What is said about a finding, in the language that the program speaks.
std::string translatedWords(const Finding& finding);
// And what its quick fix says, which there has to be.
std::string translatedFix(const Finding& finding);

}  // namespace hints
