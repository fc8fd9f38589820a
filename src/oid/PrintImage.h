#pragma once

#include <functional>

#include "base/PrintFunction.h"

namespace Oid {
class OidProject;
struct POLY;
}  // namespace Oid

// Print images: the background of a picture on a page of its paper size, covered with the dot
// patterns of its areas and with a fill pattern everywhere else, as a TIFF beside the project.

// Every message of the print images goes through it; standard output unless changed.
extern PrintFunction mi_printf;

// Called on the calling thread with 0 to 100 percent of the page done; false cancels the page.
using PrintProgress = std::function<bool(int percent)>;

// Renders picture n (from 0) of the project into the file named by pathImageOutput(n).
// False when nothing was written (no background, a message was printed, or cancelled); an earlier
// print image then stays as it was. Turns the picture's polygons to one orientation, sets the
// bounds of all polygons, enters areas without OID into the OID table and draws the areas' tiles.
bool makeImage(int n, Oid::OidProject& project, const PrintProgress& progress = {});

// Sets minX to maxY of every polygon of every picture to the bounds of its points; polygons
// without points keep theirs.
void prepareBounds(Oid::OidProject& project);
void prepareBounds(Oid::POLY& area);
