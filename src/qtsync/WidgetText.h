#pragma once

#include <QString>

class QWidget;

// The text that stands for an input widget's value.
namespace WidgetText {

// False, without touching text, for a widget of unknown type or null.
bool read(QWidget* widget, QString& text);
void write(QWidget* widget, const QString& text);

}  // namespace WidgetText
