#include "tryout/ReaderPage.h"

#include "page/FocusFrame.h"
#include "page/PagePanning.h"
#include "page/PageTouch.h"
#include "page/PolyEditorWidget.h"

#include <QCursor>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace {

// A thick pen with its point at the upper left, where it touches the page.
QCursor penCursor()
{
    constexpr int kSide = 32;
    QPixmap picture(kSide, kSide);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(QColor(225, 110, 0));
    painter.drawPolygon(QPolygon({{6, 12}, {12, 6}, {30, 24}, {30, 30}, {24, 30}}));
    painter.setBrush(QColor(40, 40, 40));
    painter.drawPolygon(QPolygon({{1, 1}, {12, 6}, {6, 12}}));
    painter.end();
    return QCursor(picture, 1, 1);
}

}  // namespace

ReaderPage::ReaderPage(Document& document, QWidget* parent)
    : PageScrollArea(new PolyEditorWidget, parent), tool(document)
{
    setFocusPolicy(Qt::NoFocus);  // the page has it, and lets it scroll
    (new FocusFrame(page(), viewport()))->setObjectName("tryFocusFrame");
    new PagePanning(this);
    new PageTouch(this);
    page()->showAreas(false);
    page()->setDocument(&document);
    page()->setCursor(penCursor());
    page()->setTool(&tool);
    page()->setAccessibleName(tr("Page to be tapped"));
    page()->setAccessibleDescription(tr(
        "The arrow keys go from area to area, Enter taps, Page Up and Page Down turn the pages."));
    tool.tapped = [this](const std::string& area) { emit tapped(QString::fromStdString(area)); };
    tool.turned = [this](int way) { emit turned(way); };
    connect(page(), &PolyEditorWidget::clickedLB, this, [this](Oid::PNT at) {
        if (page()->isClick()) {
            tool.click(at);
        }
    });
    connect(page(), &PolyEditorWidget::cameTo, this,
            [this](QPoint pixel) { ensureVisible(pixel.x(), pixel.y()); });
    light.setSingleShot(true);
    light.setInterval(400);
    connect(&light, &QTimer::timeout, this, [this] {
        tool.light({});
        page()->showTool();
    });
    fitting.setSingleShot(true);
    connect(&fitting, &QTimer::timeout, this, &ReaderPage::showWhole);
    page()->installEventFilter(this);
}

// The tool goes before the page.
ReaderPage::~ReaderPage()
{
    delete takeWidget();
}

void ReaderPage::flash(const std::string& area)
{
    tool.light(area);
    page()->showTool();
    light.start();
}

// How high a page is comes out when it is shown.
bool ReaderPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == page() && event->type() == QEvent::Resize) {
        fitting.start(0);
    }
    return PageScrollArea::eventFilter(watched, event);
}

void ReaderPage::resizeEvent(QResizeEvent* event)
{
    PageScrollArea::resizeEvent(event);
    fitting.start(0);
}

void ReaderPage::showWhole()
{
    const QSize most = maximumViewportSize();
    const int height = page()->heightForWidth(most.width());
    const bool isChosen = std::abs(zoom() - fittingZoom) > 0.001;  // by the author
    if (height <= 0 || isChosen) {
        return;
    }
    const double whole = std::clamp(static_cast<double>(most.height()) / height, kLeastZoom, 1.0);
    if (std::abs(whole - zoom()) > 0.001) {
        showSpot(whole, {0.5, 0}, {most.width() / 2.0, 0});
    }
    fittingZoom = zoom();
}

// A large picture takes much memory; it is read again when it is to be seen.
void ReaderPage::hideEvent(QHideEvent* event)
{
    page()->clearImage();
    page()->loadedPath.clear();
    PageScrollArea::hideEvent(event);
}
