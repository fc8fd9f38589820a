#pragma once

#include <QFrame>

class QLabel;
class QScrollArea;

// The text that is read aloud, as large as the card allows.
class RecordCard : public QFrame
{
    Q_OBJECT

public:
    explicit RecordCard(QWidget* parent = nullptr);

    void showText(const QString& voice, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    QLabel* const speaker;
    QLabel* const words;
    QScrollArea* const area;
};
