#include "app/WindowUsage.h"

#include "base/AboutProgram.h"
#include "base/ManPage.h"

namespace {

constexpr char kPurpose[] =
    "Makes printed books and boards talk. Opens its window, and the project "
    "if one is named.";

struct WindowOption
{
    const char* name;
    const char* help;
};

constexpr WindowOption kOptions[] = {
    {"--help", "tells this"},
    {"--version", "tells the version, that of Qt, and the licences"},
    {"--man", "prints the manual page, for man"},
};

std::string helpText()
{
    std::string text = std::string("Usage: plinkett [PROJECT.oidpro]\n\n") + kPurpose + "\n\n";
    for (const WindowOption& option : kOptions) {
        std::string name = option.name;
        name.resize(11, ' ');
        text += "  " + name + "  " + option.help + "\n";
    }
    return text;
}

std::string manPage()
{
    ManPage page("plinkett", "makes printed books and boards talk");
    page.section("SYNOPSIS");
    page.line("plinkett [PROJECT.oidpro]");
    page.section("DESCRIPTION");
    page.paragraph(kPurpose);
    page.section("OPTIONS");
    for (const WindowOption& option : kOptions) {
        page.item(option.name, option.help);
    }
    page.seeAlso("plinkett-cli");
    return page.text();
}

}  // namespace

std::optional<std::string> answerWithoutWindow(const std::string& word)
{
    if (word == "--help") {
        return helpText();
    }
    if (word == "--version") {
        return versionText("plinkett");
    }
    if (word == "--man") {
        return manPage();
    }
    return {};
}
