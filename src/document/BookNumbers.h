#pragma once

#include <QString>
#include <QStringList>

#include <string>

// The product numbers of the books in one folder. The files of a book are named by its number, so
// two books of one number would share their pictures and print images.

// The names of the other project files beside this one that have this number, in ascending order.
QStringList projectsOfSameNumber(const std::string& projectPath, int number);

// The next number from 900 to 999 that neither a project nor any other file of the project's folder
// has; 0 when all are taken.
int nextFreeNumber(const std::string& projectPath);
