#pragma once

#include <QDoubleSpinBox>

// A spin box for numbers of any size, shown without trailing zeros and with a point whatever the
// locale. Any text may be typed; what is no number counts as 0.
class KVQtNumEdit : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit KVQtNumEdit(QWidget* parent = nullptr);

    QValidator::State validate(QString& text, int& position) const override;
    // Prefix and suffix may be missing.
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;
    void stepBy(int steps) override;

    bool select_on_focus = true;  // gaining the focus selects the whole text

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int precisionFor(double value) const;
};
