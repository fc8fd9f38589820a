#include "oid/PictureFile.h"

#include "base/PlatformMemory.h"

PictureFile::PictureFile(const QString& path) : reader(path)
{
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
}

// Half of what there is: decoders need room besides, and other programs run too.
bool PictureFile::fitsMemory() const
{
    const QSize size = reader.size();
    if (!size.isValid()) {
        return true;  // the decoder will tell
    }
    const std::uint64_t pixels =
        static_cast<std::uint64_t>(size.width()) * static_cast<std::uint64_t>(size.height());
    return pixels * sizeof(QRgb) <= Platform::availableMemory() / 2;
}

bool PictureFile::isUprightJpeg() const
{
    return reader.format() == "jpeg" &&
           reader.transformation() == QImageIOHandler::TransformationNone;
}

QImage PictureFile::read()
{
    return fitsMemory() ? reader.read() : QImage();
}
