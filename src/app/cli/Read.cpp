#include <QRect>

#include <cstdio>
#include <optional>

#include "app/cli/Commands.h"
#include "decode/ReadCodes.h"

namespace {

constexpr int kFewestScanDpi = 250;
constexpr int kMostScanDpi = 9600;

// "120,34"
std::optional<QPointF> placeOf(const std::string& text)
{
    const std::size_t comma = text.find(',');
    if (comma == std::string::npos) {
        return std::nullopt;
    }
    const auto x = wholeNumber(text.substr(0, comma), 0);
    const auto y = wholeNumber(text.substr(comma + 1), 0);
    return x && y ? std::optional<QPointF>(QPointF(*x, *y)) : std::nullopt;
}

void printAsJson(const std::vector<ReadArea>& areas)
{
    fputs("[", stdout);
    const char* separator = "\n";
    for (const ReadArea& area : areas) {
        const QRect box = area.bounds.toRect();
        printf("%s  {\"oid\": %d, \"x\": %d, \"y\": %d, \"width\": %d, \"height\": %d, "
               "\"codes\": %zu}",
               separator, area.oid, box.x(), box.y(), box.width(), box.height(), area.tiles.size());
        separator = ",\n";
    }
    fputs(areas.empty() ? "]\n" : "\n]\n", stdout);
}

void printAsLines(const std::vector<ReadArea>& areas)
{
    for (const ReadArea& area : areas) {
        const QRect box = area.bounds.toRect();
        printf("%d at %d,%d, %d x %d pixels, %zu %s\n", area.oid, box.x(), box.y(), box.width(),
               box.height(), area.tiles.size(), area.tiles.size() == 1 ? "code" : "codes");
    }
    if (areas.empty()) {
        puts("No codes were found.");
    }
}

int read(const Arguments& arguments)
{
    int dpi = 0;
    if (arguments.has("--dpi")) {
        const auto given = wholeNumber(arguments.value("--dpi"), kFewestScanDpi, kMostScanDpi);
        if (!given) {
            return usageError("DPI must be a number from 250 to 9600, not '" +
                              arguments.value("--dpi") + "'");
        }
        dpi = *given;
    }
    const auto place =
        arguments.has("--at") ? placeOf(arguments.value("--at")) : std::optional<QPointF>();
    if (arguments.has("--at") && !place) {
        return usageError("X,Y must be two numbers such as 120,34, not '" +
                          arguments.value("--at") + "'");
    }
    ScanImage scan;
    if (!scan.read(arguments.operands[0], dpi)) {
        return kFailed;
    }
    std::vector<ReadArea> areas = readCodes(scan);
    if (place) {
        const ReadArea* const area = areaAt(areas, *place, scan.dpi);
        areas = area != nullptr ? std::vector<ReadArea>{*area} : std::vector<ReadArea>();
    }
    (arguments.has("--json") ? printAsJson : printAsLines)(areas);
    return kFine;
}

}  // namespace

Command readCommand()
{
    return {"read",
            "IMAGE",
            "Finds the codes on a scan, a photo or a print image, as the pen would.",
            {{"--dpi", "DPI", "the image's resolution, when it does not tell it (default 1200)"},
             {"--at", "X,Y", "only what is at this pixel"},
             {"--json", nullptr, "as JSON"}},
            read};
}
