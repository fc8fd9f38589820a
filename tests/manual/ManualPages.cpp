#include "tests/manual/ManualPages.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>

#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

class PageReader
{
public:
    PageReader(const std::string& language, const std::string& file)
        : pageOfManual(language + "/" + file + ".md"),
          lines(readFile(manualFolder(language) + "/" + file + ".md"))
    {
        page.name = file;
    }

    ManualPage read()
    {
        for (std::string line; std::getline(lines, line);) {
            ++number;
            if (line.rfind("```", 0) == 0) {
                beginOrEndExample(line.substr(3));
            } else if (isInExample) {
                page.examples.back().text += line + "\n";
            } else if (line.rfind("    ", 0) != 0) {
                readText(line);
            }
        }
        return page;
    }

private:
    std::string place() const { return pageOfManual + ":" + std::to_string(number); }

    void beginOrEndExample(const std::string& kind)
    {
        isInExample = !isInExample;
        if (isInExample) {
            page.examples.push_back({kind, "", place()});
        }
    }

    void readText(const std::string& line)
    {
        static const std::regex anchor("<a id=\"([^\"]+)\"></a>");
        static const std::regex heading("#+ (.*)");
        static const std::regex named("`([^`]*)`");
        static const std::regex link("(!?)\\[(?:[^\\]`]|`[^`]*`)*\\]\\(([^)]+)\\)");
        std::smatch found;
        if (std::regex_match(line, found, anchor)) {
            page.anchors.push_back(found[1]);
        }
        if (std::regex_match(line, found, heading)) {
            const std::string words = found[1];
            page.headings.push_back(words);
            if (std::regex_match(words, found, named)) {
                page.anchors.push_back(found[1]);
            }
        }
        for (auto it = std::sregex_iterator(line.begin(), line.end(), link);
             it != std::sregex_iterator(); ++it) {
            page.links.push_back({(*it)[2], place(), (*it)[1].length() != 0});
        }
    }

    ManualPage page;
    std::string pageOfManual;
    std::istringstream lines;
    int number = 0;
    bool isInExample = false;
};

}  // namespace

std::string manualFolder(const std::string& language)
{
    return PLINKETT_SOURCE_DIR "/docs/manual/" + language;
}

const std::vector<std::string>& manualLanguages()
{
    static const std::vector<std::string> languages = {"en", "de"};
    return languages;
}

std::vector<ManualPage> manualPages(const std::string& language)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(manualFolder(language))) {
        if (entry.path().extension() == ".md") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    std::vector<ManualPage> pages;
    for (const std::string& name : names) {
        pages.push_back(PageReader(language, name).read());
    }
    return pages;
}

std::vector<Example> examplesOf(const std::string& kind)
{
    std::vector<Example> found;
    for (const std::string& language : manualLanguages()) {
        for (const ManualPage& page : manualPages(language)) {
            std::copy_if(page.examples.begin(), page.examples.end(), std::back_inserter(found),
                         [&](const Example& example) { return example.kind == kind; });
        }
    }
    return found;
}
