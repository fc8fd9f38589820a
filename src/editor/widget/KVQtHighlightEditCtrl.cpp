#include "editor/widget/KVQtHighlightEditCtrl.h"

#include <QVBoxLayout>

KVQtHighlightEditCtrl::KVQtHighlightEditCtrl(QWidget* parent)
    : QAbstractScrollArea(parent), inlay(new KVQtHighlightEditCtrlInlay(this))
{
    QVBoxLayout* const fill = new QVBoxLayout(viewport());
    fill->setContentsMargins(0, 0, 0, 0);
    fill->addWidget(inlay);
    setFocusProxy(inlay);
}

// The surface draws the text at the new place; nothing is moved on the screen.
void KVQtHighlightEditCtrl::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    inlay->update();
}
