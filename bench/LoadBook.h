#pragma once

#include <QString>
#include <QStringList>

// A book of a size in a folder, with its pictures and a (short) sound for each of its texts, so
// that every command of plinkett-cli can be run on it.
struct LoadBook
{
    QString project;
    QString bookTest;     // a file
    QString printImage;   // where print makes that of the first page
    QString description;  // where yaml writes it
    QByteArray taps;      // a hundred lines for play
};

// What grows; everything else stays as small as it can be.
enum class Growing { pages, areas, lines, texts };

// The folder has to be there and be empty. Throws std::runtime_error when a sound or a picture
// cannot be made.
LoadBook makeLoadBook(Growing what, int size, const QString& folder);
