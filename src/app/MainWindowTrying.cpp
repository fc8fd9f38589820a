// Trying the book: the tab gets what the form holds, and leads to script and pages.
#include "app/MainWindow.h"

#include "app/FileDialogs.h"
#include "base/PlatformFiles.h"
#include "publish/GameFile.h"
#include "tryout/TryTab.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QVBoxLayout>

void MainWindow::prepareTrying()
{
    // Audio files come and go without a change of the project.
    const auto revision = [this] {
        const auto audio =
            static_cast<std::uint64_t>(timeOfChange(audioFolder(project)).toMSecsSinceEpoch());
        return workFingerprint() ^ (std::hash<std::string>()(project.projectPath) << 1) ^
               (audio << 2);
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
    tryTab->saveTest = [this](const std::string& test) { return saveBookTest(test); };
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

bool MainWindow::saveBookTest(const std::string& test)
{
    const QFileInfo book(QString::fromStdString(Platform::nativePath(project.projectPath)));
    const QString suggestion = book.absolutePath() + '/' + book.completeBaseName() + ".booktest";
    const QString path = askForTestToSave(this, suggestion);
    if (path.isEmpty()) {
        return false;
    }
    QSaveFile file(path);
    const auto size = static_cast<qint64>(test.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(test.data(), size) != size ||
        !file.commit()) {
        warn(tr("The file could not be saved to the drive"), "questions-not-saved");
        return false;
    }
    tell(tr("Saved: %1").arg(QFileInfo(path).fileName()));
    return true;
}
