#include "oid/TiffWriter.h"

#include <tiffio.h>

#include <cmath>

#include "oid/PrintImage.h"

namespace {

constexpr std::uint64_t kClassicLimit = 0xf0000000;  // bytes; offsets have 32 bits there
constexpr std::uint64_t kSamples = 3;

FILE* stream(thandle_t handle)
{
    return static_cast<FILE*>(handle);
}

tmsize_t refuseToRead(thandle_t, void*, tmsize_t)
{
    return -1;
}

tmsize_t writeBytes(thandle_t handle, void* bytes, tmsize_t count)
{
    return static_cast<tmsize_t>(fwrite(bytes, 1, static_cast<std::size_t>(count), stream(handle)));
}

toff_t seek(thandle_t handle, toff_t offset, int origin)
{
    return static_cast<toff_t>(
        Platform::seekFile(stream(handle), static_cast<std::int64_t>(offset), origin));
}

// The file belongs to its FileReplacement, which has to be told of a failed flush.
int keepOpen(thandle_t)
{
    return 0;
}

toff_t sizeOf(thandle_t handle)
{
    return seek(handle, 0, SEEK_END);
}

// Messages of the library are for its developers; ours is printed where a call fails.
int keepQuiet(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

TIFF* openStream(FILE* file, const char* mode)
{
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetErrorHandlerExtR(options, keepQuiet, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options, keepQuiet, nullptr);
    TIFF* image = TIFFClientOpenExt("print image", mode, file, refuseToRead, writeBytes, seek,
                                    keepOpen, sizeOf, nullptr, nullptr, options);
    TIFFOpenOptionsFree(options);
    return image;
}

// Print shops think in dots per inch. The page's resolution is a whole number of dots per metre, so
// inches are used where readers get that very number back from whole dots per inch.
bool setResolution(TIFF* image, int dotsPerMetre)
{
    constexpr double kInchesPerMetre = 100 / 2.54;
    const double perInch = std::round(dotsPerMetre / kInchesPerMetre);
    const bool inInches = std::lround(perInch * kInchesPerMetre) == dotsPerMetre;
    const double resolution = inInches ? perInch : dotsPerMetre / 100.0;
    return TIFFSetField(image, TIFFTAG_RESOLUTIONUNIT,
                        inInches ? RESUNIT_INCH : RESUNIT_CENTIMETER) != 0 &&
           TIFFSetField(image, TIFFTAG_XRESOLUTION, resolution) != 0 &&
           TIFFSetField(image, TIFFTAG_YRESOLUTION, resolution) != 0;
}

}  // namespace

TiffWriter::TiffWriter(const std::string& target) : path(Platform::nativePath(target)), file(target)
{}

TiffWriter::~TiffWriter()
{
    if (image != nullptr) {
        TIFFCleanup(image);  // without writing anything more
    }
}

bool TiffWriter::open(const PageGeometry& page, int rowsPerStrip)
{
    if (file.file() == nullptr) {
        mi_printf("Error: Can't open file '%s'\n", path.c_str());
        return false;
    }
    const std::uint64_t largestSize =
        static_cast<std::uint64_t>(page.width) * static_cast<std::uint64_t>(page.height) * kSamples;
    image = openStream(file.file(), largestSize < kClassicLimit ? "w" : "w8");
    return (image != nullptr && setTags(page, rowsPerStrip)) || reportNotWritten();
}

bool TiffWriter::setTags(const PageGeometry& page, int rowsPerStrip)
{
    return TIFFSetField(image, TIFFTAG_IMAGEWIDTH, page.width) != 0 &&
           TIFFSetField(image, TIFFTAG_IMAGELENGTH, page.height) != 0 &&
           TIFFSetField(image, TIFFTAG_BITSPERSAMPLE, 8) != 0 &&
           TIFFSetField(image, TIFFTAG_SAMPLESPERPIXEL, static_cast<int>(kSamples)) != 0 &&
           TIFFSetField(image, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) != 0 &&
           TIFFSetField(image, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB) != 0 &&
           TIFFSetField(image, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT) != 0 &&
           TIFFSetField(image, TIFFTAG_COMPRESSION, COMPRESSION_ADOBE_DEFLATE) != 0 &&
           TIFFSetField(image, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL) != 0 &&
           TIFFSetField(image, TIFFTAG_ROWSPERSTRIP, rowsPerStrip) != 0 &&
           setResolution(image, page.dotsPerMetre);
}

bool TiffWriter::writeStrip(const Strip& strip)
{
    const auto size = static_cast<tmsize_t>(strip.size);
    complete = complete && TIFFWriteRawStrip(image, nextStrip++, strip.bytes.get(), size) == size;
    return complete;
}

bool TiffWriter::finish()
{
    complete = complete && TIFFWriteDirectory(image) != 0;
    TIFFCleanup(image);
    image = nullptr;
    return (complete && file.commit()) || reportNotWritten();
}

bool TiffWriter::reportNotWritten() const
{
    mi_printf("Error: Can't write file '%s'\n", path.c_str());
    return false;
}
