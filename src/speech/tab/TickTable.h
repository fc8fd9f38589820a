#pragma once

#include <QTableWidget>

// Files, a row each, of which the author takes those with a tick.
class TickTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit TickTable(const QStringList& headings, QWidget* parent = nullptr);

    // Without a tick where it cannot have one.
    void addRow(const QStringList& cells, bool canHaveTick);
    bool hasTick(int row) const;
    int countTicks() const;
    // To all that can have one.
    void tickAll(bool isTicked);
    void setCell(int row, int column, const QString& text);
    // From now on it only shows what there is.
    void freezeTicks();
    // So that what the columns hold can be read, as far as there is room.
    void fitColumns();

signals:
    void ticksChanged();

protected:
    // Space changes the ticks of all selected rows.
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool canHaveTick(int row) const;
};
