#pragma once

#include "tryout/ReaderPage.h"

#include <QWidget>

// The reader's page in a window of its own, for a second screen: as large as that, where there is
// one. F11 or Escape closes it.
class PageWindow : public QWidget
{
    Q_OBJECT

public:
    // The document outlives the window, which lies on another screen than its owner if there is
    // one.
    PageWindow(Document& document, QWidget* owner);

    ReaderPage* page() const { return reader; }
    void open();

signals:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    ReaderPage* reader;
};
