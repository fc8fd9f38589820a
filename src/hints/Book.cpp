#include "hints/Book.h"

#include "gme/Assembler.h"
#include "gme/CodesFile.h"

#include "hints/Fix.h"

#include <algorithm>

namespace hints {

namespace {

constexpr double kWholeWidth = 100;  // percent

// Print images have the picture as large as it fits onto the paper; without one the areas count in
// the paper's width.
double widthOnPaper(const Oid::PICTURE& page, QSize picture)
{
    if (!(page.paperWidth > 0 && page.paperHeight > 0)) {
        return 0;
    }
    if (picture.isEmpty()) {
        return page.paperWidth;
    }
    return std::min(page.paperWidth, page.paperHeight * picture.width() / picture.height());
}

gme::GivenCodes codesOf(const Oid::OidProject& project)
{
    if (project.projectPath.empty()) {
        return {};
    }
    const std::string path = gme::codesFileFor(project.pathYaml());
    gme::Messages unheard(path, [](const Diagnostic&) {});  // building tells what is wrong with it
    gme::CodesFile file(path);
    return file.read(unheard) ? file.codes() : gme::GivenCodes();
}

}  // namespace

Diagnostic Page::place() const
{
    Diagnostic place;
    place.page = number;
    return place;
}

Diagnostic Page::placeOf(std::size_t area) const
{
    Diagnostic place;
    place.page = number;
    place.area = static_cast<int>(area) + 1;
    place.subject = page.polys[area].name;
    return place;
}

Book::Book(const Oid::OidProject& bookProject, PagePictures& pictures)
    : project(bookProject),
      script(outlineOf(bookProject.compiler.source)),
      codesFile(codesOf(bookProject)),
      lineStarts(startsOfLines(bookProject.compiler.source))
{
    for (const ScriptOutline::Sub& sub : script.subs) {
        subs.insert(sub.name.text);
    }
    int number = 0;
    for (const Oid::PICTURE& page : project.pictures) {
        const PagePicture picture = project.projectPath.empty()
                                        ? PagePicture()
                                        : pictures.of(project.pathImageSource(number));
        ++number;
        pages.push_back({page, number, picture, widthOnPaper(page, picture.size) / kWholeWidth});
        for (std::size_t area = 0; area < page.polys.size(); ++area) {
            areas.try_emplace(page.polys[area].name, pages.back().placeOf(area));
        }
    }
}

std::optional<int> Book::numberOf(const std::string& name) const
{
    const auto entry = project.oids.find(name);
    return entry != project.oids.end() ? std::make_optional(entry->second.oid) : std::nullopt;
}

std::string Book::lineOfScript(int line) const
{
    const std::string& text = project.compiler.source;
    const std::size_t begin = lineStarts[line - 1];
    std::size_t end = std::min(text.find('\n', begin), text.size());
    end -= end > begin && text[end - 1] == '\r' ? 1 : 0;
    return text.substr(begin, end - begin);
}

}  // namespace hints
