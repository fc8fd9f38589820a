#pragma once

#include <iosfwd>
#include <set>
#include <string>
#include <vector>

// An example of a page: what stands between ``` and ```.
struct Example
{
    std::string kind;   // the word behind the first ```
    std::string text;   // whole lines
    std::string place;  // "de/areas.md:12", of its first line
};

struct Link
{
    std::string target;  // "areas.md#draw", "images/window.png", "https://..."
    std::string place;
    bool isPicture;
};

struct ManualPage
{
    std::string name;  // "areas"
    std::vector<Example> examples;
    std::vector<Link> links;
    std::vector<std::string> anchors;  // in the order of the page, without the name of the page
    std::vector<std::string> headings;
};

// All pages of a language, in the order of their names.
std::vector<ManualPage> manualPages(const std::string& language);
// The folder of its pages.
std::string manualFolder(const std::string& language);
// All languages that the manual has.
const std::vector<std::string>& manualLanguages();
// The examples of all pages in all languages that are of a kind.
std::vector<Example> examplesOf(const std::string& kind);
