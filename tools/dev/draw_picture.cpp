// draw_picture DRAWING.svg WIDTH PICTURE.jpg: makes the picture of a page, WIDTH pixels wide, of a
// drawing. The same drawing gives the same bytes.

#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <cstdio>

namespace {

constexpr int kQuality = 85;  // of 100: nobody sees that flat colours lose anything

int fail(const QString& cause)
{
    fprintf(stderr, "draw_picture: %s\n", qPrintable(cause));
    return 1;
}

int drawPicture(const QString& drawing, int width, const QString& picture)
{
    QImageReader reader(drawing, "svg");
    const QSize size = reader.size();
    if (size.isEmpty() || width <= 0) {
        return fail(drawing + ": " + reader.errorString());
    }
    reader.setScaledSize({width, qRound(double(width) * size.height() / size.width())});
    const QImage drawn = reader.read();
    if (drawn.isNull()) {
        return fail(drawing + ": " + reader.errorString());
    }
    QImage page(drawn.size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter(&page).drawImage(0, 0, drawn);
    QImageWriter writer(picture, "jpg");
    writer.setQuality(kQuality);
    return writer.write(page) ? 0 : fail(picture + ": " + writer.errorString());
}

}  // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) {
        return fail("usage: draw_picture DRAWING.svg WIDTH PICTURE.jpg");
    }
    return drawPicture(words[1], words[2].toInt(), words[3]);
}
