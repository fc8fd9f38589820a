#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

#include "editor/assist/ScriptHelp.h"

class QAction;
class QLabel;
class QSettings;
class QToolButton;

// In the status bar while the script is shown: line and column of the caret, whether typing inserts
// or overwrites, and a button with what of the help is on.
class CaretStatus : public QWidget
{
    Q_OBJECT

public:
    CaretStatus(KVQtHighlightEditCtrlInlay& script, ScriptHelp& help);

    // Takes over what the author has switched on and off, and keeps there what becomes of it. The
    // settings outlive this.
    void keepSettingsIn(QSettings& settings);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addSwitch(const char* name, const QString& text, std::function<void(bool)> set);
    void show();

    QTimer soon;  // no key waits for what is shown here
    KVQtHighlightEditCtrlInlay& script;
    QLabel* place;
    QLabel* mode;
    QToolButton* button;
};
