// The translations: complete, and installed for the first language that there is one for.
#include "app/MainWindow.h"
#include "app/Translations.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
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

    void theDialogsButtonsSpeakTheLanguageOfTheWindow_data()
    {
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QStringList>("buttons");
        const QStringList english = {"Yes", "No",     "Yes to All", "No to All",
                                     "OK",  "Cancel", "Open",       "Save"};
        const QStringList german = {"Ja", "Nein",      "Ja, alle", "Nein, keine",
                                    "OK", "Abbrechen", "Öffnen",   "Speichern"};
        const QStringList french = {"Oui", "Non",     "Oui à tout", "Non à tout",
                                    "OK",  "Annuler", "Ouvrir",     "Enregistrer"};
        const QStringList dutch = {"Ja", "Nee",       "Ja op alles", "Nee op alles",
                                   "OK", "Annuleren", "Openen",      "Opslaan"};
        QTest::newRow("German") << QStringList{"de-DE"} << german;
        QTest::newRow("German of Austria") << QStringList{"de-AT"} << german;
        QTest::newRow("French") << QStringList{"fr-FR"} << french;
        QTest::newRow("Dutch") << QStringList{"nl-NL"} << dutch;
        QTest::newRow("English") << QStringList{"en-GB", "de-DE"} << english;
        QTest::newRow("one that only Qt has") << QStringList{"pl-PL"} << english;
        QTest::newRow("one that only Qt has, then French")
            << QStringList{"pl-PL", "fr-FR"} << french;
    }

    void theDialogsButtonsSpeakTheLanguageOfTheWindow()
    {
        QFETCH(QStringList, languages);
        const Translations translations(languages);
        QStringList buttons;
        for (const auto button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::YesToAll,
                                  QMessageBox::NoToAll, QMessageBox::Ok, QMessageBox::Cancel}) {
            QMessageBox box;
            buttons << box.addButton(button)->text().remove('&');
        }
        for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
            QFileDialog dialog;
            dialog.setOption(QFileDialog::DontUseNativeDialog);
            dialog.setAcceptMode(mode);
            buttons << dialog.findChild<QDialogButtonBox*>()->buttons()[0]->text().remove('&');
        }
        QTEST(buttons, "buttons");
    }

    void shortcutsAreTheSameInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"de", "en", "fr", "nl"}) {
            QTest::newRow(language) << language;
        }
    }

    void shortcutsAreTheSameInEveryLanguage()
    {
        QFETCH(QString, language);
        const Translations translations({language});
        const MainWindow window;
        const auto keys = [&](const char* action) {
            return window.findChild<QAction*>(action)->shortcut();
        };
        QCOMPARE(keys("action_Open"), QKeySequence(Qt::CTRL | Qt::Key_O));
        QCOMPARE(keys("actionSave"), QKeySequence(Qt::CTRL | Qt::Key_S));
        QCOMPARE(keys("action_Save_As"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    }

    void theTextsReturnToEnglishWithTheTranslations()
    {
        {
            const Translations german({"de-DE"});
            QCOMPARE(QCoreApplication::translate("MainWindow", "Project"), "Projekt");
        }
        QCOMPARE(QCoreApplication::translate("MainWindow", "Project"), "Project");
    }
};

QTEST_MAIN(TranslationTest)
#include "TranslationTest.moc"
