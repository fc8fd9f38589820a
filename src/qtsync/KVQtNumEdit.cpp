#include "qtsync/KVQtNumEdit.h"

#include "base/KVString.h"
#include "base/TextHelpers.h"

#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int kDecimals = 7;
constexpr double kLimit = 1e99;
// Below this, a negative result of stepping is what rounding left over.
constexpr double kNearlyZero = 1e-20;

}  // namespace

KVQtNumEdit::KVQtNumEdit(QWidget* parent) : QDoubleSpinBox(parent)
{
    setDecimals(kDecimals);
    setRange(-kLimit, kLimit);
    setAlignment(Qt::AlignRight);
}

QValidator::State KVQtNumEdit::validate(QString& /*text*/, int& /*position*/) const
{
    return QValidator::Acceptable;
}

double KVQtNumEdit::valueFromText(const QString& text) const
{
    QString number = text;
    if (number.startsWith(prefix())) {
        number.remove(0, prefix().size());
    }
    if (number.endsWith(suffix())) {
        number.chop(suffix().size());
    }
    return toDouble(number.toUtf8().constData());
}

QString KVQtNumEdit::textFromValue(double value) const
{
    return KVStringNamespace::KVStringMaker::FromNumberScience(value, precisionFor(value));
}

// The digits before the point (7 at most) and all decimals. Of 0 the logarithm is minus infinity.
int KVQtNumEdit::precisionFor(double value) const
{
    const double digits = std::trunc(std::min(7.0, 1 + std::log10(std::abs(value)))) + decimals();
    return static_cast<int>(std::max<double>(std::abs(decimals()) + 1, digits));
}

// Intended: only a negative remainder becomes 0, so that stepping through zero never shows a
// negative zero.
void KVQtNumEdit::stepBy(int steps)
{
    QDoubleSpinBox::stepBy(steps);
    double result = value();
    if (std::signbit(result) && std::abs(result) < kNearlyZero) {
        result = 0;
    }
    setValue(std::clamp(result, minimum(), maximum()));
}

// A decimal comma types a decimal point.
void KVQtNumEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Comma) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    QKeyEvent point(event->type(), Qt::Key_Period, event->modifiers(), QStringLiteral("."),
                    event->isAutoRepeat(), static_cast<ushort>(event->count()));
    QDoubleSpinBox::keyPressEvent(&point);
    event->setAccepted(point.isAccepted());
}

void KVQtNumEdit::focusInEvent(QFocusEvent* event)
{
    QDoubleSpinBox::focusInEvent(event);
    if (select_on_focus) {
        // Not at once: the click that gave the focus would still place the cursor.
        QTimer::singleShot(0, this, SLOT(selectAll()));
    }
}
