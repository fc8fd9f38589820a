#include "app/SettingsBar.h"

#include <QDir>
#include <QEvent>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

SettingsBar::SettingsBar(QWidget* parent) : NoticeBar("settingsBar", parent)
{
    const QPushButton* const close = addButton(
        "btCloseSettingsBar", tr("Close"), tr("Hides this line"), Qt::ALT | Qt::SHIFT | Qt::Key_C);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
}

void SettingsBar::watch(QSettings& settings)
{
    settings.installEventFilter(this);
}

// The settings are written while they handle this event, and tell nobody what came of it.
bool SettingsBar::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const settings = qobject_cast<QSettings*>(watched);
    if (settings != nullptr && event->type() == QEvent::UpdateRequest) {
        QTimer::singleShot(0, this, [this, settings] { look(*settings); });
    }
    return NoticeBar::eventFilter(watched, event);
}

void SettingsBar::look(const QSettings& settings)
{
    if (wasTold || settings.status() != QSettings::AccessError) {
        return;
    }
    wasTold = true;
    tell(
        tr("How you like the window cannot be kept for the next start, since %1 cannot be written: "
           "the disk is full, or the folder is protected.")
            .arg(QDir::toNativeSeparators(settings.fileName())));
}
