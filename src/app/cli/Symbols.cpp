#include "app/cli/Commands.h"
#include "app/cli/PdfArguments.h"
#include "oid/OpenProject.h"
#include "pdf/BookPdf.h"

namespace {

int symbols(const Arguments& arguments)
{
    PdfArguments words(arguments);
    PdfOptions options;
    options.printer = words.readPrinter();
    options.symbols = PdfOptions::Symbols::alone;
    if (!words.mistake().empty()) {
        return usageError(words.mistake());
    }
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    const std::string path = arguments.has("-o") ? arguments.value("-o") : pathSymbols(project);
    return makePdf(project, path, options) ? kFine : kFailed;
}

}  // namespace

Command symbolsCommand()
{
    std::vector<Option> options = {{"-o", "FILE", "write it here instead"}};
    for (const Option& option : printerOptions()) {
        options.push_back(option);
    }
    return {"symbols", "PROJECT",
            "Makes a PDF of START, REPLAY, STOP and a legend of all areas, beside the project.",
            options, symbols};
}
