#include "pdf/PageDrawing.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

#include "pdf/TextOutline.h"

namespace {

// Of Helvetica, in thousandths of its size, from the blank to the tilde.
constexpr std::array<int, 95> kWidths = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int kOtherWidth = 640;  // between small and capital letters with accents

// That of the page's fonts.
const QTextCodec& encoding()
{
    static const QTextCodec* const codec = QTextCodec::codecForName("Windows-1252");
    return *codec;
}

bool canBeEncoded(const std::string& utf8)
{
    return encoding().canEncode(QString::fromStdString(utf8));
}

QByteArray encoded(const std::string& utf8)
{
    return encoding().fromUnicode(QString::fromStdString(utf8));
}

std::string literal(const QByteArray& text)
{
    std::string written = "(";
    for (const char letter : text) {
        if (letter == '(' || letter == ')' || letter == '\\') {
            written += '\\';
        }
        written += letter;
    }
    return written + ")";
}

}  // namespace

PageDrawing::PageDrawing(double width, double height) : pageWidth(width), pageHeight(height) {}

void PageDrawing::write(std::initializer_list<double> numbers, const char* operation)
{
    for (const double number : numbers) {
        content += pdfNumber(number) + " ";
    }
    content += operation;
    content += '\n';
}

void PageDrawing::save()
{
    write({}, "q");
}

void PageDrawing::restore()
{
    write({}, "Q");
}

void PageDrawing::clip(const QRectF& area)
{
    write({x(area.left()), y(area.bottom()), x(area.right()) - x(area.left()),
           y(area.top()) - y(area.bottom())},
          "re W n");
}

void PageDrawing::clip(const std::vector<std::vector<QPointF>>& rings)
{
    for (const std::vector<QPointF>& points : rings) {
        ring(points);
    }
    write({}, "W n");
}

void PageDrawing::fillWith(const Ink& ink)
{
    write({ink.cyan, ink.magenta, ink.yellow, ink.black}, "k");
}

void PageDrawing::strokeWith(const Ink& ink, double lineWidth)
{
    write({ink.cyan, ink.magenta, ink.yellow, ink.black}, "K");
    write({x(lineWidth)}, "w");
}

void PageDrawing::fill(const QRectF& area)
{
    write({x(area.left()), y(area.bottom()), x(area.width()), x(area.height())}, "re f");
}

void PageDrawing::stroke(const QRectF& area)
{
    write({x(area.left()), y(area.bottom()), x(area.width()), x(area.height())}, "re S");
}

void PageDrawing::line(const QPointF& from, const QPointF& to)
{
    write({x(from.x()), y(from.y())}, "m");
    write({x(to.x()), y(to.y())}, "l S");
}

void PageDrawing::fillRing(const std::vector<QPointF>& points)
{
    ring(points);
    write({}, "f");
}

void PageDrawing::strokeRing(const std::vector<QPointF>& points)
{
    ring(points);
    write({}, "S");
}

void PageDrawing::ring(const std::vector<QPointF>& points)
{
    const char* operation = "m";
    for (const QPointF& point : points) {
        write({x(point.x()), y(point.y())}, operation);
        operation = "l";
    }
    if (!points.empty()) {
        write({}, "h");
    }
}

void PageDrawing::image(int number, const QRectF& area, QImageIOHandler::Transformations toUpright)
{
    // Where a corner of the stored image comes to lie, of the unit square with y upwards.
    const auto placed = [&](double u, double v) {
        if ((toUpright & QImageIOHandler::TransformationMirror) != 0) {
            u = 1 - u;
        }
        if ((toUpright & QImageIOHandler::TransformationFlip) != 0) {
            v = 1 - v;
        }
        if ((toUpright & QImageIOHandler::TransformationRotate90) != 0) {
            std::swap(u, v);
            v = 1 - v;
        }
        return QPointF(x(area.left()) + u * x(area.width()),
                       y(area.bottom()) + v * x(area.height()));
    };
    const QPointF origin = placed(0, 0);
    const QPointF right = placed(1, 0) - origin;
    const QPointF up = placed(0, 1) - origin;
    save();
    write({right.x(), right.y(), up.x(), up.y(), origin.x(), origin.y()}, "cm");
    content += "/Im" + std::to_string(number) + " Do\n";
    restore();
    if (std::find(images.begin(), images.end(), number) == images.end()) {
        images.push_back(number);
    }
}

// The mask is a fiftieth of a pixel smaller on each side. So programs that round its edges
// outwards, and count in numbers of few digits, take the very pixels and not one more, which they
// would stretch the mask over.
void PageDrawing::mask(int number, const QPoint& place, const QSize& pixels, int dpi)
{
    const double pixel = 25.4 / dpi;
    const double inset = pixel / 50;
    const QRectF area(QPointF(place) * pixel, QSizeF(pixels) * pixel);
    image(number, area.adjusted(inset, inset, -inset, -inset));
}

void PageDrawing::text(const QPointF& start, const std::string& utf8, double height, Weight weight)
{
    if (!canBeEncoded(utf8)) {
        shapes(start, TextOutline(utf8, weight == Weight::bold).path(), height);
        return;
    }
    content += weight == Weight::bold ? "BT /F2 " : "BT /F1 ";
    write({x(height)}, "Tf");
    write({x(start.x()), y(start.y())}, "Td");
    content += literal(encoded(utf8)) + " Tj ET\n";
}

void PageDrawing::shapes(const QPointF& start, const QPainterPath& path, double height)
{
    const auto point = [&](int i) {
        const QPainterPath::Element element = path.elementAt(i);
        return QPointF(x(start.x() + element.x * height), y(start.y() + element.y * height));
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF to = point(i);
        if (path.elementAt(i).isCurveTo()) {  // with two more points behind it
            const QPointF control = point(i + 1);
            const QPointF end = point(i + 2);
            write({to.x(), to.y(), control.x(), control.y(), end.x(), end.y()}, "c");
            i += 2;
        } else {
            write({to.x(), to.y()}, path.elementAt(i).isMoveTo() ? "m" : "l");
        }
    }
    write({}, "f");
}

void PageDrawing::centred(const QPointF& middle, const std::string& utf8, double height,
                          double width, Weight weight)
{
    const double wanted = widthOf(utf8, height, weight);
    const double factor = std::min(1.0, width / std::max(wanted, 1e-9));
    text({middle.x() - wanted * factor / 2, middle.y()}, utf8, height * factor, weight);
}

double PageDrawing::widthOf(const std::string& utf8, double height, Weight weight)
{
    constexpr double kBoldIsWider = 1.1;
    if (!canBeEncoded(utf8)) {
        return TextOutline(utf8, weight == Weight::bold).width() * height;
    }
    int thousandths = 0;
    for (const char letter : encoded(utf8)) {
        const bool known = letter >= ' ' && letter <= '~';
        thousandths += known ? kWidths[static_cast<std::size_t>(letter - ' ')] : kOtherWidth;
    }
    return thousandths * height / 1000 * (weight == Weight::bold ? kBoldIsWider : 1);
}

PdfPage PageDrawing::page() const
{
    PdfPage page;
    page.width = pageWidth;
    page.height = pageHeight;
    page.content = content;
    page.images = images;
    return page;
}
