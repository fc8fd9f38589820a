#pragma once

#include <cstdio>
#include <string_view>

#include "oid/OidProject.h"

namespace Oid {

// Reads a project file (docs/project-file.md) into a project that has just been cleared. Nothing in
// a file stops the reading: what is wrong is reported through the project's print function.
class ProjectReader
{
public:
    explicit ProjectReader(OidProject& project);

    // Reads from the file's beginning to its end.
    void read(FILE* file);

private:
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

    POLY& beginArea(const char*& text);
    void finishPicture();

    OidProject& project;
    FILE* file = nullptr;
    PICTURE picture;  // the one under construction
    OidProject::OID nextOid;
    int lineNumber = 0;
    bool insidePolygon = false;  // lines hold vertices of the picture's last area
};

}  // namespace Oid
