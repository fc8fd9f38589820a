#include "editor/widget/SearchNote.h"

#include <QAccessible>
#include <QApplication>
#include <QToolTip>

void alertScreenReaders(QLabel& label)
{
    QAccessibleEvent alert(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

SearchNote::SearchNote(QWidget* parent) : QLabel(parent)
{
    setObjectName("searchNote");
    setFont(QApplication::font());  // not the parent's, which is that of a text
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    setFrameShape(QFrame::Box);
    setMargin(4);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();

    constexpr int kReadingTime = 4000;  // ms
    end.setSingleShot(true);
    end.setInterval(kReadingTime);
    connect(&end, &QTimer::timeout, this, [this] { say(QString()); });
}

void SearchNote::say(const QString& message)
{
    const bool silent = message.isEmpty();
    if (silent && !isVisibleTo(parentWidget())) {
        return;
    }
    setText(message);
    adjustSize();
    constexpr int kMargin = 8;  // pixels
    move(parentWidget()->rect().bottomRight() - rect().bottomRight() - QPoint(kMargin, kMargin));
    setVisible(!silent);
    parentWidget()->setAccessibleDescription(message);
    if (silent) {
        end.stop();
    } else {
        end.start();
        alertScreenReaders(*this);
    }
}
