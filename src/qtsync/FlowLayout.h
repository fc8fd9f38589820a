#pragma once

#include <QLayout>
#include <QList>

// Controls beside each other, in as many rows as the width asks for, each in the middle of its row.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { items.append(item); }
    int count() const override { return items.size(); }
    QLayoutItem* itemAt(int index) const override { return items.value(index); }
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return arrange({0, 0, width, 0}, false); }
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& place) override;

private:
    struct Row
    {
        int end;  // the first item behind it
        int height;
    };

    Row rowFrom(int first, int width) const;
    int arrange(const QRect& place, bool really) const;

    QList<QLayoutItem*> items;
};
