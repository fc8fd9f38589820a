// The audio files of the texts: the tab hears of every change, and leads to script and project.
#include "app/MainWindow.h"

#include "app/BookSourceOf.h"
#include "speech/tab/SpeechTab.h"
#include "ui_MainWindow.h"

#include <QGuiApplication>
#include <QVBoxLayout>

void MainWindow::prepareSpeech()
{
    speechTab = new SpeechTab(bookSourceOf(document, *ui->codeEditor));
    auto* const layout = new QVBoxLayout(ui->tabSpeech);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(speechTab);
    const auto look = [this] { speechTab->lookSoon(); };
    KVQtHighlightEditCtrlInlay& script = ui->codeEditor->surface();
    connect(&script, &KVQtHighlightEditCtrlInlay::TextChanged, speechTab, look);
    connect(&document, &Document::changed, speechTab, look);
    connect(ui->txProjectName, &QLineEdit::textChanged, speechTab, look);
    connect(ui->txProjectId, qOverload<int>(&QSpinBox::valueChanged), speechTab, look);
    connect(qApp, &QGuiApplication::applicationStateChanged, speechTab, look);
    connect(speechTab, &SpeechTab::told, this, qOverload<const QString&>(&MainWindow::tell));
    connect(speechTab, &SpeechTab::lineShown, this, [&script](int line) {
        script.Select({line, 1, 0});
    });
    connect(speechTab, &SpeechTab::busyChanged, this,
            [this](bool busy) { ui->btBuild->setEnabled(!busy && !ui->txConsole->isRunning()); });
    connect(speechTab, &SpeechTab::statementChosen, this,
            [this, &script](const QString& statement) {
                script.EditParts({{{1, 1, 0}, statement + '\n'}});
                showScriptLine(1);
                tell(tr("The script declares the new voice in its first line now."));
            });
    connect(speechTab, &SpeechTab::lineAsked, this, [this](int line) {
        if (line > 0) {
            showScriptLine(line);
        } else {
            ui->ribbonTab->setCurrentWidget(ui->tabProject);
            ui->txProjectName->setFocus();
        }
    });
}
