#include "app/Translations.h"

#include <QLocale>
#include <QTranslator>

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
