#pragma once

#include <QObject>

class QLabel;
class QLineEdit;

// Tells beside the field of the product's name, while it is typed, what no project file, file name
// or game can have in it.
class ProductNameNote : public QObject
{
    Q_OBJECT

public:
    // Both are used as long as the field lives, which owns this.
    ProductNameNote(QLineEdit* field, QLabel* label);

    // One sentence for each problem of the name, on a line of its own; empty when it has none.
    static QString problemsOf(const QString& name);

private:
    void tell();

    QLineEdit* field;
    QLabel* label;
};
