#pragma once

#include "app/NoticeBar.h"

class QSettings;

// Tells, once, that how the author likes the window cannot be kept for the next start. Work goes
// on.
class SettingsBar : public NoticeBar
{
    Q_OBJECT

public:
    explicit SettingsBar(QWidget* parent = nullptr);

    // The settings outlive the bar.
    void watch(QSettings& settings);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look(const QSettings& settings);

    bool wasTold = false;
};
