#include "speech/tab/TrialSentences.h"

#include <QMap>
#include <QRegularExpression>

QString baseLanguage(const QString& language)
{
    return language.section(QRegularExpression("[-_]"), 0, 0).toLower();
}

QString trialSentence(const QString& language)
{
    static const QMap<QString, QString> sentences = {
        {"cs", "Dobré ráno! Kde se zase schovala malá kočka?"},
        {"da", "Godmorgen! Hvor har den lille kat nu gemt sig?"},
        {"de", "Guten Morgen! Wo hat sich die kleine Katze wieder versteckt?"},
        {"en", "Good morning! Where is the little cat hiding again?"},
        {"es", "¡Buenos días! ¿Dónde se ha vuelto a esconder la gatita?"},
        {"fi", "Hyvää huomenta! Minne pikku kissa on taas piiloutunut?"},
        {"fr", "Bonjour ! Où le petit chat s’est-il encore caché ?"},
        {"it", "Buongiorno! Dove si è nascosto di nuovo il gattino?"},
        {"nb", "God morgen! Hvor har den lille katten gjemt seg igjen?"},
        {"nl", "Goedemorgen! Waar heeft de kleine kat zich weer verstopt?"},
        {"no", "God morgen! Hvor har den lille katten gjemt seg igjen?"},
        {"pl", "Dzień dobry! Gdzie znowu schował się mały kotek?"},
        {"pt", "Bom dia! Onde é que o gatinho se escondeu outra vez?"},
        {"sv", "God morgon! Var har den lilla katten gömt sig igen?"}};
    return sentences.value(baseLanguage(language), sentences["en"]);
}
