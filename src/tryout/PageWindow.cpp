#include "tryout/PageWindow.h"

#include "page/PolyEditorWidget.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

PageWindow::PageWindow(Document& document, QWidget* owner)
    : QWidget(owner, Qt::Window), reader(new ReaderPage(document))
{
    setObjectName("tryWindow");
    setWindowTitle(tr("Page to be tapped"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(reader);
    auto* const away = new QAction(this);
    away->setShortcuts({QKeySequence("F11"), QKeySequence("Esc")});
    connect(away, &QAction::triggered, this, &QWidget::close);
    addAction(away);
}

void PageWindow::open()
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto other = std::find_if(screens.begin(), screens.end(), [this](QScreen* screen) {
        return screen != parentWidget()->screen();
    });
    if (other != screens.end()) {
        setGeometry((*other)->geometry());
        showFullScreen();
    } else {
        resize(screen()->availableSize() * 3 / 4);
        show();
    }
    activateWindow();
    reader->page()->setFocus();
}

void PageWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    emit closed();
}
