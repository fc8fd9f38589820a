#include <cstdio>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"
#include "oid/ShorthandLines.h"

// Writes the format of docs/project-file.md. Names are written as they are, without any escape.
namespace Oid {

namespace {

void write(FILE* file, const std::string& text)
{
    fwrite(text.data(), 1, text.size(), file);  // errors are seen when the file is committed
}

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

// Intended: "%%" becomes "%", as in a format string; any other "%" stays.
std::string scriptText(const std::string& source)
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

}  // namespace

bool OidProject::save(std::string path)
{
    Platform::FileReplacement replacement(path);
    FILE* const file = replacement.file();
    if (file == nullptr) {
        return false;
    }
    write(file, "\xEF\xBB\xBF" + productLine(*this));
    for (const PICTURE& picture : pictures) {
        write(file, pictureHead(picture));
        for (const POLY& area : picture.polys) {
            write(file, areaText(area, oids[area.name].oid));  // a name without entry gets OID 0
        }
        for (const std::string_view line : kShorthandLines) {
            write(file, std::string(line) + "\r\n");
        }
    }
    write(file, "SCRIPT # -----------------------\r\n" + scriptText(compiler.source));
    if (!replacement.commit()) {
        return false;
    }
    projectPath = std::move(path);
    return true;
}

}  // namespace Oid
