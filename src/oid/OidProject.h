#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/Diagnostic.h"
#include "base/PrintFunction.h"
#include "oid/OidPixels.h"
#include "ttbasic/ttbasic.h"

// One authoring project in memory: a product, its pictures with their areas, the OID of every area
// name, and the script.
namespace Oid {

// A vertex. Intended: x and y are both in percent of the picture's width, so a picture taller than
// wide has y values above 100.
struct PNT
{
    double x = 0;
    double y = 0;
};

// The x at which the edge between two vertices crosses the height y. Only for edges with one end
// above y and one not above it. Print images rely on this very rounding.
inline double crossingX(const PNT& vertex, const PNT& previous, double y)
{
    return (previous.x - vertex.x) * (y - vertex.y) / (previous.y - vertex.y) + vertex.x;
}

// Even-odd crossing test, 1 when the ring contains the point. Points on an edge fall on one side;
// there is no tolerance.
int pnpoly(const std::vector<PNT>& points, const PNT& point);
// Reverses the vertices when their doubled signed area is negative, and otherwise leaves them.
void ccwpoly(std::vector<PNT>& points);

// A named area: a ring of vertices, closed from the last to the first. Several areas may share a
// name and then share its OID.
struct POLY
{
    bool isPntInPoly(const PNT& point) const { return pnpoly(points, point) != 0; }
    void fixOrientation() { ccwpoly(points); }

    std::string name;  // UTF-8, the key into the OID table
    std::vector<PNT> points;
    // Bounding box and dot pattern; filled for print images, not stored in the file.
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
    oidPixels tile;
};

// One page. Its background and its print image are found by the project's path functions.
struct PICTURE
{
    double paperWidth = 297.01;   // mm. Intended: the odd hundredths, files depend on them.
    double paperHeight = 209.97;  // mm
    int dpi = 1200;               // dots per inch
    std::vector<POLY> polys;      // in the order in which they were drawn or loaded
};

class OidProject
{
public:
    struct OID
    {
        int oid = 0;
        int rawCode = 0;  // always computed from oid; 0 where there is none
    };

    OidProject();
    // They copy texts and so may throw.
    OidProject(OidProject&& other);             // NOLINT(performance-noexcept-move-constructor)
    OidProject& operator=(OidProject&& other);  // NOLINT(performance-noexcept-move-constructor)

    // A fresh project takes this one's place, print function included.
    void clear();
    // Messages of this project, and those of all script compilers, go to the function from now on.
    // clear, and so open, sets the project's own one back to the default.
    void redirectPrintf(PrintFunction function);

    // Reads a project file in place of what is here. False, with a message, when it cannot be
    // opened; what is wrong within the file is reported and skipped.
    bool open(const std::string& filePath);
    // Writes the file whole or not at all; false, without a message, when that fails.
    bool save(std::string path);

    // Gives a number to every area name that has none, and refreshes all raw codes.
    void updateUsedOIDs();
    // Warns about names that only the compiled script or only the pictures have, and about numbers
    // that the pen cannot read. Always true: warnings stop no build. They are printed, or go to the
    // sink.
    bool checkSanity() const;
    bool checkSanity(const DiagnosticSink& sink) const;

    // Index of the first area of the picture that contains the point; -1 if there is none, or no
    // such picture.
    int pntInPoly(int pictureIndex, const PNT& point) const;

    // The files beside the project file; n is the index of a picture.
    std::string pathYaml() const;
    std::string pathGme() const;
    std::string pathImageSource(int n) const;
    std::string pathImageOutput(int n) const;

    std::string productName = "my project";
    int productId = 900;      // 1 to 999, checked only when loading
    std::string projectPath;  // of the project file, set by open and save
    std::vector<PICTURE> pictures;
    std::map<std::string, OID> oids;  // by area name
    ttbasic compiler;                 // holds the script
    PrintFunction print;              // every message of the model goes through it
    // Where the pictures of pages are that were moved but not saved (PictureOrder.h), by page.
    std::map<int, std::string> movedPictures;

private:
    std::string pathBesideProject(const std::string& nameAfterId) const;
};

// The folder of a project's audio files, in our form of a path: "900-audio" beside the project
// file.
std::string audioFolder(const OidProject& project);

}  // namespace Oid
