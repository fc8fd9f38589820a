#pragma once

#include <string>

// A manual page in the language of man, built from top to bottom. All texts are plain: what means
// something to man is escaped here.
class ManPage
{
public:
    // The program, which is a user's command, and what it is for in half a sentence.
    ManPage(const std::string& program, const std::string& purpose);

    void section(const std::string& title);
    void subsection(const std::string& title);
    void paragraph(const std::string& text);
    // A line as it stands, such as a usage.
    void line(const std::string& text);
    // An option or another word, and what it means.
    void item(const std::string& word, const std::string& meaning);
    // Other pages: "plinkett"; of the user's commands, too.
    void seeAlso(const std::string& program);

    const std::string& text() const { return page; }

private:
    std::string page;
};
