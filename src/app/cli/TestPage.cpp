#include <QDir>
#include <QSettings>

#include <algorithm>
#include <sstream>

#include "app/cli/Commands.h"
#include "oid/PrintImage.h"
#include "pdf/PrinterProfiles.h"
#include "pdf/TestPage.h"
#include "programs/TerminalRunner.h"
#include "publish/PrinterTest.h"

namespace {

// "600,1200"; empty when it is something else.
std::vector<int> resolutionsIn(const std::string& text)
{
    std::vector<int> resolutions;
    std::istringstream parts(text + ",");
    for (std::string part; std::getline(parts, part, ',');) {
        const auto dpi = wholeNumber(part, kFewestTestDpi, kMostTestDpi);
        const bool isNew =
            dpi && std::find(resolutions.begin(), resolutions.end(), *dpi) == resolutions.end();
        if (!isNew) {
            return {};
        }
        resolutions.push_back(*dpi);
    }
    return resolutions;
}

int keepProfile(const Arguments& arguments, const std::vector<int>& resolutions)
{
    const std::string& field = arguments.value("--field");
    const auto printer = settingsOfField(resolutions, field);
    if (!printer) {
        return usageError("the test page has no field '" + field + "'");
    }
    const std::string& name = arguments.value("--profile");
    if (name.find_first_not_of(" \t\r\n") == std::string::npos) {
        return usageError("a profile must have a name");
    }
    QSettings settings("Plinkett", "Plinkett");
    PrinterProfiles(settings).keep(name, *printer);
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        mi_printf("Error: Can't write file '%s'\n",
                  QDir::toNativeSeparators(settings.fileName()).toUtf8().constData());
        return kFailed;
    }
    return kFine;
}

int testPage(const Arguments& arguments)
{
    const std::string dpi = arguments.has("--dpi") ? arguments.value("--dpi") : "600,1200";
    const std::vector<int> resolutions = resolutionsIn(dpi);
    if (resolutions.empty()) {
        return usageError("DPI must be resolutions from 600 to 4800 such as 600,1200, not '" + dpi +
                          "'");
    }
    if (!fitTestPage(resolutions)) {
        return usageError("so many resolutions do not fit the test page");
    }
    if (arguments.has("--field") != arguments.has("--profile")) {
        return usageError("--field and --profile belong together");
    }
    if (arguments.has("--field")) {
        return keepProfile(arguments, resolutions);
    }
    const std::string language = arguments.has("--language") ? arguments.value("--language") : "en";
    const auto& known = printerTestLanguages();
    if (std::find(known.begin(), known.end(), language) == known.end()) {
        return usageError("LANGUAGE must be en, de, fr or nl, not '" + language + "'");
    }
    TerminalRunner runner;
    const std::string folder = arguments.has("-o") ? arguments.value("-o") : "";
    return makePrinterTest(folder, resolutions, language, runner) ? kFine : kFailed;
}

}  // namespace

Command testPageCommand()
{
    return {"test-page",
            "",
            "Makes a page that tries out a printer, and its game; keeps what came of it.",
            {{"-o", "FOLDER", "make them there instead of here"},
             {"--dpi", "DPI", "the resolutions to try (default 600,1200)"},
             {"--language", "LANGUAGE", "of the pen: en, de, fr or nl (default en)"},
             {"--field", "NAME", "the field that the pen reads best, such as B3"},
             {"--profile", "PRINTER", "keep what that field says under this name"}},
            testPage,
            0};
}
