#include <cstdio>
#include <optional>
#include <sstream>

#include "app/cli/Commands.h"
#include "oid/OpenProject.h"
#include "pdf/BookPdf.h"

namespace {

constexpr int kFewestPrinterDpi = 100;
constexpr int kMostPrinterDpi = 9600;
constexpr int kLargestDot = 100;     // pixels; the page knows better
constexpr int kLargestMargin = 100;  // mm

// "0,2-3" as 0, 2, 3; empty when it is something else.
std::vector<int> pageList(const std::string& text)
{
    std::vector<int> pages;
    std::istringstream parts(text + ",");
    for (std::string part; std::getline(parts, part, ',');) {
        const std::size_t dash = part.find('-');
        const auto first = wholeNumber(part.substr(0, dash), 0);
        const auto last =
            dash == std::string::npos ? first : wholeNumber(part.substr(dash + 1), 0, 9999);
        if (!first || !last || *last < *first) {
            return {};
        }
        for (int page = *first; page <= *last; ++page) {
            pages.push_back(page);
        }
    }
    return pages;
}

// The options of the command, read one by one; the first mistake is kept.
class PdfArguments
{
public:
    explicit PdfArguments(const Arguments& words) : arguments(words) {}

    PdfOptions read()
    {
        PdfOptions options;
        readPrinter(options.printer);
        readPages(options.pages);
        options.lightenAreas = arguments.has("--lighten-areas");
        if (options.lightenAreas && options.printer.lighten == 0) {
            reject("--lighten-areas needs --lighten");
        }
        options.dots = dots();
        options.outlines = arguments.has("--outlines");
        options.cropMarks = arguments.has("--crop-marks");
        if (arguments.has("--margin")) {
            options.margin = number("--margin", "MM", 0, kLargestMargin);
        }
        options.poster = paper();
        return options;
    }

    const std::string& mistake() const { return message; }

private:
    void reject(const std::string& what)
    {
        if (message.empty()) {
            message = what;
        }
    }

    int number(const std::string& option, const std::string& name, int smallest, int largest)
    {
        const auto value = wholeNumber(arguments.value(option), smallest, largest);
        if (!value) {
            reject(name + " must be a number from " + std::to_string(smallest) + " to " +
                   std::to_string(largest) + ", not '" + arguments.value(option) + "'");
        }
        return value.value_or(smallest);
    }

    void readPrinter(PrinterSettings& printer)
    {
        if (arguments.has("--dpi")) {
            printer.dpi = number("--dpi", "DPI", kFewestPrinterDpi, kMostPrinterDpi);
        }
        if (arguments.has("--dot-size")) {
            printer.dotSize = number("--dot-size", "PIXELS", 1, kLargestDot);
        }
        if (arguments.has("--lighten")) {
            printer.lighten = number("--lighten", "PERCENT", 1, 100);
        }
        printer.noBlack = arguments.has("--no-black");
    }

    void readPages(std::vector<int>& pages)
    {
        if (!arguments.has("--pages")) {
            return;
        }
        pages = pageList(arguments.value("--pages"));
        if (pages.empty()) {
            reject("PAGES must be numbers of pictures such as 0,2-3, not '" +
                   arguments.value("--pages") + "'");
        }
    }

    PdfOptions::Dots dots()
    {
        const std::string where = arguments.has("--dots") ? arguments.value("--dots") : "all";
        if (where == "areas") {
            return PdfOptions::Dots::areas;
        }
        if (where == "none") {
            return PdfOptions::Dots::none;
        }
        if (where != "all") {
            reject("WHERE must be all, areas or none, not '" + where + "'");
        }
        return PdfOptions::Dots::everywhere;
    }

    std::optional<PaperSize> paper()
    {
        if (!arguments.has("--poster")) {
            return std::nullopt;
        }
        for (const PaperSize& known : {kA4, kA3, kLetter}) {
            if (arguments.value("--poster") == known.name) {
                return known;
            }
        }
        reject("PAPER must be A4, A3 or Letter, not '" + arguments.value("--poster") + "'");
        return std::nullopt;
    }

    const Arguments& arguments;
    std::string message;
};

int pdf(const Arguments& arguments)
{
    PdfArguments words(arguments);
    const PdfOptions options = words.read();
    if (!words.mistake().empty()) {
        return usageError(words.mistake());
    }
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    for (const int page : options.pages) {
        if (static_cast<std::size_t>(page) >= project.pictures.size()) {
            return usageError("there is no picture " + std::to_string(page) + ", the last is " +
                              std::to_string(project.pictures.size() - 1));
        }
    }
    const std::string path = arguments.has("-o") ? arguments.value("-o") : pathPdf(project);
    return makePdf(project, path, options) ? kFine : kFailed;
}

}  // namespace

Command pdfCommand()
{
    return {"pdf",
            "PROJECT",
            "Makes a PDF of the whole book, at its true size, beside the project.",
            {{"-o", "FILE", "write it here instead"},
             {"--pages", "PAGES", "only these pictures, counted from 0, such as 0,2-3"},
             {"--dpi", "DPI", "the printer's resolution instead of that of each picture"},
             {"--dot-size", "PIXELS", "the edge of a dot, when the standard dots print too fat"},
             {"--dots", "WHERE", "all (as always), areas (none outside of them) or none (a proof)"},
             {"--no-black", nullptr, "the picture's black is mixed of colours: unseen by the pen"},
             {"--lighten", "PERCENT", "lightens the picture below the dots"},
             {"--lighten-areas", nullptr, "lightens it only inside of areas"},
             {"--outlines", nullptr, "draws the areas with names and numbers, for the author"},
             {"--margin", "MM", "white paper around each page"},
             {"--crop-marks", nullptr, "marks in the margin where the page ends"},
             {"--poster", "PAPER", "larger pages on several sheets of A4, A3 or Letter"}},
            pdf};
}
