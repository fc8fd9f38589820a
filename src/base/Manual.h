#pragma once

#include <QString>
#include <QStringList>

// The manual, one HTML file for each language that it has. Both are empty when it is not there.

// All of its files, English first.
QStringList manualFiles();
// That of the first of the languages ("de-AT", "de", "fr") that it has, else the English one.
QString manualFile(const QStringList& languages);
