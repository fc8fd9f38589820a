#pragma once

#include "page/PageScrollArea.h"
#include "tryout/TapTool.h"

#include <QTimer>

#include <string>

// The current page as the reader has it before him: all of it, without its areas, and the pointer
// is a pen. The author may zoom it; then it stays as large as that.
class ReaderPage : public PageScrollArea
{
    Q_OBJECT

public:
    // The document outlives the page.
    explicit ReaderPage(Document& document, QWidget* parent = nullptr);
    ~ReaderPage() override;

    // The outline of the area flashes.
    void flash(const std::string& area);

signals:
    // Empty where no area was tapped.
    void tapped(const QString& area);
    // A key asks for the page before (-1) or behind (1) this one.
    void turned(int way);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showWhole();

    TapTool tool;
    QTimer light;  // is on
    QTimer fitting;
    double fittingZoom = 1;  // with which it was shown whole
};
