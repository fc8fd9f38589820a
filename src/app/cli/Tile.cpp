#include <QBuffer>
#include <QImage>
#include <cstdio>

#include "app/cli/Commands.h"
#include "base/PlatformFiles.h"
#include "oid/OidPixels.h"
#include "oid/OidRawCodes.h"

namespace {

constexpr int kDefaultSize = 48;     // pixels
constexpr int kLargestSize = 16384;  // pixels; a quarter of a gigabyte

QImage drawn(const oidPixels& tile)
{
    QImage image(tile.width, tile.height, QImage::Format_Grayscale8);
    for (int y = 0; y < tile.height; ++y) {
        unsigned char* const row = image.scanLine(y);
        for (int x = 0; x < tile.width; ++x) {
            row[x] = tile.at(x, y) ? 0 : 255;
        }
    }
    return image;
}

bool writePng(const QImage& image, const std::string& path)
{
    QBuffer png;
    if (!png.open(QIODevice::WriteOnly) || !image.save(&png, "PNG")) {
        return false;
    }
    Platform::FileReplacement replacement(path);
    if (replacement.file() == nullptr) {
        return false;
    }
    const QByteArray& bytes = png.data();
    fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), replacement.file());
    return replacement.commit();
}

int drawTile(const Arguments& arguments)
{
    const auto oid = wholeNumber(arguments.operands[0], 0, oid_raw_codes::kCount - 1);
    if (!oid) {
        return usageError("OID must be a number from 0 to 16383, not '" + arguments.operands[0] +
                          "'");
    }
    const std::string sizeText =
        arguments.has("--size") ? arguments.value("--size") : std::to_string(kDefaultSize);
    const auto size = wholeNumber(sizeText, 1, kLargestSize);
    if (!size) {
        return usageError("PIXELS must be a number from 1 to 16384, not '" + sizeText + "'");
    }
    oidPixels tile;
    tile.create(oid_raw_codes::getRawCode(*oid), *size, false);
    if (!writePng(drawn(tile), arguments.value("-o"))) {
        printf("Error: Can't open file '%s'\n", arguments.value("-o").c_str());
        return kFailed;
    }
    return kFine;
}

}  // namespace

Command tileCommand()
{
    return {"tile",
            "OID",
            "Draws the dot pattern of one code, black on white.",
            {{"-o", "FILE", "the PNG file to write", true},
             {"--size", "PIXELS", "width and height, rounded up to a multiple of 4 (default 48)"}},
            drawTile};
}
