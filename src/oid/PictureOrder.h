#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/Diagnostic.h"
#include "oid/OidProject.h"

// The pictures of a book are named by their pages. While pages have been moved or removed and that
// is not saved yet, the project file speaks of other pages than the files do; then a file beside
// the project, "900-bkgnd-moved.txt", tells where the pictures are. docs/picture-order.md has its
// format, and why nothing is lost wherever a program is stopped.
namespace Oid {

constexpr int kAside = -1;

struct PictureOrder
{
    // Each picture, by its page in the project file (higher numbers are of pages that are not saved
    // yet): the page whose file name it has now, or kAside.
    std::map<int, int> places;
    std::string projectFile;  // name without folder
    // Of the project file with which the places are those of its pages; empty unless it is just
    // being saved.
    std::string finalHash;
};

// The names of these files, by folder and number of a project.
class PictureFiles
{
public:
    explicit PictureFiles(const OidProject& project);

    bool operator==(const PictureFiles& other) const { return beginning == other.beginning; }
    bool operator!=(const PictureFiles& other) const { return !(*this == other); }

    std::string at(int page) const;
    // Where a picture is that has no page, or is on its way from one to the other.
    std::string aside(int picture) const;
    std::string order() const;
    std::string lock() const;

    // Where a picture is: aside if there is such a file, else at its place.
    std::string fileOf(const PictureOrder& order, int picture) const;

private:
    std::string beginning;
};

std::string textOf(const PictureOrder& order);
// Nothing when the text is not whole.
std::optional<PictureOrder> parsePictureOrder(const std::string& text);

// As PictureOrder::finalHash has it: of the file that saving the project would write.
std::string hashOfFile(const OidProject& project);
// Whether the project file is the one that the places belong to.
bool isSaved(const OidProject& project, const PictureOrder& order);

// Nothing where there is no such file beside the project, or it is damaged; that goes to the sink.
std::optional<PictureOrder> readPictureOrder(const OidProject& project, const DiagnosticSink& sink);

// Of a project that was just read: fills in its movedPictures. No file is touched.
void findMovedPictures(OidProject& project, const DiagnosticSink& sink);

}  // namespace Oid
