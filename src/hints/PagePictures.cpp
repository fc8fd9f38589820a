#include "hints/PagePictures.h"

#include <QFileInfo>

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"

namespace hints {

namespace {

PagePicture decoded(const QString& path)
{
    PictureFile file(path);
    PagePicture picture;
    picture.size = file.uprightSize();
    picture.small =
        file.readSmall(PagePicture::kLongestSide).convertToFormat(QImage::Format_Grayscale8);
    if (picture.size.isEmpty() || picture.small.isNull()) {
        picture.size = picture.small.size();
    }
    return picture;
}

}  // namespace

PagePicture PagePictures::of(const std::string& path)
{
    const QFileInfo file(QString::fromStdString(Platform::nativePath(path)));
    if (!file.exists()) {
        return {};
    }
    const std::lock_guard<std::mutex> alone(access);
    Known& entry = known[path];
    if (entry.changed != file.lastModified() || entry.bytes != file.size()) {
        entry = {file.lastModified(), file.size(), decoded(file.filePath())};
    }
    return entry.picture;
}

}  // namespace hints
