// Any file as a picture: what the camera noted, sizes, the picture itself and the copy of it.
#include "fuzz/Fuzzing.h"

#include "decode/ScanImage.h"
#include "oid/PictureFile.h"

#include <QGuiApplication>

namespace {

bool isSmall(const QString& path)
{
    const QSize size = PictureFile(path).uprightSize();
    return !size.isValid() || qint64(size.width()) * size.height() < 1000 * 1000;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int count = 1;
    static char name[] = "picture";
    static char* words[] = {name, nullptr};
    static const bool kIsOffscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication kApplication(count, words);
    fuzzing::keepQuiet();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QString path =
        QString::fromStdString(fuzzing::fileWith(data, size, kIsOffscreen ? "picture.jpg" : ""));
    PictureFile(path).isUprightJpeg();
    PictureFile(path).fitsMemory();
    if (!isSmall(path)) {
        return 0;
    }
    const QImage image = PictureFile(path).read();
    const QSize told = PictureFile(path).uprightSize();
    fuzzing::require(image.isNull() || !told.isValid() || image.size() == told,
                     "a picture is as large as its header tells");
    PictureFile(path).readSmall(40);
    const PictureCopy copy(path);
    fuzzing::require(copy.image().isNull() == copy.file().isEmpty(), "every picture has a copy");
    ScanImage scan;
    scan.read(path.toStdString(), 0);
    return 0;
}
