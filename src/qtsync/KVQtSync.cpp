// Passes, their nesting, and single widgets. Cells of item models: KVQtSyncGrid.cpp.
#include "qtsync/KVQtSync.h"

#include "qtsync/ChangeEvents.h"
#include "qtsync/RadioGroup.h"
#include "qtsync/WidgetText.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kDoubleDigits = 15;

int liveObjects = 0;
bool documentModified = false;

}  // namespace

KVQtSync::KVQtSync(SyncMode newMode)
{
    ++liveObjects;
    mode(newMode);
}

KVQtSync::KVQtSync(bool fromWidgets) : KVQtSync(fromWidgets ? FromWidgets : ToWidgets) {}

KVQtSync::~KVQtSync()
{
    stop();
}

void KVQtSync::mode(SyncMode newMode)
{
    syncMode = active && liveObjects == 1 ? newMode : Inactive;
}

void KVQtSync::stop()
{
    if (active) {
        --liveObjects;
        active = false;
        syncMode = Inactive;
    }
}

bool KVQtSync::DocumentIsModified()
{
    return documentModified;
}

void KVQtSync::DocumentIsModified(bool modified)
{
    documentModified = modified;
}

void KVQtSync::syncS(KVString& text, QWidget* widget)
{
    QString wide = text;
    syncS(wide, widget);
    if (syncMode == FromWidgets && wide != QString(text)) {
        text = wide;
    }
}

void KVQtSync::syncS(QString& text, QWidget* widget)
{
    if (syncMode == FromWidgets) {
        QString shown;
        if (WidgetText::read(widget, shown)) {
            _replace(text, shown);
        }
    } else if (syncMode == ToWidgets) {
        connectChangeEvent(widget);
        const QSignalBlocker quiet(widget);
        WidgetText::write(widget, text);
    }
}

void KVQtSync::syncI(int& value, QWidget* widget)
{
    if (auto* const box = qobject_cast<QComboBox*>(widget)) {
        _sync_combo_index(value, box);
    } else if (auto* const radio = qobject_cast<QRadioButton*>(widget)) {
        _sync_radio_index(value, radio);
    } else {
        QString text = _from_int(value);
        syncS(text, widget);
        if (syncMode == FromWidgets) {
            value = _to_int(text);
        }
    }
}

void KVQtSync::syncI(int& value, QComboBox* box, const QStringList& itemTexts)
{
    if (syncMode == ToWidgets && box != nullptr) {
        const QSignalBlocker quiet(box);
        box->clear();
        box->addItems(itemTexts);
    }
    syncI(value, box);
}

// A value whose text is still the same keeps the digits that the text does not show.
void KVQtSync::syncD(double& value, QWidget* widget)
{
    const QString filled = _from_double(value);
    QString text = filled;
    syncS(text, widget);
    if (syncMode == FromWidgets && text != filled) {
        value = _to_double(text);
    }
}

void KVQtSync::_sync_combo_index(int& value, QComboBox* box)
{
    if (syncMode == FromWidgets) {
        _replace(value, box->currentIndex());
    } else if (syncMode == ToWidgets) {
        connectChangeEvent(box);
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(value);
    }
}

void KVQtSync::_sync_radio_index(int& value, QRadioButton* first)
{
    if (syncMode == Inactive || first->parentWidget() == nullptr) {
        return;
    }
    const std::vector<QRadioButton*> group = RadioGroup::collect(first);
    if (syncMode == FromWidgets) {
        _replace(value, RadioGroup::checkedIndex(group));
        return;
    }
    for (QRadioButton* const button : group) {
        connectChangeEvent(button);
    }
    RadioGroup::check(group, value);
}

void KVQtSync::connectChangeEventSlot(QObject* receiver, const char* slot)
{
    ChangeEvents::instance().setReceiver(receiver, slot);
}

void KVQtSync::disconnectChangeEventSlot()
{
    ChangeEvents::instance().setReceiver(nullptr, nullptr);
}

void KVQtSync::connectChangeEvent(QObject* widget)
{
    ChangeEvents::instance().connectSender(widget);
}

QString KVQtSync::_from_int(int value)
{
    return QStringLiteral("%1").arg(value, 0, 10);
}

QString KVQtSync::_from_double(double value)
{
    return KVStringNamespace::KVStringMaker::FromNumberScience(value, kDoubleDigits);
}

int KVQtSync::_to_int(const QString& text)
{
    const double number = _to_double(text);
    if (std::isnan(number)) {
        return 0;
    }
    return static_cast<int>(std::clamp<double>(number, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

double KVQtSync::_to_double(const QString& text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    return ok || std::isinf(number) ? number : 0;  // a number that is too large is infinite
}

namespace KVQt {

KVString getS(QWidget* widget)
{
    KVString text;
    KVQtSync(KVQtSync::FromWidgets).syncS(text, widget);
    return text;
}

double getD(QWidget* widget)
{
    double value = 0;
    KVQtSync(KVQtSync::FromWidgets).syncD(value, widget);
    return value;
}

void setI(int value, QWidget* widget)
{
    KVQtSync(KVQtSync::ToWidgets).syncI(value, widget);
}

void setD(double value, QWidget* widget)
{
    KVQtSync(KVQtSync::ToWidgets).syncD(value, widget);
}

}  // namespace KVQt
