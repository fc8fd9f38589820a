#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Oid {
class OidProject;
}

// The print images of several pictures, one after the other: what "Create" does.

// Dots per inch; with fewer the dots are too coarse for the pen.
constexpr int kFewestDpi = 600;
// The pictures with fewer, by their index, in ascending order.
std::vector<int> picturesWithTooFewDpi(const Oid::OidProject& project);

struct PrintJobResult
{
    int created = 0;
    int firstFailed = -1;    // index of the first picture that has no new print image, or -1
    std::string firstError;  // what was said about it, without the line end
    bool cancelled = false;
};

// Called on the calling thread with the percent done of all pictures together, of a total of 100
// for each; false cancels.
using PrintJobProgress = std::function<bool(int percent, int total)>;

// Makes the print images of the pictures first to last (indices), also behind one that fails.
// Before, it says through mi_printf which of them have too few DPI. Areas begin with empty tiles,
// so that the dots of earlier runs do not show. None are made while another program makes them.
PrintJobResult makeImages(int first, int last, Oid::OidProject& project,
                          const PrintJobProgress& progress = {});
// Of all pictures.
PrintJobResult makeImages(Oid::OidProject& project, const PrintJobProgress& progress = {});
