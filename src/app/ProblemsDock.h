#pragma once

#include <QDockWidget>
#include <QPointer>
#include <QTimer>

#include "app/ProblemList.h"

class QToolButton;
class QTreeView;

// The list of problems below all tabs. It is folded to one line while there is none, and whenever
// the author folds it.
class ProblemsDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit ProblemsDock(QWidget* parent = nullptr);

    void show(const Problems& problems);
    const Problems& problems() const { return list.all(); }
    bool isFolded() const;
    // While it may not, the list stays folded or unfolded as it is, unless the author wants it
    // otherwise: a page does not change its size below the mouse.
    void letFoldByItself(bool may);
    // "3 problems"
    static QString summaryOf(const Problems& problems);

signals:
    // The author wants to see the place, or have the quick fix, of the problem.
    void chosen(const Problem& problem);
    void fixAsked(const Problem& problem);
    // The author wants to know more about it.
    void reasonAsked(const Problem& problem);
    // Folded or unfolded, so that there is another room above.
    void wasFolded();

protected:
    bool eventFilter(QObject* view, QEvent* event) override;

private:
    void prepareView();
    void prepareTitle();
    void prepareKey();
    void toggle();
    void toggleByKey();
    void announce(const QString& news);
    void fold(bool folded);
    void foldAsNeeded();
    void choose(const QModelIndex& index);
    void askForFix(const QModelIndex& index);
    void askForReason(const QModelIndex& index);

    ProblemList list;
    QTreeView* view;
    QToolButton* title;
    QPointer<QWidget> before;  // had the focus when the key led into the list
    QTimer empty;  // an error that comes and goes while a word is typed leaves the list in peace
    bool foldedByAuthor = false;
    bool foldsByItself = true;
};
