#pragma once

#include <cstdio>
#include <string_view>

#include "oid/OidProject.h"

namespace Oid {

// What becomes of a page that was saved without areas.
enum class SavedEmptyPages {
    dropped,  // unless it is the last
    kept
};

// Reads a project file (docs/project-file.md) into a project that has just been cleared. Nothing in
// a file stops the reading: what is wrong goes to the sink.
class ProjectReader
{
public:
    ProjectReader(OidProject& project, SavedEmptyPages emptyPages, const DiagnosticSink& sink);

    // Reads from the file's beginning to its end. False for more than any book has, which would
    // take all memory: then whyRefused tells, "The project has more than 250000 areas", and the
    // rest is not read.
    bool read(FILE* file);
    const std::string& whyRefused() const { return refusal; }

private:
    // True for the comment line that Save writes next at the end of a picture.
    bool isNextShorthand() const;
    bool isWithinBounds();
    void readLine(const char* text);
    void readVertices(const char*& text);
    void readKeyword(const char*& text);

    // One function per keyword; text stands behind the keyword.
    void readProduct(const char*& text);
    void readImage(const char*& text);
    void readPaper(const char*& text);
    void readDpi(const char*& text);
    void readOid(const char*& text);
    void readPoly(const char*& text);
    void readBox(const char*& text);
    void readCircle(const char*& text);
    void readScript(const char*& text);

    struct Keyword
    {
        std::string_view word;
        void (ProjectReader::*read)(const char*& text);
    };
    static const Keyword kKeywords[];

    void report(Diagnostic diagnostic, std::string_view place, const std::string& text);
    void reportProduct(const char* kind, std::string_view place, const std::string& text);
    void reportArea(Severity severity, const char* kind, std::string_view place,
                    const std::string& text);

    POLY& beginArea(const char*& text);
    void finishPicture();

    OidProject& project;
    const SavedEmptyPages emptyPages;
    const DiagnosticSink& sink;
    FILE* file = nullptr;
    PICTURE picture;             // the one under construction
    bool insideImage = false;    // behind an IMAGE line
    std::size_t shorthands = 0;  // so many of their comment lines stand right above
    OidProject::OID nextOid;
    int lineNumber = 0;
    const char* line = nullptr;  // the current one
    std::string_view keyword;    // of the current line, in it
    std::size_t areas = 0;       // of all pictures so far
    std::size_t corners = 0;
    std::string refusal;
    bool insidePolygon = false;  // lines hold vertices of the picture's last area
};

}  // namespace Oid
