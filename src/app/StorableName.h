#pragma once

#include <QValidator>

class QLineEdit;

// Lets a field take only names of areas that can be stored: each character that cannot becomes "_"
// as it is typed, pasted or set. A text that is too long is refused.
class StorableName : public QValidator
{
public:
    // The field owns it and uses it from now on.
    explicit StorableName(QLineEdit* field);

    // How the field shows a name.
    static QString of(QString name);

    State validate(QString& text, int& position) const override;
    bool eventFilter(QObject* field, QEvent* event) override;
};
