#pragma once

#include <QString>

class QWidget;

// The three questions for a file. Each returns the path, or an empty text when the author
// cancelled.
QString askForProjectToOpen(QWidget* parent);
QString askForProjectToSave(QWidget* parent);
QString askForPicture(QWidget* parent);
