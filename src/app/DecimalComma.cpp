#include "app/DecimalComma.h"

QValidator::State DecimalComma::validate(QString& text, int& /*position*/) const
{
    text.replace(',', '.');
    return Acceptable;
}
