#include "app/print/DotPreview.h"

#include <QLabel>

DotPreview::DotPreview(QWidget* parent) : QScrollArea(parent), shown(new QLabel)
{
    setObjectName("dotPreview");
    shown->setObjectName("dotPreviewImage");
    setAccessibleName(tr("Preview: a square centimetre of the page"));
    setToolTip(tr("A square centimetre of the page: a pixel of the screen is one of the printer"));
    setAlignment(Qt::AlignCenter);
    setMinimumSize(120, 100);
    setWidget(shown);
}

void DotPreview::showPrinted(const QImage& printed)
{
    QPixmap pixels = QPixmap::fromImage(printed);
    pixels.setDevicePixelRatio(devicePixelRatioF());
    shown->setPixmap(pixels);
    shown->adjustSize();
}

QSize DotPreview::sizeHint() const
{
    constexpr int kUsual = 480;  // pixels: a centimetre at 1200 dots per inch
    const int edge = static_cast<int>(kUsual / devicePixelRatioF());
    return {edge, edge};
}
