#pragma once

#include <memory>
#include <string>

#include "base/PlatformFiles.h"
#include "oid/PageGeometry.h"
#include "oid/StripCompressor.h"

struct tiff;

// Writes one page as a TIFF file: RGB, 8 bits, Deflate with horizontal predictor, in strips that
// come compressed. The file takes its place only when it is complete.
class TiffWriter
{
public:
    explicit TiffWriter(const std::string& path);
    ~TiffWriter();

    // Starts the file. False, with a message, when it cannot be made.
    bool open(const PageGeometry& page, int rowsPerStrip);
    // Strips come in order. False, without a message (it may be called on any thread), when the
    // disk is full or broken.
    bool writeStrip(const Strip& strip);
    bool finish();
    // Says that the file could not be written. Always false.
    bool reportNotWritten() const;

private:
    bool setTags(const PageGeometry& page, int rowsPerStrip);

    std::string path;
    Platform::FileReplacement file;
    tiff* image = nullptr;
    unsigned nextStrip = 0;
};
