#pragma once

#include "document/Document.h"

#include <QImage>
#include <QPixmap>
#include <QPolygon>
#include <QWidget>

#include <vector>

// Shows the document's current page at the widget's full width, with its areas, and says where it
// was clicked. Points are in percent of the width, for x and for y, so that they do not depend on
// the size of the window.
class PolyEditorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PolyEditorWidget(QWidget* parent = nullptr);

    // Not owned, outlives the widget.
    void setDocument(Document* shown);

    // Index of the current picture and of the highlighted area, as the document has them.
    int currentPicture() const;
    int selectedPoly() const;
    // The current picture; null without a document and for an index that it does not have.
    const Oid::PICTURE* picture() const;

    // So high is the whole picture when it is this wide; 0 without a picture.
    int heightForWidth(int width) const override;

    Oid::PNT toProz(QPoint pixel) const;
    QPoint toPix(const Oid::PNT& point) const;

    // Shows the picture file, or a placeholder when it cannot be read.
    void loadImage(const QString& path);
    void clearImage();

    std::string loadedPath;  // where the image came from; emptied to have it loaded again

signals:
    // The left button was released here.
    void clickedLB(Oid::PNT point);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setImage(QImage loaded);
    void readImage(const QString& path);
    void readCurrentImage();
    void askForHeight();
    // What the areas look like, in the widget's pixels.
    struct DrawnAreas
    {
        std::vector<QPolygon> corners;
        int selected = -1;
    };

    void drawPage(QPainter& painter);
    DrawnAreas areasToDraw() const;
    static void draw(QPainter& painter, const DrawnAreas& areas);
    void drawBelow(QPainter& painter, DrawnAreas areas, int pageHeight) const;

    void showChange(const Change& change);

    Document* document = nullptr;
    QImage image;
    // Scaling costs much more than painting, and so do many areas: both are kept for the next
    // paint.
    QPixmap scaledImage;
    QPixmap page;  // the scaled image with the areas on it
    DrawnAreas areasOnPage;
    int askedHeight = 0;  // what the layout knows of the picture
};
