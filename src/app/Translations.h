#pragma once

#include <QStringList>
#include <QTranslator>

// The texts of the program and of Qt's own dialogs (the buttons "Yes", "No", "Cancel" ...) in the
// first of the languages that there is a translation for. They hold while this lives.
class Translations
{
public:
    // The languages as QLocale::uiLanguages gives them, in their order.
    explicit Translations(const QStringList& languages);

private:
    QTranslator ours;
    QTranslator ofQt;
};

// Loads the first translation that there is for the languages. False when there is none: the texts
// then stay as they stand in the source.
bool loadTranslation(QTranslator& translator, const QStringList& languages);
// Loads Qt's own translation into a language, such as "de". False when it is not installed.
bool loadQtTranslation(QTranslator& translator, const QString& language);
