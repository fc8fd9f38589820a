#include "qtsync/ChangeEvents.h"

#include "base/PrintFunction.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

// The signal that says "the user changed this"; null for combo boxes and unknown types.
const char* changeSignal(const QObject* widget)
{
    if (qobject_cast<const QLineEdit*>(widget) != nullptr ||
        qobject_cast<const QAbstractSpinBox*>(widget) != nullptr) {
        return SIGNAL(editingFinished());
    }
    if (qobject_cast<const QTextEdit*>(widget) != nullptr ||
        qobject_cast<const QPlainTextEdit*>(widget) != nullptr) {
        return SIGNAL(textChanged());
    }
    if (qobject_cast<const QAbstractButton*>(widget) != nullptr) {
        return SIGNAL(released());
    }
    if (qobject_cast<const QAbstractItemModel*>(widget) != nullptr) {
        return SIGNAL(dataChanged(const QModelIndex&, const QModelIndex&, const QVector<int>&));
    }
    return nullptr;
}

// Intended: the change of the edited text is connected twice, and failures are not reported.
void connectComboBox(const QObject* box, const QObject* receiver, const char* slot)
{
    QObject::connect(box, SIGNAL(editTextChanged(const QString&)), receiver, slot);
    QObject::connect(box, SIGNAL(currentIndexChanged(int)), receiver, slot);
    QObject::connect(box, SIGNAL(editTextChanged(const QString&)), receiver, slot);
}

void connectChecked(const QObject* widget, const QObject* receiver, const char* slot)
{
    const char* const signal = changeSignal(widget);
    if (signal != nullptr && !QObject::connect(widget, signal, receiver, slot)) {
        printToStandardOutput("Failed to connectd change event for widget: %s\n",
                              widget->objectName().toUtf8().constData());
    }
}

}  // namespace

ChangeEvents& ChangeEvents::instance()
{
    static ChangeEvents events;
    return events;
}

void ChangeEvents::setReceiver(QObject* newReceiver, const char* newSlot)
{
    if (newReceiver == nullptr || newSlot == nullptr) {
        newReceiver = nullptr;
        newSlot = "";
    }
    if (newReceiver == receiver && newSlot == slot) {
        return;
    }
    disconnectFromReceiver();
    forgetAll();
    receiver = newReceiver;
    slot = newSlot;
    if (receiver != nullptr) {
        // A dead receiver's connections have ended by themselves.
        connect(receiver, &QObject::destroyed, this, &ChangeEvents::forgetAll);
    }
}

void ChangeEvents::connectSender(QObject* widget)
{
    if (receiver == nullptr || widget == nullptr || isConnected(widget)) {
        return;
    }
    if (qobject_cast<QComboBox*>(widget) != nullptr) {
        connectComboBox(widget, receiver, slot);
    } else {
        connectChecked(widget, receiver, slot);
    }
    connected[widget] = slot;
    connect(widget, &QObject::destroyed, this, [this, widget] { connected.erase(widget); });
}

// Only connections to the slot end: the receiver may be connected to a widget in other ways, too.
void ChangeEvents::disconnectFromReceiver()
{
    for (const auto& [widget, usedSlot] : connected) {
        QObject::disconnect(widget, nullptr, receiver, usedSlot);
    }
}

void ChangeEvents::forgetAll()
{
    for (const auto& entry : connected) {
        QObject::disconnect(entry.first, nullptr, this, nullptr);
    }
    connected.clear();
    if (receiver != nullptr) {
        QObject::disconnect(receiver, nullptr, this, nullptr);
    }
    receiver = nullptr;
    slot.clear();
}
