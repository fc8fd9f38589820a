#include "app/PolyEditorWidget.h"

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

PolyEditorWidget::PolyEditorWidget(QWidget* parent) : QWidget(parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    clearImage();
}

void PolyEditorWidget::setDocument(Document* shown)
{
    document = shown;
    connect(document, &Document::changed, this, &PolyEditorWidget::showChange);
}

void PolyEditorWidget::showChange(const Change& change)
{
    if (change.has(Change::pictureFile)) {
        loadedPath.clear();
    }
    update();
}

int PolyEditorWidget::currentPicture() const
{
    return document != nullptr ? document->currentPage() : 0;
}

int PolyEditorWidget::selectedPoly() const
{
    return document != nullptr ? document->selectedIndex() : -1;
}

const Oid::PICTURE* PolyEditorWidget::picture() const
{
    if (document == nullptr || document->pageAt(document->currentPage()) == PageId::none) {
        return nullptr;
    }
    return &document->project().pictures[static_cast<size_t>(document->currentPage())];
}

int PolyEditorWidget::heightForWidth(int width) const
{
    if (picture() == nullptr) {
        return 0;
    }
    const int imageWidth = std::max(1, image.width());
    const qint64 height = qint64(image.height()) * width / imageWidth;
    return static_cast<int>(std::clamp<qint64>(height, 1, 1000000)) + 1;
}

Oid::PNT PolyEditorWidget::toProz(QPoint pixel) const
{
    if (!rect().isValid()) {
        return {};
    }
    return {pixel.x() * 100.0 / width(), pixel.y() * 100.0 / width()};
}

// Truncates toward zero; areas far outside the picture stay within what the painter can take.
static int toPixel(double percent, int width)
{
    constexpr double kFarOutside = 1e6;
    return static_cast<int>(std::clamp(percent * 0.01 * width, -kFarOutside, kFarOutside));
}

QPoint PolyEditorWidget::toPix(const Oid::PNT& point) const
{
    if (!rect().isValid()) {
        return {0, 0};
    }
    return {toPixel(point.x, width()), toPixel(point.y, width())};
}

void PolyEditorWidget::loadImage(const QString& path)
{
    readImage(path);
    repaint();
}

void PolyEditorWidget::readImage(const QString& path)
{
    const std::string native = Platform::nativePath(path.toStdString());
    const QImage loaded = PictureFile(QString::fromStdString(native)).read();
    if (loaded.isNull()) {
        clearImage();
    } else {
        setImage(loaded);
    }
}

void PolyEditorWidget::clearImage()
{
    QImage placeholder(150, 100, QImage::Format_RGB32);
    placeholder.fill(QColor(200, 255, 255));
    QPainter painter(&placeholder);
    painter.drawText(10, 10, "NO IMAGE LOADED");
    painter.drawLine(0, 0, 150, 100);
    painter.end();
    setImage(placeholder);
}

void PolyEditorWidget::setImage(QImage loaded)
{
    image = std::move(loaded);
    scaledImage = {};
    page = {};
}

void PolyEditorWidget::mousePressEvent(QMouseEvent* /*event*/) {}

void PolyEditorWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const QPointF position = event->localPos();
        emit clickedLB(toProz({qRound(position.x()), qRound(position.y())}));
    }
}

void PolyEditorWidget::paintEvent(QPaintEvent* /*event*/)
{
    if (picture() != nullptr) {
        readCurrentImage();
    }
    askForHeight();
    if (picture() == nullptr) {
        return;
    }
    if (!rect().isValid()) {
        return;
    }
    QPainter painter(this);
    drawPage(painter);
}

void PolyEditorWidget::readCurrentImage()
{
    const std::string path = document->project().pathImageSource(currentPicture());
    if (path != loadedPath) {
        loadedPath = path;
        readImage(QString::fromStdString(path));
    }
}

// Pictures are read when they are painted, so that is when their height comes out.
void PolyEditorWidget::askForHeight()
{
    const int height = heightForWidth(width());
    if (height != askedHeight) {
        askedHeight = height;
        updateGeometry();
    }
}

// A picture like a thread would be scaled to far more than any screen shows.
constexpr qint64 kMostScaledPixels = 64 * 1024 * 1024;

void PolyEditorWidget::drawPage(QPainter& painter)
{
    const QRect place(0, 0, width(), heightForWidth(width()));
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(place.size()) * ratio).toSize();
    const DrawnAreas areas = areasToDraw();
    if (qint64(pixels.width()) * pixels.height() > kMostScaledPixels) {
        painter.drawImage(place, image);  // only what is seen of it
        draw(painter, areas);
        return;
    }
    if (scaledImage.size() != pixels) {
        scaledImage = QPixmap::fromImage(
            image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        page = {};
    }
    if (page.isNull() || areas.selected != areasOnPage.selected ||
        areas.corners != areasOnPage.corners) {
        page = scaledImage;
        page.setDevicePixelRatio(ratio);
        QPainter onPage(&page);
        draw(onPage, areas);
        areasOnPage = areas;
    }
    painter.drawPixmap(place, page);
    drawBelow(painter, areas, place.height());
}

// Areas may reach below the picture, where the page ends: it may be lower than the tab, or its file
// may be missing.
void PolyEditorWidget::drawBelow(QPainter& painter, DrawnAreas areas, int pageHeight) const
{
    const QRect below = rect().adjusted(0, pageHeight, 0, 0);
    if (below.isEmpty()) {
        return;
    }
    for (QPolygon& corners : areas.corners) {
        if (corners.boundingRect().bottom() < below.top()) {
            corners.clear();
        }
    }
    painter.setClipRect(below);
    draw(painter, areas);
}

PolyEditorWidget::DrawnAreas PolyEditorWidget::areasToDraw() const
{
    DrawnAreas areas;
    areas.selected = selectedPoly();
    for (const Oid::POLY& area : picture()->polys) {
        QPolygon& corners = areas.corners.emplace_back();
        for (const Oid::PNT& point : area.points) {
            corners << toPix(point);
        }
    }
    return areas;
}

void PolyEditorWidget::draw(QPainter& painter, const DrawnAreas& areas)
{
    for (size_t i = 0; i < areas.corners.size(); ++i) {
        const bool selected = static_cast<int>(i) == areas.selected;
        painter.setPen(selected ? QColor(255, 32, 32) : QColor(32, 96, 255));
        painter.setBrush(selected ? QColor(255, 32, 32, 64) : QColor(0, 255, 196, 64));
        const QPolygon& corners = areas.corners[i];
        painter.drawPolygon(corners, Qt::OddEvenFill);
        if (corners.size() == 1) {
            painter.drawPoint(corners[0]);  // the first corner of a new area
        }
    }
}
