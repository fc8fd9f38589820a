#pragma once

#include <QAbstractTableModel>
#include <QIcon>

#include "app/Problem.h"

// The problems as rows of a view.
class ProblemList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { kind, line, area, words, fix, why, columnCountOfAll };

    explicit ProblemList(QObject* parent = nullptr);

    void set(const Problems& newProblems);
    const Problems& all() const { return problems; }
    // "Error", "Warning", "Hint", in the language of the window.
    static QString nameOf(Severity severity);
    // All of a problem in one sentence: "Error, line 3: else without if"
    static QString sentenceOf(const Problem& problem);
    // What has come since then, in a sentence for those who do not see the list; empty for nothing.
    static QString newsOf(const Problems& before, const Problems& now);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString textOf(const Problem& problem, int column);
    const QIcon& iconOf(Severity severity) const;

    const QIcon error;
    const QIcon warning;
    const QIcon hint;
    Problems problems;
};
