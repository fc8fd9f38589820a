#include "page/PolyEditorWidget.h"

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"
#include "page/PageAccessible.h"
#include "page/PageTool.h"

#include <QBackingStore>
#include <QContextMenuEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

// ms; who zooms on sooner has no use for a sharp page in between.
constexpr int kRest = 20;

PolyEditorWidget::PolyEditorWidget(QWidget* parent) : QWidget(parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    PageAccessible::install();
    setAccessibleDescription(
        tr("Ctrl+Down and Ctrl+Up go through the areas, Ctrl+Right and Ctrl+Left through the "
           "corners of the selected one; the arrow keys move them."));
    clearImage();
}

void PolyEditorWidget::setDocument(Document* shown)
{
    document = shown;
    areasAreKnown = false;
    connect(document, &Document::changed, this, &PolyEditorWidget::showChange);
}

void PolyEditorWidget::setTool(PageTool* chosen)
{
    if (tool != nullptr && tool != chosen) {
        tool->stop();
    }
    tool = chosen;
    showTool();
}

void PolyEditorWidget::showAreas(bool show)
{
    areasAreShown = show;
    update();
}

void PolyEditorWidget::showTool()
{
    const Qt::CursorShape shape = tool->cursor();
    if (shape != Qt::BitmapCursor && shape != cursor().shape()) {
        setCursor(shape);
    }
    updateSoon(takeChangedMarks(seen()));
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

std::vector<int> PolyEditorWidget::areasAt(const Oid::PNT& point) const
{
    std::vector<int> indices;
    for (std::size_t i = 0; picture() != nullptr && i < picture()->polys.size(); ++i) {
        if (picture()->polys[i].isPntInPoly(point)) {
            indices.push_back(static_cast<int>(i));
        }
    }
    return indices;
}

QString PolyEditorWidget::areaName(int index) const
{
    return QString::fromStdString(picture()->polys[static_cast<std::size_t>(index)].name);
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
    return {std::max(1, width()), {0, 0}, std::max(1, image.width())};
}

QRect PolyEditorWidget::seen() const
{
    return visibleRegion().boundingRect();
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
        isPlaceholder = false;
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
    isPlaceholder = true;
}

// A click between pixels is at the nearest one.
static QPoint pixelOf(const QMouseEvent& event)
{
    return {qRound(event.localPos().x()), qRound(event.localPos().y())};
}

static PageMouse mouseOn(const PageView& view, const QMouseEvent& event)
{
    return {view.toPercent(pixelOf(event)),
            view,
            event.button(),
            event.buttons(),
            event.modifiers(),
            pixelOf(event)};
}

bool PolyEditorWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        showTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    // What Delete removes depends on where the mouse is: that is for the tool.
    if (event->type() == QEvent::ShortcutOverride &&
        (isDragging() || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void PolyEditorWidget::showTip(const QHelpEvent& event)
{
    const std::vector<int> here = areasAt(toProz(event.pos()));
    if (here.size() < 2) {
        QToolTip::hideText();
        return;
    }
    QStringList behind;
    for (std::size_t i = 1; i < here.size(); ++i) {
        behind << areaName(here[i]);
    }
    const QString tip = tr("Here speaks %1; behind it lies %2.");
    QToolTip::showText(event.globalPos(),
                       tip.arg(areaName(here.front()), behind.join(", ")).toHtmlEscaped(), this);
}

bool PolyEditorWidget::isDragging() const
{
    return tool != nullptr && tool->isDragging();
}

void PolyEditorWidget::mousePressEvent(QMouseEvent* event)
{
    if (tool == nullptr) {
        return;
    }
    if (isDragging() && event->button() != Qt::LeftButton) {
        rightClickIsTaken = true;
        return;
    }
    const PageMouse mouse = mouseOn(view(), *event);
    pressedTool = tool;
    if (event->button() == Qt::RightButton) {
        rightClickIsTaken = tool->rightClick(mouse);
    }
    if (event->button() != Qt::RightButton || !rightClickIsTaken) {
        tool->press(mouse);
    }
    showTool();
}

// Where the first of the two clicks has brought another tool, the second one is nobody's.
void PolyEditorWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    const bool isNobodys = pressedTool != nullptr && tool != pressedTool;
    if (event->button() == Qt::LeftButton && tool != nullptr &&
        (isNobodys || tool->doubleClick(mouseOn(view(), *event)))) {
        releaseIsTaken = true;
        showTool();
        return;
    }
    mousePressEvent(event);
}

void PolyEditorWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (tool != nullptr) {
        tool->move(mouseOn(view(), *event));
        showTool();
    }
}

void PolyEditorWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (tool != nullptr && tool->release(mouseOn(view(), *event))) {
        releaseIsTaken = true;
    }
    if (event->button() == Qt::LeftButton) {
        emit clickedLB(toProz(pixelOf(*event)));
        releaseIsTaken = false;
    }
    if (tool != nullptr) {
        showTool();
    }
}

void PolyEditorWidget::contextMenuEvent(QContextMenuEvent* event)
{
    if (isDragging()) {
        return;
    }
    if (event->reason() == QContextMenuEvent::Keyboard) {
        emit menuWanted(mapToGlobal(seen().center()), std::nullopt);
    } else if (!rightClickIsTaken) {
        emit menuWanted(event->globalPos(), toProz(event->pos()));
    }
}

void PolyEditorWidget::leaveEvent(QEvent* event)
{
    if (tool != nullptr) {
        tool->leave();
        showTool();
    }
    QWidget::leaveEvent(event);
}

void PolyEditorWidget::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    tellWhereMouseIs();
}

void PolyEditorWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    tellWhereMouseIs();
}

// A page that is scrolled or zoomed under a mouse that rests sends no move of the mouse.
void PolyEditorWidget::tellWhereMouseIs()
{
    if (tool != nullptr) {
        const QPoint pixel = mapFromGlobal(QCursor::pos());
        tool->pageMoved({view().toPercent(pixel), view(), Qt::NoButton,
                         QGuiApplication::mouseButtons(), QGuiApplication::keyboardModifiers(),
                         pixel});
        showTool();
    }
}

// A button that is released while another window is in front may not be heard of.
void PolyEditorWidget::focusOutEvent(QFocusEvent* event)
{
    if (isDragging() && event->reason() == Qt::ActiveWindowFocusReason) {
        tool->stop();
        releaseIsTaken = true;
        showTool();
    }
    QWidget::focusOutEvent(event);
}

void PolyEditorWidget::wheelEvent(QWheelEvent* event)
{
    event->ignore();
    if (tool == nullptr || event->modifiers() != Qt::NoModifier) {
        return;
    }
    wheelRest += event->angleDelta().y();
    const int steps = wheelRest / QWheelEvent::DefaultDeltasPerStep;
    if (tool->wheel(steps)) {
        wheelRest -= steps * QWheelEvent::DefaultDeltasPerStep;
        event->accept();
        showTool();
    } else {
        wheelRest = 0;
    }
}

void PolyEditorWidget::keyPressEvent(QKeyEvent* event)
{
    if (isDragging() && event->key() != Qt::Key_Escape) {
        return;
    }
    const bool isTools = tool != nullptr && ((event->key() == Qt::Key_Escape && tool->giveUp()) ||
                                             tool->key(*event, view()));
    if (!isTools) {
        QWidget::keyPressEvent(event);
    } else if (const auto place = tool->place()) {
        emit cameTo(toPix(*place));
    }
    if (tool != nullptr) {
        showTool();
    }
}

void PolyEditorWidget::showChange(const Change& change)
{
    PageAccessible::announce(*this, change);
    if (change.has(Change::pictureFile)) {
        loadedPath.clear();
    }
    const bool otherPage = picture() == nullptr || tiles.isEmpty() ||
                           document->project().pathImageSource(currentPicture()) != loadedPath;
    if (otherPage) {
        areasAreKnown = false;
        updateSoon(rect());
    } else {
        updateSoon(takeChangedAreas() + takeChangedMarks(seen()));
    }
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
    if (!areasAreShown) {
        return {};
    }
    const PageView page = view();
    std::vector<int> selected;
    for (const AreaId area : document->selectedAreas()) {
        selected.push_back(document->placeOf(area).index);
    }
    AreaOutlines areas(picture()->polys, selected, {page.width, {0, 0}});
    areasAreKnown = true;
    return tiles.showAreas(std::move(areas), seen().translated(-page.origin))
        .translated(page.origin);
}

QRegion PolyEditorWidget::takeChangedMarks(QRect seen)
{
    PageMarks now;
    if (tool != nullptr && picture() != nullptr) {
        now = tool->marks(view(), seen);
    }
    QRegion changed = marks.differenceTo(now, seen);
    marks = std::move(now);
    return changed;
}

QRegion PolyEditorWidget::takeChanges()
{
    const int pageWidth = view().width;
    const QSize page(pageWidth, heightForWidth(pageWidth));
    const bool otherPage = tiles.showPicture(image, page, devicePixelRatioF(), seen().width());
    if (otherPage) {
        sharpening.stop();
    }
    const QRegion changed = otherPage || !areasAreKnown ? takeChangedAreas() : QRegion();
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
        marks = {};
        areasAreKnown = false;
        return;
    }
    const QRect painted = seen() | event->rect();  // an image of the widget has more
    updateSoon(takeChanges() + takeChangedMarks(painted) - event->region());
    const QPoint origin = view().origin;
    const QRect kept = seen().translated(-origin);
    tiles.keepWithin(kept);
    QPainter painter(this);
    painter.translate(origin);
    const QRegion region = event->region().translated(-origin);
    const auto look = isPaintedOnScreen() ? PageTiles::Look::quick : PageTiles::Look::final;
    if (tiles.paint(painter, region, look) && !sharpening.isActive()) {
        sharpening.start(kRest, this);
    }
    tiles.paintBeside(painter, region);
    painter.translate(-origin);
    marks.draw(painter, event->region());
    tiles.keepWithin(kept);
}

// Images of the widget, also those for a printer, are made by the same event.
bool PolyEditorWidget::isPaintedOnScreen() const
{
    QPoint offset;
    QBackingStore* const screen = window()->backingStore();
    return screen != nullptr && redirected(&offset) == screen->paintDevice();
}

// Step by step, so that mouse and keys are not kept waiting.
void PolyEditorWidget::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != sharpening.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    updateSoon(tiles.sharpen().translated(view().origin));
    if (tiles.isSharp()) {
        sharpening.stop();
    } else {
        sharpening.start(0, this);
    }
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
