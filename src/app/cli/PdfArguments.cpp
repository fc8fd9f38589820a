#include "app/cli/PdfArguments.h"

#include <QSettings>

#include "pdf/PageList.h"
#include "pdf/PrinterProfiles.h"

namespace {

constexpr int kLargestDot = 100;  // pixels; the page knows better

}  // namespace

PdfOptions PdfArguments::read()
{
    PdfOptions options;
    options.printer = readPrinter();
    options.pages = pages();
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
    options.symbols = symbols();
    return options;
}

PrinterSettings PdfArguments::readPrinter()
{
    PrinterSettings printer = profile();
    if (arguments.has("--dpi")) {
        printer.dpi = number("--dpi", "DPI", kFewestPrinterDpi, kMostPrinterDpi);
    }
    if (arguments.has("--dot-size")) {
        printer.dotSize = number("--dot-size", "PIXELS", 1, kLargestDot);
    }
    if (arguments.has("--lighten")) {
        printer.lighten = number("--lighten", "PERCENT", 1, 100);
    }
    printer.noBlack = printer.noBlack || arguments.has("--no-black");
    return printer;
}

PrinterSettings PdfArguments::profile()
{
    if (!arguments.has("--profile")) {
        return {};
    }
    QSettings settings("Plinkett", "Plinkett");
    const PrinterProfiles profiles(settings);
    const std::string& name = arguments.value("--profile");
    const auto found = profiles.find(name);
    if (!found) {
        std::string others;
        for (const std::string& other : profiles.names()) {
            others += (others.empty() ? "; there are: " : ", ") + other;
        }
        reject("there is no profile '" + name + "' of a printer" + others);
    }
    return found.value_or(PrinterSettings());
}

void PdfArguments::reject(const std::string& what)
{
    if (message.empty()) {
        message = what;
    }
}

int PdfArguments::number(const std::string& option, const std::string& name, int smallest,
                         int largest)
{
    const auto value = wholeNumber(arguments.value(option), smallest, largest);
    if (!value) {
        reject(name + " must be a number from " + std::to_string(smallest) + " to " +
               std::to_string(largest) + ", not '" + arguments.value(option) + "'");
    }
    return value.value_or(smallest);
}

std::vector<int> PdfArguments::pages()
{
    if (!arguments.has("--pages")) {
        return {};
    }
    std::vector<int> chosen = pagesIn(arguments.value("--pages"));
    if (chosen.empty()) {
        reject("PAGES must be numbers of pictures such as 0,2-3, not '" +
               arguments.value("--pages") + "'");
    }
    return chosen;
}

PdfOptions::Dots PdfArguments::dots()
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

std::optional<PaperSize> PdfArguments::paper()
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

PdfOptions::Symbols PdfArguments::symbols()
{
    const bool always = arguments.has("--symbols");
    const bool never = arguments.has("--no-symbols");
    const bool alone = arguments.has("--legend");
    if (always + never + alone > 1) {
        reject("only one of --symbols, --no-symbols and --legend can be");
    }
    if (alone) {
        return PdfOptions::Symbols::alone;
    }
    return always  ? PdfOptions::Symbols::always
           : never ? PdfOptions::Symbols::never
                   : PdfOptions::Symbols::whenNeeded;
}

std::vector<Option> printerOptions()
{
    return {{"--profile", "PRINTER", "what test-page found out about the printer"},
            {"--dpi", "DPI", "the printer's resolution instead of that of each picture"},
            {"--dot-size", "PIXELS", "the edge of a dot, when the standard dots print too fat"},
            {"--no-black", nullptr, "the picture's black is mixed of colours: unseen by the pen"},
            {"--lighten", "PERCENT", "lightens the picture below the dots"}};
}
