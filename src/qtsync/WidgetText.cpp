#include "qtsync/WidgetText.h"

#include "qtsync/KVQtSync.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextEdit>

namespace WidgetText {

namespace {

QString get(const QDoubleSpinBox& box)
{
    return KVQtSync::_from_double(box.value());
}

void set(QDoubleSpinBox& box, const QString& text)
{
    box.setValue(KVQtSync::_to_double(text));
}

QString get(const QSpinBox& box)
{
    return KVQtSync::_from_int(box.value());
}

void set(QSpinBox& box, const QString& text)
{
    box.setValue(KVQtSync::_to_int(text));
}

QString get(const QTextEdit& edit)
{
    return edit.toPlainText();
}

void set(QTextEdit& edit, const QString& text)
{
    edit.setPlainText(text);  // markup in the text is text, too
}

QString get(const QPlainTextEdit& edit)
{
    return edit.toPlainText();
}

void set(QPlainTextEdit& edit, const QString& text)
{
    edit.setPlainText(text);
}

QString get(const QLineEdit& edit)
{
    return edit.text();
}

void set(QLineEdit& edit, const QString& text)
{
    edit.setText(text);
    edit.setCursorPosition(0);
}

QString get(const QComboBox& box)
{
    return box.currentText();
}

void set(QComboBox& box, const QString& text)
{
    box.setCurrentText(text);
}

// A partially checked box reads as unchecked.
QString get(const QCheckBox& box)
{
    return box.checkState() == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0");
}

void set(QCheckBox& box, const QString& text)
{
    box.setCheckState(KVQtSync::_to_int(text) == 1 ? Qt::Checked : Qt::Unchecked);
}

template <typename Widget>
bool readAs(QWidget* widget, QString& text)
{
    const auto* const typed = qobject_cast<Widget*>(widget);
    if (typed != nullptr) {
        text = get(*typed);
    }
    return typed != nullptr;
}

template <typename Widget>
bool writeAs(QWidget* widget, const QString& text)
{
    auto* const typed = qobject_cast<Widget*>(widget);
    if (typed != nullptr) {
        set(*typed, text);
    }
    return typed != nullptr;
}

// What can be done with one type of widget.
struct WidgetType
{
    bool (*read)(QWidget*, QString&);
    bool (*write)(QWidget*, const QString&);
};

template <typename Widget>
constexpr WidgetType typeOf()
{
    return {readAs<Widget>, writeAs<Widget>};
}

constexpr WidgetType kWidgetTypes[] = {
    typeOf<QDoubleSpinBox>(), typeOf<QSpinBox>(),  typeOf<QTextEdit>(), typeOf<QPlainTextEdit>(),
    typeOf<QLineEdit>(),      typeOf<QComboBox>(), typeOf<QCheckBox>(),
};

}  // namespace

bool read(QWidget* widget, QString& text)
{
    for (const WidgetType& type : kWidgetTypes) {
        if (type.read(widget, text)) {
            return true;
        }
    }
    return false;
}

void write(QWidget* widget, const QString& text)
{
    for (const WidgetType& type : kWidgetTypes) {
        if (type.write(widget, text)) {
            return;
        }
    }
}

}  // namespace WidgetText
