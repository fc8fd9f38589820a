// The translations: complete, and installed for the first language that there is one for.
#include "app/Translations.h"

#include <QFile>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

// The source texts that a translation file holds, each behind its context: "MainWindow/Project".
// Those without a translation are added to unfinished.
QStringList sourceTexts(const QString& file, QStringList* unfinished)
{
    QFile ts(file);
    QStringList texts;
    if (!ts.open(QIODevice::ReadOnly)) {
        return texts;
    }
    QXmlStreamReader xml(&ts);
    QString context, source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = context + "/" + xml.readElementText();
            texts << source;
        } else if (xml.name() == QLatin1String("translation")) {
            const bool open = xml.attributes().hasAttribute("type");
            if (open || xml.readElementText().isEmpty()) {
                *unfinished << source;
            }
        }
    }
    texts.sort();
    return texts;
}

QString ts(const char* locale)
{
    return QString(PLINKETT_SOURCE_DIR "/i18n/Plinkett_%1.ts").arg(locale);
}

}  // namespace

class TranslationTest : public QObject
{
    Q_OBJECT

private slots:
    void isComplete_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* const locale : {"de", "en", "fr", "nl"}) {
            QTest::newRow(locale) << ts(locale);
        }
    }

    // Compared with what lupdate finds in the sources now; the build makes that list beside the
    // test.
    void isComplete()
    {
        QFETCH(QString, file);
        QStringList unfinished;
        QStringList ignored;
        const QStringList texts = sourceTexts(file, &unfinished);
        QCOMPARE(unfinished, QStringList());
        QCOMPARE(texts, sourceTexts(PLINKETT_CURRENT_TEXTS, &ignored));
        QVERIFY(!texts.isEmpty());
    }

    void isCompiledIn_data() { isComplete_data(); }

    void isCompiledIn()
    {
        QTranslator translator;
        const QString name = QString(":/i18n/Plinkett_") + QTest::currentDataTag();
        QVERIFY(translator.load(name, ""));
    }

    void theFirstLanguageThatIsThereIsInstalled()
    {
        const auto loaded = [](const QStringList& languages) {
            QTranslator translator;
            return loadTranslation(translator, languages)
                       ? translator.translate("MainWindow", "Project")
                       : QString("none");
        };
        QCOMPARE(loaded({"pt-BR", "de-DE"}), "Projekt");
        QCOMPARE(loaded({"de-CH", "fr-FR"}), "Projekt");
        QCOMPARE(loaded({"fr-FR", "de-DE"}), "Projet");
        QCOMPARE(loaded({"nl"}), "Project");
        QCOMPARE(loaded({"en-GB", "de-DE"}), "Project");
        QCOMPARE(loaded({"ja-JP"}), "none");
    }
};

QTEST_GUILESS_MAIN(TranslationTest)
#include "TranslationTest.moc"
