#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

Translations::Translations(const QStringList& languages)
{
    if (!loadTranslation(ours, languages)) {
        return;
    }
    QCoreApplication::installTranslator(&ours);
    // The language of ours, not the author's first one: a window speaks one language.
    if (loadQtTranslation(ofQt, ours.language())) {
        QCoreApplication::installTranslator(&ofQt);
    }
}

bool loadTranslation(QTranslator& translator, const QStringList& languages)
{
    Q_INIT_RESOURCE(translations);  // a resource in a library is there once it is asked for
    for (const QString& language : languages) {
        // load also tries the name without its country, so that de_CH finds de.
        if (translator.load(":/i18n/Plinkett_" + QLocale(language).name(), "")) {
            return true;
        }
    }
    return false;
}

bool loadQtTranslation(QTranslator& translator, const QString& language)
{
    const QString name = "qtbase_" + language;
    return translator.load(name, QLibraryInfo::location(QLibraryInfo::TranslationsPath)) ||
           translator.load(name, ":/i18n");
}
