// Trying the book: the tab gets what the form holds, and leads to script and pages.
#include "app/MainWindow.h"

#include "tryout/TryTab.h"
#include "ui_MainWindow.h"

#include <QVBoxLayout>

void MainWindow::prepareTrying()
{
    const auto revision = [this] {
        return workFingerprint() ^ (std::hash<std::string>()(project.projectPath) << 1);
    };
    const auto current = [this] {
        Oid::OidProject copy = projectToSave();
        copy.projectPath = project.projectPath;
        return copy;
    };
    tryTab = new TryTab(document, {revision, current});
    auto* const layout = new QVBoxLayout(ui->tabTry);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tryTab);
    connect(tryTab, &TryTab::told, this, qOverload<const QString&>(&MainWindow::tell));
    connect(tryTab, &TryTab::pageAsked, this, &MainWindow::showPicture);
    connect(tryTab, &TryTab::lineAsked, this, &MainWindow::showScriptLine);
}

void MainWindow::showScriptLine(int line)
{
    ui->ribbonTab->setCurrentWidget(ui->tabScript);
    ui->codeEditor->surface().setFocus();
    ui->codeEditor->surface().Select({line, 1, 0});
}
