#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "gme/Description.h"
#include "hints/PagePictures.h"
#include "oid/OidProject.h"
#include "ttbasic/ScriptOutline.h"

namespace hints {

// A page on its paper, with its picture as far as there is one. Areas count in percent of the
// picture's width.
struct Page
{
    const Oid::PICTURE& page;
    int number;  // from 1
    PagePicture picture;
    double millimetresPerPercent;  // 0 when the paper has no size

    // What is said of the page, and of an area of it by its index.
    Diagnostic place() const;
    Diagnostic placeOf(std::size_t area) const;
};

// A book as hints look at it: everything that more than one of them wants to know.
struct Book
{
    // The script of the project is compiled, be it without success. Project and pictures outlive
    // the book.
    Book(const Oid::OidProject& project, PagePictures& pictures);

    // The number of an area's name; none as long as nobody has given it one.
    std::optional<int> numberOf(const std::string& name) const;
    // Where a line of the script begins, counted from 1, and the line without its end.
    std::size_t startOfLine(int line) const { return lineStarts[line - 1]; }
    std::string lineOfScript(int line) const;
    int lastLineOfScript() const { return static_cast<int>(lineStarts.size()); }

    const Oid::OidProject& project;
    ScriptOutline script;
    std::set<std::string_view> subs;  // their names
    std::vector<Page> pages;
    // The first area of each name, with its page.
    std::map<std::string, Diagnostic> areas;
    gme::GivenCodes codesFile;  // what it holds; nothing when there is none

private:
    std::vector<std::size_t> lineStarts;  // of the script
};

}  // namespace hints
