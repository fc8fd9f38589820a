#include "speech/tab/LanguageBox.h"

#include <QLocale>
#include <QTimer>

#include "speech/SpeechProgram.h"

namespace {

// "Deutsch (de)". Of a region, which need not be one of the system's, the title tells.
QString shownName(const QString& language, const QString& title)
{
    const QLocale locale(language);
    const bool isKnown = locale.language() != QLocale::C && locale.bcp47Name() == language;
    QString name = isKnown ? locale.nativeLanguageName() : title;
    if (name.isEmpty()) {
        return language;
    }
    if (language == "en") {
        name = "English";  // for the system it is American
    }
    return name.replace(0, 1, name.at(0).toUpper()) + " (" + language + ")";
}

}  // namespace

LanguageBox::LanguageBox(const QStringList& languages, QWidget* parent) : QComboBox(parent)
{
    for (const QString& language : languages) {
        add(language, {});
    }
    noticeChoice();
    connect(this, qOverload<int>(&LanguageBox::currentIndexChanged), this,
            &LanguageBox::noticeChoice);
    connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &LanguageBox::takeLanguages);
    putToolsOnPath();
    if (!program.start("Text2Speech.exe", {"-l"}, false)) {
        QTimer::singleShot(0, this, [this] { emit incomplete({}); });
    }
}

LanguageBox::~LanguageBox()
{
    process.disconnect(this);
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
}

void LanguageBox::choose(const QString& language)
{
    setCurrentIndex(findData(language));
}

// The place of a language changes, too, when others come.
void LanguageBox::noticeChoice()
{
    const QString language = currentData().toString();
    if (language != chosen) {
        chosen = language;
        emit languageChanged();
    }
}

// In the order of what is shown.
void LanguageBox::add(const QString& language, const QString& title)
{
    if (findData(language) >= 0) {
        return;
    }
    const QString shown = shownName(language, title);
    int place = 0;
    while (place < count() && itemText(place).localeAwareCompare(shown) < 0) {
        ++place;
    }
    insertItem(place, shown, language);
}

// "de                   German, by flite"; "*" is no language.
void LanguageBox::takeLanguages()
{
    const QString list = QString::fromUtf8(process.readAllStandardOutput());
    for (const QString& line : list.split('\n', Qt::SkipEmptyParts)) {
        const QString language = line.section(' ', 0, 0, QString::SectionSkipEmpty);
        if (language != "*") {
            add(language,
                line.section(' ', 1, -1, QString::SectionSkipEmpty).section(", by ", 0, 0));
        }
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        emit incomplete(QString::fromUtf8(process.readAllStandardError()).simplified());
    }
}
