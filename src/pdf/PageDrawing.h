#pragma once

#include <QImageIOHandler>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <string>
#include <vector>

#include "pdf/PdfWriter.h"

// Ink, from 0 to 1 each.
struct Ink
{
    double cyan = 0;
    double magenta = 0;
    double yellow = 0;
    double black = 0;
};

constexpr Ink kBlackInk{0, 0, 0, 1};
// Black to the eye and paper to the pen.
constexpr Ink kMixedBlack{1, 1, 1, 0};

// Draws on a page of a PDF. Lengths are mm from the upper left corner, heights of letters, too.
class PageDrawing
{
public:
    PageDrawing(double width, double height);

    // What is set or clipped between the two is as before afterwards.
    void save();
    void restore();
    void clip(const QRectF& area);
    // To what lies in any of the rings.
    void clip(const std::vector<std::vector<QPointF>>& rings);

    void fillWith(const Ink& ink);
    void strokeWith(const Ink& ink, double lineWidth);
    void fill(const QRectF& area);
    void stroke(const QRectF& area);
    void line(const QPointF& from, const QPointF& to);
    void fillRing(const std::vector<QPointF>& points);
    void strokeRing(const std::vector<QPointF>& points);

    // An image of the file, stretched over the area when it has been made upright.
    void image(int number, const QRectF& area,
               QImageIOHandler::Transformations toUpright = QImageIOHandler::TransformationNone);

    // A mask of so many pixels of the printer, from a pixel of its grid on.
    void mask(int number, const QPoint& place, const QSize& pixels, int dpi);

    enum class Weight { normal, bold };
    // The line stands on the point. One with letters that Western Europe does not write is drawn
    // as shapes (TextOutline), as viewers have no fonts for them.
    void text(const QPointF& start, const std::string& utf8, double height,
              Weight weight = Weight::normal);
    // The same with its middle on the point, and smaller when it is wider than the width.
    void centred(const QPointF& middle, const std::string& utf8, double height, double width,
                 Weight weight = Weight::normal);
    static double widthOf(const std::string& utf8, double height, Weight weight = Weight::normal);

    // What was drawn, on a page of the size.
    PdfPage page() const;

private:
    void shapes(const QPointF& start, const QPainterPath& path, double height);
    void ring(const std::vector<QPointF>& points);
    void write(std::initializer_list<double> numbers, const char* operation);
    double x(double fromLeft) const { return fromLeft * kPointsPerMillimetre; }
    double y(double fromTop) const { return (pageHeight - fromTop) * kPointsPerMillimetre; }

    double pageWidth;
    double pageHeight;
    std::string content;
    std::vector<int> images;
};
