#include "decode/ScanImage.h"

#include <QImage>

#include <tiffio.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>

#include "base/PlatformFiles.h"
#include "base/PlatformMachine.h"
#include "oid/PictureFile.h"
#include "oid/PrintImage.h"

namespace {

constexpr int kUsualDpi = 1200;
constexpr double kFewestScannedDpi = 250;  // what is less is a screen's, or nobody's

// How many pixels become one, so that the search works at about the usual resolution.
int reductionFor(int dpi)
{
    return std::max(1, static_cast<int>(std::lround(dpi / static_cast<double>(kUsualDpi) - 0.01)));
}

int chooseDpi(int given, double told)
{
    if (given > 0) {
        return given;
    }
    return told >= kFewestScannedDpi ? static_cast<int>(std::lround(told)) : kUsualDpi;
}

// Makes a picture smaller while its rows come in.
class GreyRows
{
public:
    GreyRows(ScanImage& image, int width, int height) : scan(image), step(image.reduced)
    {
        scan.width = std::max(1, width / step);
        scan.height = std::max(1, height / step);
        scan.pixels.resize(static_cast<std::size_t>(scan.width) *
                           static_cast<std::size_t>(scan.height));
        sums.resize(static_cast<std::size_t>(scan.width));
    }

    // The next row; grey(x) is the pixel at x.
    template <typename Grey>
    void add(const Grey& grey)
    {
        const int y = row++ / step;
        if (y >= scan.height) {
            return;
        }
        std::uint8_t* const target =
            &scan.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(scan.width)];
        if (step == 1) {
            for (int x = 0; x < scan.width; ++x) {
                target[x] = static_cast<std::uint8_t>(grey(x));
            }
            return;
        }
        for (int x = 0; x < scan.width; ++x) {
            for (int i = 0; i < step; ++i) {
                sums[static_cast<std::size_t>(x)] += grey(x * step + i);
            }
        }
        if (row % step == 0) {
            for (int x = 0; x < scan.width; ++x) {
                target[x] =
                    static_cast<std::uint8_t>(sums[static_cast<std::size_t>(x)] / (step * step));
            }
            std::fill(sums.begin(), sums.end(), 0);
        }
    }

private:
    ScanImage& scan;
    int step;
    int row = 0;
    std::vector<int> sums;
};

bool readPicture(const std::string& native, int givenDpi, ScanImage& scan)
{
    PictureFile file(QString::fromStdString(native));
    if (!file.fitsMemory()) {
        mi_printf("Error: The image '%s' is too large for the memory\n", native.c_str());
        return false;
    }
    QImage picture = file.read();
    if (picture.isNull()) {
        mi_printf("Error: %s\n", whyNoPicture(native).c_str());
        return false;
    }
    scan.dpi = chooseDpi(givenDpi, picture.dotsPerMeterX() * 0.0254);
    scan.reduced = reductionFor(scan.dpi);
    const bool isGrey = picture.format() == QImage::Format_Grayscale8;
    if (!isGrey) {
        picture = onWhitePaper(picture).convertToFormat(QImage::Format_RGB32);
    }
    GreyRows rows(scan, picture.width(), picture.height());
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* const grey = picture.constScanLine(y);
        const QRgb* const pixels = reinterpret_cast<const QRgb*>(grey);
        if (isGrey) {
            rows.add([grey](int x) { return grey[x]; });
        } else {
            rows.add([pixels](int x) {
                return std::max({qRed(pixels[x]), qGreen(pixels[x]), qBlue(pixels[x])});
            });
        }
    }
    return true;
}

FILE* stream(thandle_t handle)
{
    return static_cast<FILE*>(handle);
}

tmsize_t readBytes(thandle_t handle, void* bytes, tmsize_t count)
{
    return static_cast<tmsize_t>(fread(bytes, 1, static_cast<std::size_t>(count), stream(handle)));
}

tmsize_t refuseToWrite(thandle_t, void*, tmsize_t)
{
    return -1;
}

toff_t seek(thandle_t handle, toff_t offset, int origin)
{
    return static_cast<toff_t>(
        Platform::seekFile(stream(handle), static_cast<std::int64_t>(offset), origin));
}

int closeStream(thandle_t handle)
{
    return fclose(stream(handle));
}

toff_t sizeOf(thandle_t handle)
{
    const auto here = seek(handle, 0, SEEK_CUR);
    const auto size = seek(handle, 0, SEEK_END);
    seek(handle, here, SEEK_SET);
    return size;
}

// Ours are printed where a call fails.
int keepQuiet(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

using TiffFile = std::unique_ptr<TIFF, void (*)(TIFF*)>;

// Null when it is no TIFF.
TiffFile openTiff(const std::string& path)
{
    FILE* const file = Platform::openFile(path, "rb");
    if (file == nullptr) {
        return {nullptr, TIFFClose};
    }
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetErrorHandlerExtR(options, keepQuiet, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options, keepQuiet, nullptr);
    TIFF* const image = TIFFClientOpenExt("scan", "rm", file, readBytes, refuseToWrite, seek,
                                          closeStream, sizeOf, nullptr, nullptr, options);
    TIFFOpenOptionsFree(options);
    if (image == nullptr) {
        fclose(file);
    }
    return {image, TIFFClose};
}

double dpiOf(TIFF* image)
{
    float resolution = 0;
    std::uint16_t unit = RESUNIT_INCH;
    TIFFGetField(image, TIFFTAG_XRESOLUTION, &resolution);
    TIFFGetFieldDefaulted(image, TIFFTAG_RESOLUTIONUNIT, &unit);
    return unit == RESUNIT_CENTIMETER ? resolution * 2.54 : resolution;
}

// Strip by strip, so that a page of any size needs little more than its grey.
bool readTiff(TIFF* image, const std::string& native, int givenDpi, ScanImage& scan)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t rowsPerStrip = 0;
    TIFFGetField(image, TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(image, TIFFTAG_IMAGELENGTH, &height);
    TIFFGetFieldDefaulted(image, TIFFTAG_ROWSPERSTRIP, &rowsPerStrip);
    rowsPerStrip = std::clamp<std::uint32_t>(rowsPerStrip, 1, std::max<std::uint32_t>(height, 1));
    scan.dpi = chooseDpi(givenDpi, dpiOf(image));
    scan.reduced = reductionFor(scan.dpi);
    const std::uint64_t kept =
        std::uint64_t{width} * height / static_cast<std::uint64_t>(scan.reduced * scan.reduced);
    const std::uint64_t strip = std::uint64_t{width} * rowsPerStrip * sizeof(std::uint32_t);
    constexpr std::uint32_t kLargestEdge = 0x7fffffff;
    if (kept + strip > Platform::availableMemory() / 2 || width > kLargestEdge ||
        height > kLargestEdge) {
        mi_printf("Error: The image '%s' is too large for the memory\n", native.c_str());
        return false;
    }
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * rowsPerStrip);
    GreyRows rows(scan, static_cast<int>(width), static_cast<int>(height));
    for (std::uint32_t y = 0; y < height; y += rowsPerStrip) {
        if (TIFFReadRGBAStripExt(image, y, pixels.data(), 1) == 0) {
            mi_printf("Error: The image '%s' is damaged\n", native.c_str());
            return false;
        }
        const std::uint32_t count = std::min(rowsPerStrip, height - y);
        for (std::uint32_t i = 0; i < count; ++i) {  // the lowest row comes first
            const std::uint32_t* const row =
                pixels.data() + static_cast<std::size_t>(count - 1 - i) * width;
            rows.add([row](int x) {
                return static_cast<int>(
                    std::max({TIFFGetR(row[x]), TIFFGetG(row[x]), TIFFGetB(row[x])}));
            });
        }
    }
    return true;
}

}  // namespace

bool ScanImage::read(const std::string& path, int givenDpi)
{
    const std::string native = Platform::nativePath(path);
    const TiffFile tiff = openTiff(path);
    if (tiff != nullptr && TIFFIsTiled(tiff.get()) == 0) {
        return readTiff(tiff.get(), native, givenDpi, *this);
    }
    return readPicture(native, givenDpi, *this);
}
