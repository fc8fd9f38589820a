#pragma once

#include <QString>

class QWidget;

// The questions for a file. Each returns the path, or an empty text when the author
// cancelled.
QString askForProjectToOpen(QWidget* parent);
QString askForProjectToSave(QWidget* parent);
QString askForPicture(QWidget* parent);
// For a book test, in the folder and under the name that are suggested.
QString askForTestToSave(QWidget* parent, const QString& suggestion);
