#pragma once

#include <QDialog>

#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

class QLineEdit;
class QListWidget;

// A list of places in the script to choose from; typing narrows it down.
class JumpList : public QDialog
{
    Q_OBJECT

public:
    struct Place
    {
        QString text;
        KVQtHighlightEditCtrlInlay::Part part;
    };

    // Opens above the script; it deletes itself.
    JumpList(QWidget* parent, const QString& title, std::vector<Place> placesToChoose);

signals:
    void chosen(const KVQtHighlightEditCtrlInlay::Part& part);

protected:
    bool eventFilter(QObject* field, QEvent* event) override;

private:
    void fill(const QString& wanted);
    void choose();

    std::vector<Place> places;
    QLineEdit* filter;
    QListWidget* list;
};
