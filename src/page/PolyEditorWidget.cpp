#include "page/PolyEditorWidget.h"

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"
#include "page/PageTool.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

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

void PolyEditorWidget::setTool(PageTool* chosen)
{
    tool = chosen;
    setCursor(tool->cursor());
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

PageView PolyEditorWidget::view() const
{
    return {std::max(1, width()), {0, 0}};
}

Oid::PNT PolyEditorWidget::toProz(QPoint pixel) const
{
    return rect().isValid() ? view().toPercent(pixel) : Oid::PNT();
}

QPoint PolyEditorWidget::toPix(const Oid::PNT& point) const
{
    return rect().isValid() ? view().toPixel(point) : QPoint(0, 0);
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
        image = loaded;
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
    image = placeholder;
}

// A click between pixels is at the nearest one.
static QPoint pixelOf(const QMouseEvent& event)
{
    return {qRound(event.localPos().x()), qRound(event.localPos().y())};
}

static PageMouse mouseOn(const PageView& view, const QMouseEvent& event)
{
    return {view.toPercent(pixelOf(event)), view, event.button(), event.buttons(),
            event.modifiers()};
}

void PolyEditorWidget::mousePressEvent(QMouseEvent* event)
{
    if (tool != nullptr) {
        tool->press(mouseOn(view(), *event));
    }
}

void PolyEditorWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (tool != nullptr) {
        tool->move(mouseOn(view(), *event));
    }
}

void PolyEditorWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (tool != nullptr) {
        tool->release(mouseOn(view(), *event));
    }
    if (event->button() == Qt::LeftButton) {
        emit clickedLB(toProz(pixelOf(*event)));
    }
}

void PolyEditorWidget::keyPressEvent(QKeyEvent* event)
{
    if (tool == nullptr || !tool->key(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void PolyEditorWidget::showChange(const Change& change)
{
    if (change.has(Change::pictureFile)) {
        loadedPath.clear();
    }
    const bool otherPage = picture() == nullptr || tiles.isEmpty() ||
                           document->project().pathImageSource(currentPicture()) != loadedPath;
    updateSoon(otherPage ? rect() : takeChangedAreas());
}

void PolyEditorWidget::updateSoon(const QRegion& region)
{
    unpainted += region;
    update(region);
}

void PolyEditorWidget::paintChanges()
{
    repaint(unpainted);
}

QRegion PolyEditorWidget::takeChangedAreas()
{
    const PageView page = view();
    const QRect seen = visibleRegion().boundingRect().translated(-page.origin);
    AreaOutlines areas(picture()->polys, selectedPoly(), {page.width, {0, 0}});
    return tiles.showAreas(std::move(areas), seen).translated(page.origin);
}

QRegion PolyEditorWidget::takeChanges()
{
    const int pageWidth = view().width;
    const QSize page(pageWidth, heightForWidth(pageWidth));
    const int seenWidth = visibleRegion().boundingRect().width();
    const bool otherPage = tiles.showPicture(image, page, devicePixelRatioF(), seenWidth);
    const QRegion changed = takeChangedAreas();
    return otherPage ? rect() : changed;
}

void PolyEditorWidget::paintEvent(QPaintEvent* event)
{
    unpainted -= event->region();
    if (picture() != nullptr) {
        readCurrentImage();
    }
    askForHeight();
    if (picture() == nullptr || !rect().isValid()) {
        tiles.clear();
        return;
    }
    updateSoon(takeChanges() - event->region());
    const QPoint origin = view().origin;
    const QRect seen = visibleRegion().boundingRect().translated(-origin);
    tiles.keepWithin(seen);
    QPainter painter(this);
    painter.translate(origin);
    const QRegion region = event->region().translated(-origin);
    tiles.paint(painter, region);
    tiles.paintBeside(painter, region);
    tiles.keepWithin(seen);  // an image of the widget has more
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
