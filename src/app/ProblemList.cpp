#include "app/ProblemList.h"

#include <QApplication>
#include <QFont>
#include <QHash>
#include <QStyle>

namespace {

QIcon standardIcon(QStyle::StandardPixmap which)
{
    return QApplication::style()->standardIcon(which);
}

}  // namespace

// The style looks for an icon each time that it is asked.
ProblemList::ProblemList(QObject* parent)
    : QAbstractTableModel(parent),
      error(standardIcon(QStyle::SP_MessageBoxCritical)),
      warning(standardIcon(QStyle::SP_MessageBoxWarning)),
      hint(standardIcon(QStyle::SP_MessageBoxInformation))
{}

const QIcon& ProblemList::iconOf(Severity severity) const
{
    switch (severity) {
    case Severity::error:
        return error;
    case Severity::warning:
        return warning;
    default:
        return hint;
    }
}

void ProblemList::set(const Problems& newProblems)
{
    beginResetModel();
    problems = newProblems;
    endResetModel();
}

QString ProblemList::nameOf(Severity severity)
{
    switch (severity) {
    case Severity::error:
        return tr("Error");
    case Severity::warning:
        return tr("Warning");
    default:
        return tr("Hint");
    }
}

QString ProblemList::sentenceOf(const Problem& problem)
{
    const QString name = nameOf(problem.diagnostic.severity);
    const int line = problem.diagnostic.line;
    return line > 0 ? tr("%1, line %2: %3").arg(name, QString::number(line), problem.words)
                    : tr("%1: %2").arg(name, problem.words);
}

// Problems whose lines have moved are no news.
QString ProblemList::newsOf(const Problems& before, const Problems& now)
{
    QHash<QString, int> known;
    for (const Problem& problem : before) {
        ++known[problem.words];
    }
    const Problem* first = nullptr;
    int count = 0;
    for (const Problem& problem : now) {
        if (--known[problem.words] < 0) {
            first = first != nullptr ? first : &problem;
            ++count;
        }
    }
    if (count == 0) {
        return now.empty() && !before.empty() ? tr("No problems any more") : QString();
    }
    return count == 1 ? tr("New problem. %1").arg(sentenceOf(*first))
                      : tr("%1 new problems. %2").arg(QString::number(count), sentenceOf(*first));
}

int ProblemList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(problems.size());
}

int ProblemList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnCountOfAll;
}

QString ProblemList::textOf(const Problem& problem, int column)
{
    const Diagnostic& diagnostic = problem.diagnostic;
    switch (column) {
    case kind:
        return nameOf(diagnostic.severity);
    case line:
        return diagnostic.line > 0 ? QString::number(diagnostic.line) : QString();
    case area:
        if (diagnostic.page == 0) {
            return {};
        }
        return diagnostic.area == 0 ? tr("page %1").arg(diagnostic.page)
                                    : tr("page %1: %2")
                                          .arg(QString::number(diagnostic.page),
                                               QString::fromStdString(diagnostic.subject));
    case words:
        return problem.words;
    case fix:
        return problem.fixWords;
    default:
        return tr("Why?");
    }
}

QVariant ProblemList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Problem& problem = problems[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return textOf(problem, index.column()).simplified();
    case Qt::AccessibleTextRole:  // one hears the first column of the row that one comes to
        return index.column() == kind ? sentenceOf(problem) : textOf(problem, index.column());
    case Qt::ToolTipRole:
        return index.column() == why ? tr("Opens the manual at what is told about this (F1)")
                                     : textOf(problem, index.column());
    case Qt::DecorationRole:
        return index.column() == kind ? iconOf(problem.diagnostic.severity) : QVariant();
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setUnderline(index.column() >= fix);  // it can be clicked
        return font;
    }
    default:
        return {};
    }
}

QVariant ProblemList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case kind:
        return tr("Kind");
    case line:
        return tr("Line");
    case area:
        return tr("Area");
    case words:
        return tr("Problem");
    case fix:
        return tr("Quick fix");
    default:
        return tr("Manual");
    }
}
