#include "document/NewPage.h"

#include "oid/PictureFile.h"

edit::AddPage newPage(const PictureCopy& picture)
{
    constexpr double kDotsPerMetre = 39.37;  // of one dot per inch
    const QImage& image = picture.image();
    Oid::PICTURE page;
    page.paperWidth = image.widthMM();
    page.paperHeight = image.heightMM();
    page.dpi = static_cast<int>(image.dotsPerMeterX() / kDotsPerMetre + 0.4444);
    return {page, picture.file()};
}
