// The manual at the place that fits the tab.
#include "app/MainWindow.h"

#include "qtsync/OpenManual.h"
#include "qtsync/ToolTip.h"
#include "ui_MainWindow.h"

#include <QAction>

void MainWindow::prepareManual()
{
    auto* const action = new QAction(QIcon(":/icons/manual.svg"), tr("Manual"), this);
    action->setObjectName("actionManual");
    action->setToolTip(tr("Opens the manual in your browser, at what the shown tab is for"));
    action->setShortcut(QKeySequence(Qt::Key_F1));
    tellKeyOf(*action);
    action->setPriority(QAction::LowPriority);  // its icon says it
    ui->editBar->addSeparator();
    ui->editBar->addAction(action);
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
