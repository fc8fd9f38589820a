#include "oid/ProjectWriter.h"

#include <cstdio>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"

// Writes the format of docs/project-file.md. Names are written as they are, without any escape.
namespace Oid {

namespace {

std::string productLine(const OidProject& project)
{
    return "PRODUCT " + itostr(project.productId) + ", \"" + project.productName + "\"\r\n";
}

std::string pictureHead(const PICTURE& picture)
{
    return "IMAGE\r\n"
           "PAPER " +
           formatFixed(picture.paperWidth, 1) + " " + formatFixed(picture.paperHeight, 1) +
           "\r\n"
           "DPI   " +
           itostr(picture.dpi) + "\r\n";
}

std::string areaText(const POLY& area, int oid)
{
    std::string text = "OID " + itostr(oid) + "\r\nPOLY " + area.name + "\r\n";
    for (const PNT& point : area.points) {
        text += "    ";
        text += formatFixed(point.x, 2, 8);
        text += ' ';
        text += formatFixed(point.y, 2, 8);
        text += "\r\n";
    }
    return text + "END\r\n\r\n";
}

int oidOf(const OidProject& project, const std::string& name)
{
    const auto entry = project.oids.find(name);
    return entry != project.oids.end() ? entry->second.oid : 0;
}

}  // namespace

std::string textBeforeScript(const OidProject& project)
{
    std::string text = productLine(project);
    for (const PICTURE& picture : project.pictures) {
        text += pictureHead(picture);
        for (const POLY& area : picture.polys) {
            text += areaText(area, oidOf(project, area.name));
        }
        for (const std::string_view line : kShorthandLines) {
            text += line;
            text += "\r\n";
        }
    }
    return text + "SCRIPT # -----------------------\r\n";
}

std::string scriptInFile(const std::string& source)
{
    std::string text;
    text.reserve(source.size());
    for (std::size_t i = 0; i < source.size(); ++i) {
        text += source[i];
        if (source[i] == '%' && i + 1 < source.size() && source[i + 1] == '%') {
            ++i;
        }
    }
    return text;
}

std::string textInFile(const OidProject& project)
{
    return "\xEF\xBB\xBF" + textBeforeScript(project) + scriptInFile(project.compiler.source);
}

bool OidProject::save(std::string path)
{
    Platform::FileReplacement replacement(path);
    FILE* const file = replacement.file();
    if (file == nullptr) {
        return false;
    }
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            oids[area.name];  // a name without entry gets OID 0
        }
    }
    const std::string text = textInFile(*this);
    fwrite(text.data(), 1, text.size(), file);  // errors are seen when the file is committed
    if (!replacement.commit()) {
        return false;
    }
    projectPath = std::move(path);
    return true;
}

}  // namespace Oid
