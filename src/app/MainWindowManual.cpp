// F1: the manual at the place that fits the tab.
#include "app/MainWindow.h"

#include "qtsync/OpenManual.h"
#include "ui_MainWindow.h"

#include <QAction>

void MainWindow::prepareManual()
{
    auto* const action = new QAction(tr("Manual"), this);
    action->setObjectName("actionManual");
    action->setShortcut(QKeySequence(Qt::Key_F1));
    addAction(action);
    connect(action, &QAction::triggered, this, [this] { showManual(placeOfTab()); });
}

QString MainWindow::placeOfTab() const
{
    const QWidget* const tab = ui->ribbonTab->currentWidget();
    return tab == ui->tabProject  ? "pages-project"
           : tab == ui->tabAreas  ? "areas"
           : tab == ui->tabScript ? "writing"
           : tab == ui->tabBuild  ? "pen-build"
           : tab == ui->tabTry    ? "try"
                                  : "speech-tab";
}

void MainWindow::showManual(const QString& place)
{
    if (!openManual(place)) {
        tell(whyNoManual());
    }
}
