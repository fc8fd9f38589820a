// Unsaved work: what it is, and how it comes back.
#include "app/MainWindow.h"

#include "app/Recovery.h"
#include "document/Fingerprint.h"
#include "oid/OidTable.h"
#include "oid/OpenProject.h"
#include "ui_MainWindow.h"

void MainWindow::prepareRecovery()
{
    RecoveryBar* const bar = new RecoveryBar;
    addNotice(bar);
    const UnsavedWork::Source source = {[this] { return workFingerprint(); },
                                        [this] { return projectToSave(); }};
    recovery = std::make_unique<Recovery>(
        source,
        [this](const QString& file, const RecoveryHead& head) { return restore(file, head); },
        *bar);
    connect(recovery.get(), &Recovery::told, this, [this](const QString& text) { tell(text); });
}

std::uint64_t MainWindow::workFingerprint() const
{
    Fingerprint fingerprint;
    fingerprint.add(project);
    for (const QString& text :
         {ui->txProjectName->text(), ui->txProjectId->text(), ui->txProjPaperWidth->text(),
          ui->txProjPaperHeight->text(), ui->txProjDPI->text(), ui->codeEditor->text()}) {
        fingerprint.add(text);
    }
    return fingerprint.value();
}

Oid::OidProject MainWindow::projectToSave() const
{
    Oid::OidProject saved;
    saved.productName = ui->txProjectName->text().toStdString();
    saved.productId = ui->txProjectId->value();
    saved.pictures = project.pictures;
    saved.oids = project.oids;
    if (ui->polyArea->picture() != nullptr) {
        const edit::SetPaper paper = syncPaper(true);
        Oid::PICTURE& picture = saved.pictures[static_cast<size_t>(paper.page)];
        picture.paperWidth = paper.width;
        picture.paperHeight = paper.height;
        picture.dpi = paper.dpi;
    }
    saved.compiler.source = ui->codeEditor->text().toStdString();
    Oid::numberAllAreas(saved);
    return saved;
}

void MainWindow::offerUnsavedWork()
{
    recovery->begun();
}

bool MainWindow::restore(const QString& file, const RecoveryHead& head)
{
    clearMessages();
    const bool sameFile = project.projectPath == head.projectPath;
    const bool opened = Oid::openProject(project, file.toStdString());
    if (opened) {
        project.projectPath = head.projectPath;
        project.productName = head.productName;
        project.pictures.resize(static_cast<size_t>(head.pages));
    }
    showProject(opened);
    if (!sameFile) {
        ui->codeEditor->forgetHistory();
        noteFiles();  // else the work may have another number than its file has
    }
    return opened;
}
