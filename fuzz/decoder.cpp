// Any pixels as a scan: dots are looked for, and codes.
#include "fuzz/Fuzzing.h"

#include "decode/ReadCodes.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    constexpr int kLongest = 400;
    fuzzing::Choices choices(data, size);
    ScanImage scan;
    scan.width = 1 + choices.below(kLongest);
    scan.height = 1 + choices.below(kLongest);
    scan.dpi = 300 * (1 + choices.below(4));
    const auto pixels = static_cast<size_t>(scan.width) * static_cast<size_t>(scan.height);
    scan.pixels.assign(pixels, 255);
    if (choices.oneIn(2)) {  // grey values, over and over
        std::string greys = choices.text(255);
        greys += greys.empty() ? "\x80" : "";
        for (size_t i = 0; i < pixels; ++i) {
            scan.pixels[i] = static_cast<uint8_t>(greys[i % greys.size()]);
        }
    }
    const int edge = 1 + choices.below(4);
    while (!choices.isAtEnd()) {  // dots
        const int x = choices.below(scan.width);
        const int y = choices.below(scan.height);
        for (int i = 0; i < edge * edge; ++i) {
            const int column = x + i % edge;
            const int row = y + i / edge;
            if (column < scan.width && row < scan.height) {
                scan.pixels[static_cast<size_t>(row) * static_cast<size_t>(scan.width) +
                            static_cast<size_t>(column)] = 0;
            }
        }
    }
    for (const ReadArea& area : readCodes(scan)) {
        fuzzing::require(area.oid >= 0 && area.oid <= 65535, "a code is one that exists");
        fuzzing::require(!area.tiles.empty(), "an area has tiles");
    }
    return 0;
}
