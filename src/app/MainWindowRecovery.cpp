// Unsaved work: what it is, and how it comes back.
#include "app/MainWindow.h"

#include "app/ChangedFileBar.h"
#include "app/Recovery.h"
#include "app/WelcomePage.h"
#include "oid/OpenProject.h"
#include "ui_MainWindow.h"

#include <functional>
#include <string_view>

void MainWindow::prepareRecovery()
{
    RecoveryBar* const bar = new RecoveryBar;
    addNotice(bar);
    const UnsavedWork::Source source = {[this] { return workFingerprint(); },
                                        [this] { return projectToSave(); },
                                        [this] { return document.pagesMoved(); }};
    recovery = std::make_unique<Recovery>(
        source,
        [this](const QString& file, const RecoveryHead& head) { return restore(file, head); },
        *bar);
    connect(recovery.get(), &Recovery::told, this, [this](const QString& text) { tell(text); });
}

std::uint64_t MainWindow::workFingerprint() const
{
    const QString script = ui->codeEditor->text();
    const std::u16string_view units(reinterpret_cast<const char16_t*>(script.utf16()),
                                    static_cast<std::size_t>(script.size()));
    constexpr std::uint64_t kSpreading = 0x9E3779B97F4A7C15;  // odd, its bits as if by chance
    return std::hash<std::u16string_view>()(units) ^ document.revision() * kSpreading;
}

Oid::OidProject MainWindow::projectToSave() const
{
    Oid::OidProject saved = document.projectToSave();
    saved.compiler.source = ui->codeEditor->text().toStdString();
    return saved;
}

void MainWindow::offerUnsavedWork()
{
    recovery->begun();
    welcome->setFocus();
}

bool MainWindow::restore(const QString& file, const RecoveryHead& head)
{
    clearMessages();
    document.leave();
    const bool sameFile = project.projectPath == head.projectPath;
    const bool opened = Oid::openProject(project, file.toStdString());
    if (opened) {
        project.projectPath = head.projectPath;
        project.productName = head.productName;
        project.pictures.resize(static_cast<size_t>(head.pages));
    }
    showProject(opened);
    if (opened && !document.restoreMoved(head.moved)) {
        warnOfPictures();
    }
    if (!sameFile) {
        ui->codeEditor->forgetHistory();
        noteFiles();  // else the work may have another number than its file has
        savedFile.isUnseen(project.projectPath);
        changedFileBar->follow();
    }
    return opened;
}
