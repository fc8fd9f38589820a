#pragma once

#include <QObject>

#include "app/ProblemFinder.h"

class Document;
class ProblemsDock;
class QLabel;
class QMainWindow;
namespace Ui {
class MainWindow;
}

// Brings the problems of the book before the author's eyes: in the list below the tabs, as marks in
// the script, as a number at its tab; and leads from there to their places, and to their quick
// fixes.
class ProblemsGuide : public QObject
{
    Q_OBJECT

public:
    // They outlive it; it is a child of the window, which has the list of areas and gets a dock.
    ProblemsGuide(QMainWindow& mainWindow, Ui::MainWindow& mainForm, Document& mainDocument);

signals:
    // The author wants to know more: where the manual tells it.
    void manualAsked(const QString& place);

private:
    void watch();
    void show(const Problems& problems);
    void keepCaretInView();
    void showNumber(const Problems& problems);
    void markScript(const Problems& problems);
    void goTo(const Problem& problem);
    void fixAtCaret();
    void putRight(const Problem& problem);
    void tell(const QString& text);

    QMainWindow& window;
    Ui::MainWindow& form;
    Document& document;
    ProblemFinder finder;
    ProblemsDock* dock;
    QLabel* number;  // at the tab of the script
};
