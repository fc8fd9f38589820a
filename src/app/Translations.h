#pragma once

#include <QStringList>

class QTranslator;

// Loads the first translation that there is for the languages (as QLocale::uiLanguages gives them),
// in their order. False when there is none: the texts then stay as they stand in the source.
bool loadTranslation(QTranslator& translator, const QStringList& languages);
