#pragma once

#include "base/KVString.h"

class QWidget;

// One value of one widget in one call. Each is a KVQtSync pass of its own, so while another pass is
// alive they do nothing (and give "" and 0), and a read counts as a change of the document when it
// gives something else than that.
namespace KVQt {

KVString getS(QWidget* widget);
double getD(QWidget* widget);
void setI(int value, QWidget* widget);
void setD(double value, QWidget* widget);

}  // namespace KVQt
