#include "oid/ProjectReader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "oid/OidTable.h"
#include "oid/ProjectWriter.h"

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

// What no book has, by far, and what a machine can bear: a hundred thousand areas are many.
constexpr std::int64_t kLargestFile = 256 << 20;  // bytes
constexpr std::size_t kLargestScript = 16 << 20;  // bytes; a hundred thousand lines have 4 MiB
constexpr std::size_t kMostAreas = 250000;
constexpr std::size_t kMostCorners = 4000000;
constexpr std::size_t kMostPages = 20000;

std::int64_t sizeOf(FILE* file)
{
    const std::int64_t size = Platform::seekFile(file, 0, SEEK_END);
    Platform::seekFile(file, 0, SEEK_SET);
    return size;
}

void skipByteOrderMark(FILE* file)
{
    unsigned char mark[3] = {};
    if (fread(mark, 1, 3, file) != 3 || memcmp(mark, "\xEF\xBB\xBF", 3) != 0) {
        fseek(file, 0, SEEK_SET);
    }
}

// What stands from begin up to end, without white space in front.
std::string_view between(const char* begin, const char* end)
{
    begin = std::min(skipWhite(begin), end);
    return {begin, static_cast<size_t>(end - begin)};
}

void cutComment(char* line)
{
    line[strcspn(line, "#")] = '\0';
}

}  // namespace

ProjectReader::ProjectReader(OidProject& emptyProject, SavedEmptyPages savedEmptyPages,
                             const DiagnosticSink& usedSink)
    : project(emptyProject),
      emptyPages(savedEmptyPages),
      sink(usedSink),
      nextOid(tableEntry(kFirstLoadedOid))
{}

bool ProjectReader::read(FILE* projectFile)
{
    file = projectFile;
    if (sizeOf(file) > kLargestFile) {
        refusal = "The project is larger than 256 MiB";
        return false;
    }
    skipByteOrderMark(file);
    char buffer[kLineBuffer];
    line = buffer;
    while (isWithinBounds() && fgets(buffer, sizeof buffer, file) != nullptr) {
        lineNumber = numberAfter(lineNumber);
        if (isNextShorthand()) {
            ++shorthands;
            continue;
        }
        cutComment(buffer);
        readLine(buffer);
        if (shorthands > 0 && *skipWhite(buffer) != '\0') {
            shorthands = 0;  // they were not the end of the picture
        }
    }
    // Intended: the last picture is kept without areas, too; every project read has a picture.
    finishPicture();
    return refusal.empty();
}

bool ProjectReader::isWithinBounds()
{
    if (areas > kMostAreas) {
        refusal = "The project has more than 250000 areas";
    } else if (corners > kMostCorners) {
        refusal = "The project has more than 4000000 corners of areas";
    } else if (project.pictures.size() > kMostPages) {
        refusal = "The project has more than 20000 pages";
    } else if (project.compiler.source.size() > kLargestScript) {
        refusal = "The script of the project is larger than 16 MiB";
    }
    return refusal.empty();
}

bool ProjectReader::isNextShorthand() const
{
    if (*line != '#' || shorthands == std::size(kShorthandLines)) {
        return false;
    }
    const std::string_view text(line, strcspn(line, "\r\n"));
    return text == kShorthandLines[shorthands];
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
        const char* const begin = text;
        const std::string x = parseString(text);
        if (x == "END") {
            insidePolygon = false;
            return;
        }
        if (x.empty()) {
            return;
        }
        const char* const end = text;
        const std::string y = parseString(text);
        if (y.empty()) {
            reportArea(Severity::error, "vertices-odd", between(begin, end),
                       "POLY X,Y count is odd. Did you forget an Y value?");
            return;
        }
        picture.polys.back().points.push_back({toDouble(x.c_str()), toDouble(y.c_str())});
        ++corners;
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
    const char* const begin = text;
    const std::string word = parseString(text);
    keyword = between(begin, text);
    for (const Keyword& known : kKeywords) {
        if (word == known.word) {
            (this->*known.read)(text);
            return;
        }
    }
}

// PRODUCT id, "name": the comma is skipped with the rest of the number's word.
void ProjectReader::readProduct(const char*& text)
{
    const char* const begin = text;
    project.productId = parseInt(text);
    if (project.productId < kSmallestProductId || project.productId > kLargestProductId) {
        reportProduct("product-id-range", between(begin, text),
                      "PRODUCT id is not in range [1..999]");
        return;  // Intended: the id stays, the name is not read.
    }
    std::vector<std::string> fields;
    if (SplitStringKeepQuotes(text, fields, true) == 0) {
        reportProduct("product-name-missing", keyword, "PRODUCT has no readable name");
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
        reportArea(Severity::error, "area-without-name", keyword, "POLY has no name");
    }
}

// BOX name x y w h: a rectangle, stored as its four corners.
void ProjectReader::readBox(const char*& text)
{
    POLY& area = beginArea(text);
    if (area.name.empty()) {
        reportArea(Severity::error, "area-without-name", keyword, "BOX has no name");
        return;
    }
    const double x = parseFlt(text);
    const double y = parseFlt(text);
    const char* const begin = text;
    const double w = parseFlt(text);
    const double h = parseFlt(text);
    if (!(w > 0 && h > 0)) {  // not a number has no dimensions either
        reportArea(Severity::warning, "box-without-size", between(begin, text),
                   "BOX has no dimensions");
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
        reportArea(Severity::error, "area-without-name", keyword, "CIRCLE has no name");
        return;
    }
    const double xm = parseFlt(text);
    const double ym = parseFlt(text);
    const char* const begin = text;
    const double radius = parseFlt(text);
    if (!(radius > 0)) {
        reportArea(Severity::error, "circle-without-radius", between(begin, text),
                   "CIRCLE has no radius");
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
        Diagnostic diagnostic;
        diagnostic.kind = "script-unreadable";
        diagnostic.printed = "Failed to read script from project file.\n";
        report(diagnostic, keyword, "Failed to read script from project file.");
    }
}

// The place is in the current line; an empty one stands for the keyword.
void ProjectReader::report(Diagnostic diagnostic, std::string_view place, const std::string& text)
{
    const std::string_view word = place.empty() ? keyword : place;
    diagnostic.text = text;
    diagnostic.file = project.projectPath;
    diagnostic.line = lineNumber;
    diagnostic.column = static_cast<int>(word.data() - line) + 1;
    diagnostic.length = static_cast<int>(word.size());
    sink(diagnostic);
}

void ProjectReader::reportProduct(const char* kind, std::string_view place, const std::string& text)
{
    Diagnostic diagnostic;
    diagnostic.kind = kind;
    diagnostic.printed = "Error: " + text + "\n";
    report(diagnostic, place, text);
}

// About the area that is being read, the last one so far.
void ProjectReader::reportArea(Severity severity, const char* kind, std::string_view place,
                               const std::string& text)
{
    constexpr size_t kWidth = 4;
    const std::string number = itostr(lineNumber);
    const std::string blanks(kWidth - std::min(kWidth, number.size()), ' ');
    Diagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.kind = kind;
    diagnostic.subject = picture.polys.back().name;
    diagnostic.page = static_cast<int>(project.pictures.size()) + 1;
    diagnostic.area = static_cast<int>(picture.polys.size());
    diagnostic.printed = severityName(severity) + (": Line " + blanks + number) + " " + text + "\n";
    report(diagnostic, place, text);
}

// Appends an area with the name that comes next. A name that is new gets the next number.
POLY& ProjectReader::beginArea(const char*& text)
{
    POLY& area = picture.polys.emplace_back();
    ++areas;
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
