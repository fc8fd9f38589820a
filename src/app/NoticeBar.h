#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;

// A line above the tabs that tells something and offers what can be done about it. Nothing waits
// for it: work goes on, with the line there or not. It is hidden until it has something to tell.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    // The name is the bar's object name; its text is a label of that name with "Text" behind it.
    explicit NoticeBar(const QString& name, QWidget* parent = nullptr);

    // A further button at the end of the line. The keys press it from anywhere in the window, and
    // the tool tip is completed with them. The bar owns it.
    QPushButton* addButton(const QString& name, const QString& text, const QString& toolTip,
                           const QKeySequence& keys);

    // Shows the bar with this text; screen readers say it.
    void tell(const QString& message);

    void setVisible(bool visible) override;

signals:
    // Said before it happens, so that room can be made.
    void appears(bool visible);

private:
    QHBoxLayout* line;
    QLabel* text;
};
