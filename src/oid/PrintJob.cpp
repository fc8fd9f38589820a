#include "oid/PrintJob.h"

#include "oid/OidProject.h"
#include "oid/OutputLock.h"
#include "oid/PrintImage.h"
#include "oid/PrintMessages.h"

namespace {

void sayWhichHaveTooFewDpi(const Oid::OidProject& project, int first, int last)
{
    for (const int n : picturesWithTooFewDpi(project)) {
        if (n >= first && n <= last) {
            mi_printf("Warning: picture %d: %d DPI are too few for the dots\n", n,
                      project.pictures[static_cast<size_t>(n)].dpi);
        }
    }
}

void emptyTiles(Oid::OidProject& project)
{
    for (Oid::PICTURE& picture : project.pictures) {
        for (Oid::POLY& area : picture.polys) {
            area.tile = oidPixels();
        }
    }
}

}  // namespace

std::vector<int> picturesWithTooFewDpi(const Oid::OidProject& project)
{
    std::vector<int> found;
    for (size_t n = 0; n < project.pictures.size(); ++n) {
        if (project.pictures[n].dpi < kFewestDpi) {
            found.push_back(static_cast<int>(n));
        }
    }
    return found;
}

PrintJobResult makeImages(int first, int last, Oid::OidProject& project,
                          const PrintJobProgress& progress)
{
    sayWhichHaveTooFewDpi(project, first, last);
    emptyTiles(project);
    const LastMessage lastMessage;
    PrintJobResult result;
    OutputLock lock(project, "print");
    if (first <= last && !lock.take([](const char* line) { mi_printf("%s", line); })) {
        result.firstFailed = first;
        result.firstError = lastMessage.line();
        return result;
    }
    const int total = 100 * (last - first + 1);
    for (int n = first; n <= last && !result.cancelled; ++n) {
        const bool created = makeImage(n, project, [&](int percent) {
            result.cancelled = progress && !progress(100 * (n - first) + percent, total);
            return !result.cancelled;
        });
        result.created += created ? 1 : 0;
        if (!created && !result.cancelled && result.firstFailed < 0) {
            result.firstFailed = n;
            result.firstError = lastMessage.line();
        }
    }
    return result;
}

PrintJobResult makeImages(Oid::OidProject& project, const PrintJobProgress& progress)
{
    return makeImages(0, static_cast<int>(project.pictures.size()) - 1, project, progress);
}
