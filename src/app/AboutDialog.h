#pragma once

#include <QDialog>

class QStatusBar;

// Which Plinkett this is: its version, that of Qt, and the licences.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);

    // A small button at the right end of the status bar, which shows the dialog.
    static void addButton(QStatusBar& bar);
};
