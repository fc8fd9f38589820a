#pragma once

#include <QObject>

class Document;
class QBoxLayout;
class QLabel;
class QLineEdit;

// Tells beside the field of an area's name, while it is typed, what script and assembler cannot
// take of it, and the cure.
class SubNameNote : public QObject
{
    Q_OBJECT

public:
    // The field owns it. Its label stands in the layout at that index, and is not there while there
    // is nothing to tell.
    SubNameNote(QLineEdit* field, Document& document, QBoxLayout* layout, int index);

    // One or two sentences; empty for a name that is fine.
    static QString problemOf(const QString& name);
    // Whether a sub can have the name.
    static bool isPossible(const QString& name);

private:
    void tell();
    void notice();

    QLineEdit* field;
    Document& document;
    QLabel* label;
    bool isForNobody = false;  // what was typed
};
