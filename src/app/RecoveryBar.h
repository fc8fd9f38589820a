#pragma once

#include "app/NoticeBar.h"
#include "document/RecoveryFolder.h"

// Tells of unsaved work that a copy holds, and lets the author restore or forget it.
class RecoveryBar : public NoticeBar
{
    Q_OBJECT

public:
    explicit RecoveryBar(QWidget* parent = nullptr);

    void offer(const FoundCopy& copy);

signals:
    void restoreAsked();
    void forgetAsked();

private:
    static QString textFor(const FoundCopy& copy);

    QPushButton* restore;
};
