#pragma once

#include <QStringList>

class QWidget;

// The questions for a file. Each returns the path, or an empty text when the author
// cancelled.
QString askForProjectToOpen(QWidget* parent);
QString askForProjectToSave(QWidget* parent);
QString askForPicture(QWidget* parent);
// For several at once, in the order of their names; "page 10" comes behind "page 9".
QStringList askForPictures(QWidget* parent);
// For a folder that is there. The question begins in another one.
QString askForFolder(QWidget* parent, const QString& title, const QString& beginIn);
// For a book test, in the folder and under the name that are suggested.
QString askForTestToSave(QWidget* parent, const QString& suggestion);
