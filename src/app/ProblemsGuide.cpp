#include "app/ProblemsGuide.h"

#include "app/AreasDock.h"
#include "app/BookSourceOf.h"
#include "app/PlaceInManual.h"
#include "app/ProblemsDock.h"
#include "document/Document.h"
#include "ui_MainWindow.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QTabBar>

namespace {

TextMark::Kind kindOf(Severity severity)
{
    switch (severity) {
    case Severity::error:
        return TextMark::error;
    case Severity::warning:
        return TextMark::warning;
    default:
        return TextMark::hint;
    }
}

// Carries a fix out; false when its place is not there any more.
struct FixCarrier
{
    bool operator()(const hints::TextEdits& edits) const
    {
        std::vector<KVQtHighlightEditCtrlInlay::Replacement> parts;
        for (const hints::TextEdit& edit : edits) {
            parts.push_back(
                {{edit.line, edit.column, edit.length}, QString::fromStdString(edit.text)});
        }
        editor.surface().EditParts(parts);
        return true;
    }

    bool operator()(const hints::AreaNumber& number) const
    {
        return document.apply(
            edit::SetNumber{document.areaAt(place.page - 1, place.area - 1), number.oid});
    }

    bool operator()(const hints::PrintResolution& resolution) const
    {
        const int page = resolution.page - 1;
        const auto& pages = document.project().pictures;
        if (page >= static_cast<int>(pages.size())) {
            return false;
        }
        const Oid::PICTURE& picture = pages[static_cast<std::size_t>(page)];
        return document.apply(
            edit::SetPaper{page, picture.paperWidth, picture.paperHeight, resolution.dpi});
    }

    Document& document;
    KVQtHighlightEditCtrl& editor;
    const Diagnostic& place;
};

}  // namespace

ProblemsGuide::ProblemsGuide(QMainWindow& mainWindow, Ui::MainWindow& mainForm,
                             Document& mainDocument)
    : QObject(&mainWindow),
      window(mainWindow),
      form(mainForm),
      document(mainDocument),
      finder(bookSourceOf(mainDocument, *mainForm.codeEditor)),
      dock(new ProblemsDock(&mainWindow)),
      number(new QLabel(&mainWindow))
{
    window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    number->setObjectName("problemsNumber");
    number->setAlignment(Qt::AlignCenter);
    QFont small = number->font();
    small.setPointSizeF(small.pointSizeF() * 0.8);  // the tabs are no higher for it
    number->setFont(small);
    number->setStyleSheet(
        "border-radius: 6px; padding: 0px 5px; color: white; background: #b3261e");
    number->hide();
    watch();
}

void ProblemsGuide::watch()
{
    const auto look = [this] { finder.lookSoon(); };
    const auto& script = form.codeEditor->surface();
    connect(&script, &KVQtHighlightEditCtrlInlay::TextChanged, this, look);
    connect(&script, &KVQtHighlightEditCtrlInlay::FixAsked, this, &ProblemsGuide::fixAtCaret);
    connect(&script, &KVQtHighlightEditCtrlInlay::MarkReached, this,
            [this](const TextMark& mark) { tell(mark.words); });
    connect(&document, &Document::changed, this, look);
    connect(form.txProjectName, &QLineEdit::textChanged, this, look);
    connect(form.txProjectId, qOverload<int>(&QSpinBox::valueChanged), this, look);
    connect(&finder, &ProblemFinder::found, this, &ProblemsGuide::show);
    connect(&finder, &ProblemFinder::scriptNamesFound, window.findChild<AreasDock*>(),
            &AreasDock::setScriptNames);
    const auto tabChanged = [this] {
        const QWidget* const tab = form.ribbonTab->currentWidget();
        dock->letFoldByItself(tab != form.tabAreas && tab != form.tabTry);
    };
    connect(form.ribbonTab, &QTabWidget::currentChanged, this, tabChanged);
    tabChanged();
    connect(dock, &ProblemsDock::chosen, this, &ProblemsGuide::goTo);
    connect(dock, &ProblemsDock::fixAsked, this, &ProblemsGuide::putRight);
    connect(dock, &ProblemsDock::reasonAsked, this, [this](const Problem& problem) {
        emit manualAsked(placeInManual(problem.diagnostic));
    });
    connect(dock, &ProblemsDock::wasFolded, this, &ProblemsGuide::keepCaretInView,
            Qt::QueuedConnection);  // when all have their places
}

// Mostly typing leaves them all as they are.
void ProblemsGuide::show(const Problems& problems)
{
    if (problems == dock->problems()) {
        return;
    }
    dock->show(problems);
    showNumber(problems);
    markScript(problems);
}

// Who is writing at the lower edge goes on there.
void ProblemsGuide::keepCaretInView()
{
    auto& script = form.codeEditor->surface();
    if (script.hasFocus()) {
        script.EnsureVisible(script.editor.selection.end);
        script.UpdateAllViews();
    }
}

// The text of the tab stays; the number stands behind it.
void ProblemsGuide::showNumber(const Problems& problems)
{
    QTabBar* const tabs = form.ribbonTab->tabBar();
    const int tab = form.ribbonTab->indexOf(form.tabScript);
    const QString text = problems.empty() ? QString() : QString::number(problems.size());
    if (text == number->text()) {
        return;
    }
    number->setText(text);
    number->setAccessibleName(ProblemsDock::summaryOf(problems));
    number->setToolTip(ProblemsDock::summaryOf(problems));
    number->setVisible(!problems.empty());
    number->adjustSize();
    tabs->setTabButton(tab, QTabBar::RightSide, nullptr);  // else it keeps its old width
    tabs->setTabButton(tab, QTabBar::RightSide, problems.empty() ? nullptr : number);
}

void ProblemsGuide::markScript(const Problems& problems)
{
    std::vector<TextMark> marks;
    for (const Problem& problem : problems) {
        const Diagnostic& place = problem.diagnostic;
        if (place.line > 0) {
            QString words = problem.words;
            if (problem.fix) {
                words += '\n' + tr("Alt+Enter: %1").arg(problem.fixWords);
            }
            marks.push_back(
                {place.line, place.column, place.length, kindOf(place.severity), words});
        }
    }
    form.codeEditor->surface().SetMarks(std::move(marks));
}

void ProblemsGuide::goTo(const Problem& problem)
{
    const Diagnostic& place = problem.diagnostic;
    if (place.line > 0) {
        form.ribbonTab->setCurrentWidget(form.tabScript);
        form.codeEditor->surface().setFocus();
        form.codeEditor->surface().Select({place.line, std::max(place.column, 1), place.length});
    } else if (place.page > 0) {
        form.ribbonTab->setCurrentWidget(form.tabAreas);
        document.select(place.page - 1, place.area - 1);
        form.polyArea->setFocus();
    } else {
        form.ribbonTab->setCurrentWidget(form.tabProject);
        form.txProjectName->setFocus();
    }
    tell(problem.words);
}

// The first one that covers the caret, or else stands on its line.
void ProblemsGuide::fixAtCaret()
{
    auto& script = form.codeEditor->surface();
    const auto caret = script.editor.selection.end;
    const Problem* onLine = nullptr;
    for (const Problem& problem : dock->problems()) {
        const Diagnostic& place = problem.diagnostic;
        if (place.line != caret.line + 1 || !problem.fix) {
            continue;
        }
        const auto cells = script.CellsOf({place.line, std::max(place.column, 1), place.length});
        if (caret.column >= cells.start.column && caret.column <= cells.end.column) {
            putRight(Problem(problem));
            return;
        }
        onLine = onLine != nullptr ? onLine : &problem;
    }
    if (onLine != nullptr) {
        putRight(Problem(*onLine));
    } else {
        tell(tr("There is no quick fix here"));
    }
}

// What was found about another state of the book is not carried out in this one.
void ProblemsGuide::putRight(const Problem& problem)
{
    const bool done =
        finder.isUpToDate() &&
        std::visit(FixCarrier{document, *form.codeEditor, problem.diagnostic}, problem.fix->change);
    tell(done ? problem.fixWords : tr("The book has changed meanwhile. Try again."));
}

void ProblemsGuide::tell(const QString& text)
{
    window.statusBar()->showMessage(text.section('\n', 0, 0));
}
