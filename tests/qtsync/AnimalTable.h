#pragma once

#include "qtsync/TableSync.h"

#include <QStandardItemModel>
#include <QTableWidget>

#include <array>
#include <vector>

// A form with a table of animals, as an application would bind it.
struct Animal
{
    KVString name;
    double speed = 0;
    int food = 0;
    int legs = 4;
    bool tame = false;

    bool operator==(const Animal& other) const
    {
        return name == other.name && speed == other.speed && food == other.food &&
               legs == other.legs && tame == other.tame;
    }
};

using Animals = std::vector<Animal>;

enum Column { kName, kSpeed, kFood, kLegs, kTame, kColumns };

inline void syncAnimal(KVQtSync::TableSync& table, Animal& animal)
{
    table.syncS(animal.name, "Name", "What the pen says");
    table.syncD(animal.speed, "Speed [km/h]");
    table.syncI(animal.food, "Food", "", {"hay", "grass", "corn"});
    table.syncI(animal.legs, "Legs");
    table.syncB(animal.tame, "Tame");
}

inline void fill(QTableView& view, Animals& animals)
{
    KVQtSync sync(KVQtSync::ToWidgets);
    KVQtSync::TableSync table(sync, &view);
    Animal header;
    syncAnimal(table, header);
    for (Animal& animal : animals) {
        table.nextRow();
        syncAnimal(table, animal);
    }
    table.finish();
}

// Reads all rows, those too that were added since filling.
inline Animals read(QTableView& view, Animals animals)
{
    KVQtSync sync(KVQtSync::FromWidgets);
    KVQtSync::TableSync table(sync, &view);
    Animal header;
    syncAnimal(table, header);
    while (table.nextRow()) {
        if (animals.size() <= size_t(table.currentRow())) {
            animals.emplace_back();
        }
        syncAnimal(table, animals[size_t(table.currentRow())]);
    }
    return animals;
}

inline Animals manyAnimals(int count)
{
    Animals animals;
    for (int i = 0; i < count; ++i) {
        Animal animal;
        animal.name.Format("animal %d", i);
        animal.speed = i / 8.0;
        animal.food = i % 3;
        animal.legs = i % 5;
        animal.tame = i % 2 == 1;
        animals.push_back(animal);
    }
    return animals;
}

// Both kinds of tables that know header items.
struct Views
{
    QTableWidget widget;
    QStandardItemModel model;
    QTableView view;

    Views() { view.setModel(&model); }
    std::array<QTableView*, 2> both() { return {&widget, &view}; }
};
