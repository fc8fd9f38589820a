#pragma once

#include <QByteArray>
#include <QObject>

#include <map>

// Who hears of the user's edits: one receiver of the process, and the widgets and item models that
// are connected to it. Nothing here outlives what it points to: a widget that dies leaves the
// table, and a receiver that dies takes the whole table with it.
class ChangeEvents : public QObject
{
public:
    static ChangeEvents& instance();

    // Null means none. Another receiver or slot than before disconnects all widgets.
    void setReceiver(QObject* newReceiver, const char* newSlot);
    // Nothing without a receiver or for a widget that is connected already.
    void connectSender(QObject* widget);

    bool isConnected(const QObject* widget) const { return connected.count(widget) != 0; }
    size_t connectedCount() const { return connected.size(); }

private:
    void disconnectFromReceiver();
    // Receiver and table.
    void forgetAll();

    QObject* receiver = nullptr;
    QByteArray slot;  // as SLOT() gives it
    // Widget, and the slot that it was connected with.
    std::map<const QObject*, QByteArray> connected;
};
