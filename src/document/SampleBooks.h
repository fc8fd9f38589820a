#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// The sample books that come with the program: a folder for each language, and in it one for each
// book, with its project file, its pictures and what else belongs to it.

struct SampleBook
{
    QString title;    // the name of the product, in the language of the book
    QString name;     // of its folder, the same in all languages: "farm"
    QString project;  // the path of its project file
};

// Where they lie: share/plinkett/samples beside the folder of the program, or beside the one above
// it. Empty when they are not there.
QString samplesFolder();

// The books of that folder in the first of the languages ("de-AT", "de", "fr") that it has, else in
// English; in the order of their names.
QVector<SampleBook> sampleBooks(const QString& folder, const QStringList& languages);

// Copies all that belongs to a book into a new folder. Returns the project file there, which its
// owner may write; empty when the folder is there already or cannot be made, or when a file cannot
// be copied: then nothing stays of it.
QString copySampleBook(const SampleBook& book, const QString& newFolder);
