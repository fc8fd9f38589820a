#include "app/cli/Commands.h"
#include "app/cli/PdfArguments.h"
#include "oid/OpenProject.h"
#include "pdf/BookPdf.h"

namespace {

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
    std::vector<Option> options = {
        {"-o", "FILE", "write it here instead"},
        {"--pages", "PAGES", "only these pictures, counted from 0, such as 0,2-3"}};
    for (const Option& option : printerOptions()) {
        options.push_back(option);
    }
    const std::vector<Option> others = {
        {"--lighten-areas", nullptr, "lightens it only inside of areas"},
        {"--dots", "WHERE", "all (as always), areas (none outside of them) or none (a proof)"},
        {"--outlines", nullptr, "draws the areas with names and numbers, for the author"},
        {"--margin", "MM", "white paper around each page"},
        {"--crop-marks", nullptr, "marks in the margin where the page ends"},
        {"--poster", "PAPER", "larger pages on several sheets of A4, A3 or Letter"},
        {"--symbols", nullptr,
         "ends with START, REPLAY, STOP and a legend of all areas, as it\n"
         "                      does anyway when no area starts the book"},
        {"--no-symbols", nullptr, "never ends with them"},
        {"--legend", nullptr, "only them"}};
    options.insert(options.end(), others.begin(), others.end());
    return {"pdf", "PROJECT",
            "Makes a PDF of the whole book, at its true size, beside the project.", options, pdf};
}
