#include "qtsync/ToolTip.h"

#include <QAction>

QString withKey(const QString& toolTip, const QKeySequence& key)
{
    return toolTip + " (" + key.toString(QKeySequence::NativeText) + ")";
}

void tellKeyOf(QAction& action)
{
    if (!action.shortcut().isEmpty()) {
        action.setToolTip(withKey(action.toolTip(), action.shortcut()));
    }
}
