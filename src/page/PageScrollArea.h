#pragma once

#include <QPointF>
#include <QScrollArea>

class PolyEditorWidget;

// The window onto the page. At 100 % the page is as wide as there is room for, and follows that; it
// can be shown smaller, then it stands in the middle, and larger, then it can be scrolled in both
// directions. A spot of the page is told in widths of the page from its top left corner, a place in
// the window in pixels of the viewport.
class PageScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    static constexpr double kLeastZoom = 0.25;
    static constexpr double kMostZoom = 16;

    // Takes over the page.
    explicit PageScrollArea(PolyEditorWidget* shown, QWidget* parent = nullptr);

    PolyEditorWidget* page() const { return shownPage; }
    // 1 is 100 %.
    double zoom() const { return currentZoom; }
    QPointF spotAt(QPointF place) const;

    // So large, within the limits, and so that the spot lies at the place, as far as the page can
    // be scrolled there.
    void showSpot(double zoom, QPointF spot, QPointF place);
    // What lies at the place stays there, also in the next call for the same place.
    void zoomAround(double zoom, QPointF place);
    // Moves what is seen along with something that was dragged by so many pixels.
    void pan(QPoint by);

    QSize sizeHint() const override;

    // To the next usual size, around the middle.
    void zoomIn();
    void zoomOut();
    // To 100 %.
    void fit();

signals:
    void zoomChanged(double zoom);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    struct Anchor
    {
        QPointF place;
        QPointF spot;
        QPoint pagePlace;  // where the page was scrolled to for it
    };

    void setZoom(double zoom);
    void scrollTo(QPointF spot, QPointF place);
    void resizePage();
    int fittingWidth() const;
    QPointF middle() const;

    PolyEditorWidget* const shownPage;
    QSize room;  // of the window, when there are no scroll bars
    double currentZoom = 1;
    Anchor anchor;  // of the last zooming
};
