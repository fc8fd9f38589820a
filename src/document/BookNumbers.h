#pragma once

#include <QString>
#include <QStringList>

#include <set>
#include <string>

// The product numbers of the books in one folder. The files of a book are named by its number, so
// two books of one number would share their pictures and print images.

// The names of the other project files beside this one that have this number, in ascending order.
QStringList projectsOfSameNumber(const std::string& projectPath, int number);

// The next number from 900 to 999 that neither a project nor any other file of the project's folder
// has, nor one of the other books; 0 when all are taken.
int nextFreeNumber(const std::string& projectPath, const std::set<int>& ofOthers = {});

// The number in a project file; 0 when it has none, or cannot be read.
int numberOfBook(const std::string& projectPath);

// The names of what lies in the folder and is named by this number, as "900-bkgnd0.jpg", in
// ascending order.
QStringList filesOfNumber(const QString& folder, int number);
