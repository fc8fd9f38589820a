#include "base/ManPage.h"

#include "base/AboutProgram.h"

namespace {

// Dashes stay those that are typed; a line may begin with a dot or an apostrophe.
std::string plain(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '\\') {
            escaped += "\\e";
        } else if (c == '-') {
            escaped += "\\-";
        } else {
            escaped += c;
        }
    }
    const bool isRequest = !text.empty() && (text[0] == '.' || text[0] == '\'');
    return isRequest ? "\\&" + escaped : escaped;
}

std::string inQuotes(const std::string& text)
{
    std::string quoted;
    for (const char c : plain(text)) {
        quoted += c == '"' ? std::string("\\(dq") : std::string(1, c);
    }
    return "\"" + quoted + "\"";
}

}  // namespace

ManPage::ManPage(const std::string& program, const std::string& purpose)
{
    std::string title;
    for (const char c : program) {
        title += c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c;
    }
    page = ".TH " + plain(title) + " 1 \"\" \"Plinkett " + programVersion() + "\"\n";
    section("NAME");
    page += plain(program) + " \\- " + plain(purpose) + "\n";
}

void ManPage::section(const std::string& title)
{
    page += ".SH " + inQuotes(title) + "\n";
}

void ManPage::subsection(const std::string& title)
{
    page += ".SS " + inQuotes(title) + "\n";
}

void ManPage::paragraph(const std::string& text)
{
    page += ".PP\n" + plain(text) + "\n";
}

void ManPage::line(const std::string& text)
{
    page += plain(text) + "\n.br\n";
}

void ManPage::item(const std::string& word, const std::string& meaning)
{
    page += ".TP\n.B " + plain(word) + "\n" + plain(meaning) + "\n";
}

void ManPage::seeAlso(const std::string& program)
{
    section("SEE ALSO");
    page += ".BR " + plain(program) + " (1)\n";
}
