#pragma once

#include <QScrollArea>

class QLabel;

// Shows what is printed, a pixel of the printer on each pixel of the screen.
class DotPreview : public QScrollArea
{
    Q_OBJECT

public:
    explicit DotPreview(QWidget* parent = nullptr);

    // The null image when there is nothing to be shown.
    void showPrinted(const QImage& printed);

    QSize sizeHint() const override;

private:
    QLabel* shown;
};
