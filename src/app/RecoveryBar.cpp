#include "app/RecoveryBar.h"

#include "base/FileSystem.h"

#include <QDir>
#include <QLocale>
#include <QPushButton>

static QString localTime(const QDateTime& time)
{
    return QLocale().toString(time.toLocalTime(), QLocale::ShortFormat);
}

RecoveryBar::RecoveryBar(QWidget* parent) : NoticeBar("recoveryBar", parent)
{
    restore = addButton("btRestore", tr("Restore"),
                        tr("Brings the unsaved work into the window; the file stays as it is"),
                        Qt::ALT | Qt::Key_R);
    const QPushButton* const forget =
        addButton("btForget", tr("Forget"), tr("Throws the unsaved work away"),
                  Qt::ALT | Qt::SHIFT | Qt::Key_F);
    connect(restore, &QPushButton::clicked, this, &RecoveryBar::restoreAsked);
    connect(forget, &QPushButton::clicked, this, &RecoveryBar::forgetAsked);
}

void RecoveryBar::offer(const FoundCopy& copy)
{
    restore->setVisible(copy.head.has_value());
    tell(textFor(copy));
}

QString RecoveryBar::textFor(const FoundCopy& copy)
{
    if (!copy.head) {
        return tr("The copy of the unsaved work of %1 is damaged and cannot be restored. It stays "
                  "here: %2")
            .arg(localTime(copy.changed), QDir::toNativeSeparators(copy.path));
    }
    const QString since = localTime(copy.head->since);
    if (copy.head->projectPath.empty()) {
        return tr("There is work since %1 that was never saved.").arg(since);
    }
    if (!FileSystem::doesFileExist(copy.head->projectPath)) {
        const QString path = QString::fromStdString(copy.head->projectPath);
        return tr("There is unsaved work since %1 on a project that is not there any more: %2")
            .arg(since, QDir::toNativeSeparators(path));
    }
    return tr("There is unsaved work on this project since %1.").arg(since);
}
