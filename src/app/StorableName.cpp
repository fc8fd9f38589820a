#include "app/StorableName.h"

#include "oid/AreaNaming.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

StorableName::StorableName(QLineEdit* field) : QValidator(field)
{
    field->setValidator(this);
    field->installEventFilter(this);
}

QString StorableName::of(QString name)
{
    const auto isLost = [](QChar c) { return !Oid::isStorableInName(c.unicode()); };
    std::replace_if(name.begin(), name.end(), isLost, QChar('_'));
    return name;
}

QValidator::State StorableName::validate(QString& text, int& /*position*/) const
{
    text = of(text);
    return text.toUtf8().size() <= Oid::kLongestAreaName ? Acceptable : Invalid;
}

// A text that the validator has changed cannot be undone in the field, so keys are changed before.
bool StorableName::eventFilter(QObject* field, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* const key = static_cast<QKeyEvent*>(event);
    const QString typed = key->text();
    const bool isLost = !typed.isEmpty() && typed[0].isPrint() && of(typed) != typed;
    if (isLost) {
        QKeyEvent storable(QEvent::KeyPress, key->key(), key->modifiers(), of(typed));
        QCoreApplication::sendEvent(field, &storable);
    }
    return isLost;
}
