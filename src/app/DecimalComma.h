#pragma once

#include <QValidator>

// Lets a field take numbers as they are written in many countries: a comma that is typed becomes
// the point that the project's numbers are written with. Refuses nothing.
class DecimalComma : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& position) const override;
};
