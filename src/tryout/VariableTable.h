#pragma once

#include "play/PlayedBook.h"

#include <QTableWidget>

#include <map>
#include <string>

// The variables of the script and their values, which can be edited. Those that the last tap has
// changed are marked.
class VariableTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { name, value, before };

    explicit VariableTable(QWidget* parent = nullptr);

    void showValues(const std::map<std::string, uint16_t>& values,
                    const std::map<std::string, play::Change>& changes);

signals:
    void edited(const QString& name, int value);

private:
    void fitNumbers(int column);
    void showRow(int row, const QString& variable, uint16_t now, const play::Change* change);

    bool showing = false;
};
