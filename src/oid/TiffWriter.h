#pragma once

#include <string>

#include "base/PlatformFiles.h"
#include "oid/PageSink.h"

struct tiff;

// Writes one page as a TIFF file: RGB, 8 bits, Deflate with horizontal predictor, in strips that
// come compressed. The file takes its place only when it is complete.
class TiffWriter : public PageSink
{
public:
    explicit TiffWriter(const std::string& path);
    ~TiffWriter() override;

    bool open(const PageGeometry& page, int rowsPerStrip) override;
    bool writeStrip(const Strip& strip) override;
    bool finish() override;

private:
    // Says that the file could not be written. Always false.
    bool reportNotWritten() const;
    bool setTags(const PageGeometry& page, int rowsPerStrip);

    std::string path;
    Platform::FileReplacement file;
    tiff* image = nullptr;
    unsigned nextStrip = 0;
    bool complete = true;  // no strip was lost
};
