#include "qtsync/KVQt.h"

#include "qtsync/KVQtSync.h"

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
