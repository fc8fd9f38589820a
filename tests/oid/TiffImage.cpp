#include "tests/oid/TiffImage.h"

#include <memory>
#include <tiffio.h>

namespace {

struct CloseTiff
{
    void operator()(TIFF* file) const { TIFFClose(file); }
};

}  // namespace

QImage readTiff(const std::string& path)
{
    TIFFSetErrorHandler(nullptr);
    const std::unique_ptr<TIFF, CloseTiff> file(TIFFOpen(path.c_str(), "r"));
    uint32_t width = 0;
    uint32_t height = 0;
    if (file == nullptr || TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) != 1 ||
        TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height) != 1) {
        return {};
    }
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGBX8888);
    auto* const pixels = reinterpret_cast<uint32_t*>(image.bits());
    if (TIFFReadRGBAImageOriented(file.get(), width, height, pixels, ORIENTATION_TOPLEFT, 1) != 1) {
        return {};
    }
    return image.convertToFormat(QImage::Format_RGB32);
}
