#pragma once

#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QAbstractScrollArea>

// The code editor as a control: the surface with its scroll bars.
class KVQtHighlightEditCtrl : public QAbstractScrollArea
{
    Q_OBJECT

public:
    using OPTIONS = EditorOptions;
    using CARET = KVTextEditor::CARET;

    explicit KVQtHighlightEditCtrl(QWidget* parent = nullptr);

    KVQtHighlightEditCtrlInlay& surface() { return *inlay; }
    KVQtHighlightEditCtrlInlay::BACKEND& editor() { return inlay->editor; }
    OPTIONS& options() { return inlay->options; }

    QString text() const { return inlay->text(); }
    void setText(const QString& text) { inlay->setText(text); }
    bool holds(const QString& text) const { return inlay->holds(text); }
    void forgetHistory() { inlay->forgetHistory(); }

    void EnsureVisible(CARET caret, bool centre = false) { inlay->EnsureVisible(caret, centre); }
    void UpdateAllViews() { inlay->UpdateAllViews(); }

protected:
    void scrollContentsBy(int dx, int dy) override;

private:
    KVQtHighlightEditCtrlInlay* inlay;
};
