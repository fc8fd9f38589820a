#include "app/NoticeBar.h"

#include "qtsync/ToolTip.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QToolTip>

NoticeBar::NoticeBar(const QString& name, QWidget* parent)
    : QFrame(parent), line(new QHBoxLayout(this)), text(new QLabel)
{
    setObjectName(name);
    setFrameShape(QFrame::StyledPanel);
    setPalette(QToolTip::palette());  // stands out, and goes with the desktop's colours
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);

    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    QLabel* const icon = new QLabel;
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(iconSize));
    line->addWidget(icon);

    text->setObjectName(name + "Text");
    text->setForegroundRole(QPalette::ToolTipText);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    line->addWidget(text, 1);
    hide();
}

QPushButton* NoticeBar::addButton(const QString& name, const QString& buttonText,
                                  const QString& toolTip, const QKeySequence& keys)
{
    QPushButton* const button = new QPushButton(buttonText);
    button->setObjectName(name);
    button->setToolTip(withKey(toolTip, keys));
    button->setPalette(QPalette());
    line->addWidget(button);
    // A button's own shortcut presses it only after a while, when the next key has come already.
    const QShortcut* const shortcut = new QShortcut(keys, button);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    return button;
}

void NoticeBar::tell(const QString& message)
{
    text->setText(message);
    setAccessibleName(message);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::setVisible(bool visible)
{
    emit appears(visible);
    QFrame::setVisible(visible);
}
