#pragma once

#include "document/Document.h"
#include "page/PageMarks.h"
#include "page/PageTiles.h"
#include "page/PageView.h"

#include <QBasicTimer>
#include <QImage>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class PageTool;
class QHelpEvent;

// Shows the document's current page at the widget's full width, with its areas, hands mouse and
// keys to the tool that the author has chosen, and says where it was clicked. Points are in percent
// of the width, for x and for y, so that they do not depend on the size of the window.
class PolyEditorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PolyEditorWidget(QWidget* parent = nullptr);

    // Not owned, outlives the widget.
    void setDocument(Document* shown);
    Document* shownDocument() const { return document; }
    // Not owned, stays until another one is set. Its cursor is the widget's, its marks lie over the
    // page.
    void setTool(PageTool* chosen);
    // Whether the areas are seen on the page, as in the beginning, or only what the tool shows.
    void showAreas(bool show);
    // Shows cursor and marks of the tool as they are now. Needed only after something else than an
    // event of the widget or a change of the document.
    void showTool();
    // While clickedLB is told: whether this release is a click for the tool. It is not when it ends
    // a drag, or a double click that the tool took.
    bool isClick() const { return !releaseIsTaken; }

    // Index of the current picture and of the highlighted area, as the document has them.
    int currentPicture() const;
    int selectedPoly() const;
    // The current picture; null without a document and for an index that it does not have.
    const Oid::PICTURE* picture() const;

    // The areas of the current picture that hold the point, in their order: the first one speaks.
    std::vector<int> areasAt(const Oid::PNT& point) const;
    QString areaName(int index) const;

    // So high is the whole picture when it is this wide; 0 without a picture.
    int heightForWidth(int width) const override;

    // Where the page lies in the widget.
    PageView view() const;
    // What of the widget is on the screen.
    QRect seen() const;
    Oid::PNT toProz(QPoint pixel) const;
    QPoint toPix(const Oid::PNT& point) const;

    // Shows the picture file, or a placeholder when it cannot be read.
    void loadImage(const QString& path);
    void clearImage();
    // The decoded picture; null while the placeholder is shown.
    QImage loadedImage() const { return isPlaceholder ? QImage() : image; }

    // Paints what has changed in the document at once, not only when nothing else is to be done.
    void paintChanges();
    // Whether the picture is on the screen as it is in the end. After zooming a large one is shown
    // roughly, and sharpened when mouse and keys rest.
    bool isSharp() const { return tiles.isSharp(); }

    std::string loadedPath;  // where the image came from; emptied to have it loaded again

signals:
    // The left button was released here.
    void clickedLB(Oid::PNT point);
    // A key has led there, so it should be seen.
    void cameTo(QPoint pixel);
    // The menu of what lies here is asked for: by the mouse at the pixel, by a key without one.
    void menuWanted(QPoint globalPos, std::optional<Oid::PNT> point);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool isDragging() const;
    void tellWhereMouseIs();
    void showTip(const QHelpEvent& event);
    void readImage(const QString& path);
    void readCurrentImage();
    void askForHeight();
    bool isPaintedOnScreen() const;

    void showChange(const Change& change);
    void updateSoon(const QRegion& region);
    // What looks different since the last call, in the widget's pixels.
    QRegion takeChanges();
    QRegion takeChangedAreas();
    QRegion takeChangedMarks(QRect seen);

    Document* document = nullptr;
    PageTool* tool = nullptr;
    bool areasAreShown = true;
    QImage image;
    bool isPlaceholder = true;
    PageTiles tiles;
    bool areasAreKnown = false;             // to the tiles, as they are in the document
    QBasicTimer sharpening;                 // while what is on the screen is not sharp yet
    PageMarks marks;                        // as they are shown
    const PageTool* pressedTool = nullptr;  // that got the last press; only to be compared
    int wheelRest = 0;                      // of a step that the wheel has begun
    bool releaseIsTaken = false;
    bool rightClickIsTaken = false;
    QRegion unpainted;    // has changed since it was painted
    int askedHeight = 0;  // what the layout knows of the picture
};
