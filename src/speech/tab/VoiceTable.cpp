#include "speech/tab/VoiceTable.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QSignalBlocker>

#include "speech/Engines.h"

namespace {

enum Column { kName, kLanguage, kSpeaker, kAge, kEngine, kColumns };

struct Kind
{
    const char* name;  // as a script may name the voice
    bool isFemale;
    int age;  // years
};

// One of each kind that the speech program tells apart.
constexpr Kind kKinds[] = {
    {QT_TRANSLATE_NOOP("VoiceTable", "girl"), true, 8},
    {QT_TRANSLATE_NOOP("VoiceTable", "boy"), false, 8},
    {QT_TRANSLATE_NOOP("VoiceTable", "sister"), true, 18},
    {QT_TRANSLATE_NOOP("VoiceTable", "brother"), false, 18},
    {QT_TRANSLATE_NOOP("VoiceTable", "mother"), true, 35},
    {QT_TRANSLATE_NOOP("VoiceTable", "father"), false, 35},
    {QT_TRANSLATE_NOOP("VoiceTable", "grandma"), true, 70},
    {QT_TRANSLATE_NOOP("VoiceTable", "grandpa"), false, 70},
};

QString speaker(const ttbasic::VOICE& voice)
{
    constexpr int kOldestChild = 12;  // years
    if (voice.age <= kOldestChild) {
        return voice.female ? VoiceTable::tr("Girl") : VoiceTable::tr("Boy");
    }
    return voice.female ? VoiceTable::tr("Woman") : VoiceTable::tr("Man");
}

QString engineName(const Engines& engines, const std::string& language)
{
    const Engine* const found = engines.find(language);
    return found == nullptr ? "espeak-ng"
                            : QFileInfo(QString::fromStdString(found->program())).fileName();
}

}  // namespace

VoiceTable::VoiceTable(Voices ofScript, QWidget* parent)
    : QTableWidget(0, kColumns, parent), scriptVoices(std::move(ofScript))
{
    setHorizontalHeaderLabels(
        {tr("Voice"), tr("Language"), tr("Speaker"), tr("Age"), tr("Engine")});
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
}

void VoiceTable::offer(const QString& language)
{
    {
        const QSignalBlocker notYet(this);
        const Engines engines = currentEngines();
        clearSpans();
        setRowCount(0);
        rows.clear();
        addHeading(tr("Voices of the script"));
        for (const auto& [name, voice] : scriptVoices) {
            addVoice({name, voice, true}, engines);
        }
        addHeading(tr("Other voices"));
        for (const Kind& kind : kKinds) {
            ttbasic::VOICE voice;
            voice.language = language.toStdString();
            voice.female = kind.isFemale;
            voice.age = kind.age;
            addVoice({freeVoiceName(tr(kind.name).toStdString(), scriptVoices), voice, false},
                     engines);
        }
    }
    resizeColumnsToContents();
    go(voiceRows().front());
    scrollToTop();
}

void VoiceTable::addCell(int column, const QString& text)
{
    setItem(rowCount() - 1, column, new QTableWidgetItem(text));
}

// Keys and mouse pass it by.
void VoiceTable::addHeading(const QString& text)
{
    rows.emplace_back();
    setRowCount(rowCount() + 1);
    addCell(kName, text);
    QTableWidgetItem* const heading = item(rowCount() - 1, kName);
    heading->setFlags(Qt::NoItemFlags);
    heading->setForeground(palette().text());
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    setSpan(rowCount() - 1, kName, 1, kColumns);
}

void VoiceTable::addVoice(const Row& row, const Engines& engines)
{
    rows.push_back(row);
    setRowCount(rowCount() + 1);
    addCell(kName, QString::fromStdString(row.name));
    addCell(kLanguage, QString::fromStdString(row.voice.language));
    addCell(kSpeaker, speaker(row.voice));
    addCell(kAge, QString::number(row.voice.age));
    addCell(kEngine, engineName(engines, row.voice.language));
}

std::vector<int> VoiceTable::voiceRows() const
{
    std::vector<int> numbers;
    for (size_t i = 0; i < rows.size(); ++i) {
        if (!rows[i].name.empty()) {
            numbers.push_back(static_cast<int>(i));
        }
    }
    return numbers;
}
