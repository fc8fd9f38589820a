#include "oid/ProjectReader.h"

#include <cmath>
#include <cstring>
#include <iterator>

#include "base/TextHelpers.h"
#include "oid/OidTable.h"
#include "oid/ShorthandLines.h"

namespace Oid {

namespace {

constexpr int kFirstLoadedOid = 10000;  // of areas without an OID line
constexpr int kSmallestProductId = 1;
constexpr int kLargestProductId = 999;
// Lines that do not fit, line end and terminator included, are read in pieces; each piece then
// counts as a line.
constexpr int kLineBuffer = 1024;

// Intended: not the full pi. The file format fixes these digits; every circle vertex depends on
// them.
constexpr double kCirclePi = 3.14158;
constexpr int kCircleVertices = 19;
constexpr int kCircleStep = 20;  // degrees

void skipByteOrderMark(FILE* file)
{
    unsigned char mark[3] = {};
    if (fread(mark, 1, 3, file) != 3 || memcmp(mark, "\xEF\xBB\xBF", 3) != 0) {
        fseek(file, 0, SEEK_SET);
    }
}

void cutComment(char* line)
{
    line[strcspn(line, "#")] = '\0';
}

}  // namespace

ProjectReader::ProjectReader(OidProject& emptyProject, SavedEmptyPages savedEmptyPages)
    : project(emptyProject), emptyPages(savedEmptyPages), nextOid(tableEntry(kFirstLoadedOid))
{}

void ProjectReader::read(FILE* projectFile)
{
    file = projectFile;
    skipByteOrderMark(file);
    char line[kLineBuffer];
    while (fgets(line, sizeof line, file) != nullptr) {
        lineNumber = numberAfter(lineNumber);
        if (isNextShorthand(line)) {
            ++shorthands;
            continue;
        }
        cutComment(line);
        readLine(line);
        if (*skipWhite(line) != '\0') {
            shorthands = 0;  // they were not the end of the picture
        }
    }
    // Intended: the last picture is kept without areas, too; every project read has a picture.
    finishPicture();
}

bool ProjectReader::isNextShorthand(const char* line) const
{
    const std::string_view text(line, strcspn(line, "\r\n"));
    return shorthands < std::size(kShorthandLines) && text == kShorthandLines[shorthands];
}

void ProjectReader::readLine(const char* text)
{
    if (insidePolygon) {
        readVertices(text);
    }
    if (!insidePolygon) {
        readKeyword(text);  // also what follows END on its line
    }
}

// Pairs of x and y up to the line's end, or to END.
// Intended: END is seen only in place of an x; in place of a y it is a malformed number, 0.
void ProjectReader::readVertices(const char*& text)
{
    for (;;) {
        const std::string x = parseString(text);
        if (x == "END") {
            insidePolygon = false;
            return;
        }
        if (x.empty()) {
            return;
        }
        const std::string y = parseString(text);
        if (y.empty()) {
            project.print("Error: Line %4d POLY X,Y count is odd. Did you forget an Y value?\n",
                          lineNumber);
            return;
        }
        picture.polys.back().points.push_back({toDouble(x.c_str()), toDouble(y.c_str())});
    }
}

// Words that are not listed, RESULT among them, are ignored with their line.
const ProjectReader::Keyword ProjectReader::kKeywords[] = {
    {"OID", &ProjectReader::readOid},         {"POLY", &ProjectReader::readPoly},
    {"BOX", &ProjectReader::readBox},         {"CIRCLE", &ProjectReader::readCircle},
    {"IMAGE", &ProjectReader::readImage},     {"PAPER", &ProjectReader::readPaper},
    {"DPI", &ProjectReader::readDpi},         {"SCRIPT", &ProjectReader::readScript},
    {"PRODUCT", &ProjectReader::readProduct},
};

void ProjectReader::readKeyword(const char*& text)
{
    const std::string word = parseString(text);
    for (const Keyword& keyword : kKeywords) {
        if (word == keyword.word) {
            (this->*keyword.read)(text);
            return;
        }
    }
}

// PRODUCT id, "name": the comma is skipped with the rest of the number's word.
void ProjectReader::readProduct(const char*& text)
{
    project.productId = parseInt(text);
    if (project.productId < kSmallestProductId || project.productId > kLargestProductId) {
        project.print("Error: PRODUCT id is not in range [1..999]\n");
        return;  // Intended: the id stays, the name is not read.
    }
    std::vector<std::string> fields;
    if (SplitStringKeepQuotes(text, fields, true) == 0) {
        project.print("Error: PRODUCT has no readable name\n");
        return;
    }
    project.productName = fields.front();
}

// IMAGE: the next picture begins, with the paper and the resolution of the one before.
// Intended: one without areas is dropped, being a mere head; unless it was saved and is wanted.
void ProjectReader::readImage(const char*&)
{
    const bool saved = insideImage && shorthands == std::size(kShorthandLines);
    if (!picture.polys.empty() || (saved && emptyPages == SavedEmptyPages::kept)) {
        finishPicture();
    }
    insideImage = true;
}

// PAPER w h
void ProjectReader::readPaper(const char*& text)
{
    picture.paperWidth = parseFlt(text);
    picture.paperHeight = parseFlt(text);
}

// DPI n
void ProjectReader::readDpi(const char*& text)
{
    picture.dpi = parseInt(text);
}

// OID n: the number for the next new name.
void ProjectReader::readOid(const char*& text)
{
    nextOid = tableEntry(parseInt(text));
}

// POLY name: the lines that follow hold the vertices, up to END.
void ProjectReader::readPoly(const char*& text)
{
    const POLY& area = beginArea(text);
    insidePolygon = true;
    if (area.name.empty()) {
        project.print("Error: Line %4d POLY has no name\n", lineNumber);
    }
}

// BOX name x y w h: a rectangle, stored as its four corners.
void ProjectReader::readBox(const char*& text)
{
    POLY& area = beginArea(text);
    if (area.name.empty()) {
        project.print("Error: Line %4d BOX has no name\n", lineNumber);
        return;
    }
    const double x = parseFlt(text);
    const double y = parseFlt(text);
    const double w = parseFlt(text);
    const double h = parseFlt(text);
    if (!(w > 0 && h > 0)) {  // not a number has no dimensions either
        project.print("Warning: Line %4d BOX has no dimensions\n", lineNumber);
        return;  // Intended: the area stays, without vertices.
    }
    area.points = {{x, y}, {x + w, y}, {x + w, y + h}, {x, y + h}};
}

// CIRCLE name xm ym R: from above the centre clockwise.
// Intended: the 19th vertex nearly repeats the first.
void ProjectReader::readCircle(const char*& text)
{
    POLY& area = beginArea(text);
    if (area.name.empty()) {
        project.print("Error: Line %4d CIRCLE has no name\n", lineNumber);
        return;
    }
    const double xm = parseFlt(text);
    const double ym = parseFlt(text);
    const double radius = parseFlt(text);
    if (!(radius > 0)) {
        project.print("Error: Line %4d CIRCLE has no radius\n", lineNumber);
        return;  // Intended: the area stays, without vertices.
    }
    for (int k = 0; k < kCircleVertices; ++k) {
        const double angle = kCircleStep * k * kCirclePi / 180;
        area.points.push_back({xm + radius * std::sin(angle), ym - radius * std::cos(angle)});
    }
}

// SCRIPT: the rest of the file, from the next line on.
void ProjectReader::readScript(const char*&)
{
    if (!project.compiler.read(file)) {
        project.print("Failed to read script from project file.\n");
    }
}

// Appends an area with the name that comes next. A name that is new gets the next number.
POLY& ProjectReader::beginArea(const char*& text)
{
    POLY& area = picture.polys.emplace_back();
    area.name = parseString(text);
    if (project.oids.try_emplace(area.name, nextOid).second) {
        nextOid = tableEntry(numberAfter(nextOid.oid));
    }
    return area;
}

void ProjectReader::finishPicture()
{
    project.pictures.push_back(std::move(picture));
    picture.polys.clear();  // what was moved from; paper and resolution carry over
}

}  // namespace Oid
