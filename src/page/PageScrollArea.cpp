#include "page/PageScrollArea.h"

#include "page/PolyEditorWidget.h"

#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double kSizes[] = {0.25, 0.33, 0.5, 0.67, 0.8, 1, 1.25, 1.5, 2, 3, 4, 6, 8, 12, 16};
constexpr double kStepsToTheDouble = 4;  // of a wheel
constexpr double kWheelStep = QWheelEvent::DefaultDeltasPerStep;

// Steps of a wheel there and back lead to 100 % again, and not to 99.9999 %.
double withoutRoundingError(double zoom)
{
    constexpr double kError = 1e-6;
    const double* const size = std::find_if(std::begin(kSizes), std::end(kSizes), [&](double one) {
        return std::abs(zoom / one - 1) < kError;
    });
    return size != std::end(kSizes) ? *size : zoom;
}

}  // namespace

PageScrollArea::PageScrollArea(PolyEditorWidget* shown, QWidget* parent)
    : QScrollArea(parent), shownPage(shown)
{
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    shown->setMinimumSize(1, 1);
    setWidget(shown);
    // What is behind shows through; the scroll area has switched this on.
    viewport()->setAutoFillBackground(false);
    shown->setAutoFillBackground(false);
}

QSize PageScrollArea::sizeHint() const
{
    return minimumSizeHint();  // it takes what room there is
}

QPointF PageScrollArea::middle() const
{
    return QPointF(viewport()->width(), viewport()->height()) / 2;
}

QPointF PageScrollArea::spotAt(QPointF place) const
{
    return (place - shownPage->pos()) / std::max(1, shownPage->width());
}

void PageScrollArea::showSpot(double zoom, QPointF spot, QPointF place)
{
    setZoom(zoom);
    scrollTo(spot, place);
}

// Pages are scrolled by whole pixels, which are many more after zooming in: so the spot is kept.
void PageScrollArea::zoomAround(double zoom, QPointF place)
{
    if (place != anchor.place || shownPage->pos() != anchor.pagePlace) {
        anchor = {place, spotAt(place), {}};
    }
    showSpot(zoom, anchor.spot, place);
    anchor.pagePlace = shownPage->pos();
}

void PageScrollArea::setZoom(double zoom)
{
    const double now = withoutRoundingError(std::clamp(zoom, kLeastZoom, kMostZoom));
    if (now != currentZoom) {
        currentZoom = now;
        resizePage();
        emit zoomChanged(now);
    }
}

void PageScrollArea::scrollTo(QPointF spot, QPointF place)
{
    const QPoint corner = (spot * shownPage->width() - place).toPoint();
    horizontalScrollBar()->setValue(corner.x());
    verticalScrollBar()->setValue(corner.y());
}

void PageScrollArea::pan(QPoint by)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
}

void PageScrollArea::zoomIn()
{
    const double* const next = std::upper_bound(std::begin(kSizes), std::end(kSizes), currentZoom);
    zoomAround(next != std::end(kSizes) ? *next : kMostZoom, middle());
}

void PageScrollArea::zoomOut()
{
    const double* const same = std::lower_bound(std::begin(kSizes), std::end(kSizes), currentZoom);
    zoomAround(same != std::begin(kSizes) ? same[-1] : kLeastZoom, middle());
}

void PageScrollArea::fit()
{
    zoomAround(1, middle());
}

bool PageScrollArea::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        resizePage();  // another picture may have another shape
    }
    return QScrollArea::event(event);
}

// A scroll bar that comes or goes moves nothing.
void PageScrollArea::resizeEvent(QResizeEvent* event)
{
    const QPointF spot = spotAt(QPointF(room.width(), room.height()) / 2);
    const bool another = room != maximumViewportSize();
    room = maximumViewportSize();
    resizePage();
    QScrollArea::resizeEvent(event);
    if (another && currentZoom != 1) {
        scrollTo(spot, QPointF(room.width(), room.height()) / 2);
    }
}

// The largest width at which the page is not higher than the window, as far as leaving out a scroll
// bar makes room for that.
int PageScrollArea::fittingWidth() const
{
    const int least = room.width() - verticalScrollBar()->sizeHint().width();
    int width = room.width();
    while (width > least && shownPage->heightForWidth(width) > room.height()) {
        --width;
    }
    return width;
}

// At least as high as the window: areas may reach below the picture.
void PageScrollArea::resizePage()
{
    const int width = std::max(1, qRound(fittingWidth() * currentZoom));
    const int pageHeight = shownPage->heightForWidth(width);
    const bool higher = pageHeight > room.height();
    const int roomBeside = room.width() - (higher ? verticalScrollBar()->sizeHint().width() : 0);
    const bool wider = width > roomBeside;
    const int roomAbove = room.height() - (wider ? horizontalScrollBar()->sizeHint().height() : 0);
    shownPage->resize(width, std::max(pageHeight, roomAbove));
}

void PageScrollArea::wheelEvent(QWheelEvent* event)
{
    const QPoint delta = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        const double steps = delta.y() / kWheelStep;
        zoomAround(currentZoom * std::exp2(steps / kStepsToTheDouble), event->position());
        event->accept();
    } else if (event->modifiers().testFlag(Qt::ShiftModifier) && delta.x() == 0) {
        QWheelEvent sideways(event->position(), event->globalPosition(), {}, {delta.y(), 0},
                             event->buttons(), Qt::NoModifier, event->phase(), event->inverted());
        QScrollArea::wheelEvent(&sideways);
        event->accept();
    } else {
        QScrollArea::wheelEvent(event);
    }
}
