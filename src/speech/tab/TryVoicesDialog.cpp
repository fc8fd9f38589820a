#include "speech/tab/TryVoicesDialog.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include "speech/tab/LanguageBox.h"
#include "speech/tab/TrialSentences.h"
#include "speech/tab/VoiceTable.h"

namespace {

// That of the book, if it has another one than every script has, else the author's.
QString likelyLanguage(const Voices& voices)
{
    for (const auto& [name, voice] : voices) {
        if (voice.language != "en") {
            return QString::fromStdString(voice.language);
        }
    }
    return baseLanguage(QLocale().name());
}

QStringList likelyLanguages(const Voices& voices)
{
    QStringList languages = {"en", "de", "fr", "nl", likelyLanguage(voices)};
    for (const auto& [name, voice] : voices) {
        languages << QString::fromStdString(voice.language);
    }
    return languages;
}

QString reasonFor(SpokenTexts::Problem problem, const QString& words)
{
    switch (problem) {
    case SpokenTexts::Problem::tooLong:
        return TryVoicesDialog::tr("The sentence is too long for the speech program.");
    case SpokenTexts::Problem::noProgram:
        return TryVoicesDialog::tr("The speech program is not there.");
    case SpokenTexts::Problem::failed:
        break;
    }
    return words.isEmpty() ? TryVoicesDialog::tr("The speech program could not speak the sentence.")
                           : TryVoicesDialog::tr("The sentence was not spoken: %1").arg(words);
}

}  // namespace

TryVoicesDialog::TryVoicesDialog(const Voices& voices, QWidget* parent)
    : QDialog(parent),
      scriptVoices(voices),
      table(new VoiceTable(voices)),
      languages(new LanguageBox(likelyLanguages(voices))),
      sentence(new QLineEdit),
      name(new QLineEdit),
      preview(new QLabel),
      message(new QLabel),
      speech(SpokenTexts::usualFolder())
{
    setObjectName("tryVoicesDialog");
    setWindowTitle(tr("Try voices"));
    table->setObjectName("voiceTable");
    table->setAccessibleName(tr("Voices"));
    message->setObjectName("voiceMessage");
    message->setWordWrap(true);
    message->setTextFormat(Qt::PlainText);
    languages->choose(likelyLanguage(voices));
    auto* const all = new QVBoxLayout(this);
    all->addLayout(makeFields());
    all->addWidget(table, 1);
    all->addLayout(makePlayButtons());
    all->addWidget(message);
    all->addLayout(makeChoice());
    connect(table, &VoiceTable::currentCellChanged, this, &TryVoicesDialog::showVoice);
    connect(table, &VoiceTable::cellDoubleClicked, this, &TryVoicesDialog::play);
    connect(languages, &LanguageBox::languageChanged, this, [this] {
        stop();
        table->offer(languages->language());
        showVoice();
    });
    connectSpeech();
    table->offer(languages->language());
    showVoice();
    setBusy(false);
    table->setFocus();
    resize(640, 640);
    player.prepare();
}

TryVoicesDialog::~TryVoicesDialog() = default;

// --- What there is -------------------------------------------------------------------------------

QLayout* TryVoicesDialog::makeFields()
{
    sentence->setObjectName("voiceSentence");
    sentence->setToolTip(tr("What all voices of this language say; write what your book will say"));
    sentence->setAccessibleName(tr("Sentence"));
    languages->setAccessibleName(tr("Language"));
    languages->setObjectName("voiceLanguage");
    languages->setToolTip(
        tr("The language of the voices below those of the script, by age and sex"));
    auto* const form = new QFormLayout;
    form->addRow(tr("&Sentence:"), sentence);
    form->addRow(tr("&Language:"), languages);
    connect(sentence, &QLineEdit::textEdited, this, [this](const QString& text) {
        const ttbasic::VOICE& voice = table->voiceOf(table->currentRow());
        sentences[baseLanguage(QString::fromStdString(voice.language))] = text;
        setBusy(stopButton->isEnabled());
    });
    return form;
}

QPushButton* TryVoicesDialog::makeButton(const char* objectName, const QString& text,
                                         const QString& toolTip, void (TryVoicesDialog::*slot)())
{
    auto* const button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

QLayout* TryVoicesDialog::makePlayButtons()
{
    playButton = makeButton("btPlayVoice", tr("&Play"),
                            tr("Lets the chosen voice say the sentence"), &TryVoicesDialog::play);
    playButton->setDefault(true);
    playAllButton = makeButton("btPlayVoices", tr("Play &all"),
                               tr("Lets one voice after the other say the sentence"),
                               &TryVoicesDialog::playAll);
    stopButton = makeButton("btStopVoice", tr("S&top"),
                            tr("Ends the sound, also while one voice after the other speaks"),
                            &TryVoicesDialog::stop);
    auto* const row = new QHBoxLayout;
    row->addWidget(playButton);
    row->addWidget(playAllButton);
    row->addWidget(stopButton);
    row->addStretch();
    return row;
}

QLayout* TryVoicesDialog::makeChoice()
{
    name->setObjectName("voiceName");
    name->setToolTip(tr("The name of the voice in the script, which stands behind say"));
    name->setAccessibleName(tr("Name"));
    preview->setObjectName("voiceStatement");
    preview->setTextFormat(Qt::PlainText);
    preview->setWordWrap(true);
    preview->setTextInteractionFlags(Qt::TextSelectableByMouse);
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Close);
    QPushButton* const insert = buttons->button(QDialogButtonBox::Ok);
    insert->setText(tr("&Insert into the script"));
    insert->setToolTip(
        tr("Writes the statement below into the script, so that texts can be said by this voice"));
    insert->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &TryVoicesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TryVoicesDialog::reject);
    connect(name, &QLineEdit::textChanged, this, &TryVoicesDialog::showStatement);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Name:"), name);
    form->addRow(preview);
    form->addRow(buttons);
    return form;
}

void TryVoicesDialog::connectSpeech()
{
    connect(languages, &LanguageBox::incomplete, this, [this](const QString& words) {
        complain(words.isEmpty()
                     ? tr("The speech program does not tell its languages.")
                     : tr("The speech program does not tell its languages: %1").arg(words));
    });
    connect(&speech, &SpokenTexts::ready, this, [this](const QString& file) {
        say(tr("%1 speaks.").arg(speaker));
        player.play(file);
    });
    connect(&speech, &SpokenTexts::failed, this, [this](auto problem, const QString& words) {
        stop();
        complain(reasonFor(problem, words));
    });
    connect(&player, &SoundPlayer::ended, this, &TryVoicesDialog::playNext);
    connect(&player, &SoundPlayer::problem, this, &TryVoicesDialog::complain);
    connect(&player, &SoundPlayer::silent, this, &TryVoicesDialog::complain);
}

// --- What is shown -------------------------------------------------------------------------------

void TryVoicesDialog::showVoice()
{
    const int row = table->currentRow();
    name->setEnabled(!table->isOfScript(row));
    name->setText(QString::fromStdString(table->nameOf(row)));
    showSentence();
    showStatement();
}

void TryVoicesDialog::showSentence()
{
    const QString language =
        baseLanguage(QString::fromStdString(table->voiceOf(table->currentRow()).language));
    const QString text = sentences.value(language, trialSentence(language));
    if (text != sentence->text()) {
        sentence->setText(text);
        sentence->setCursorPosition(0);
    }
    setBusy(stopButton->isEnabled());
}

// Why the chosen voice cannot be inserted; empty when it can.
QString TryVoicesDialog::complaintOfName() const
{
    const std::string text = name->text().toStdString();
    if (table->isOfScript(table->currentRow())) {
        return tr("The script has this voice.");
    }
    if (!isVoiceName(text)) {
        return tr("A name has small letters from a to z, and digits behind them.");
    }
    if (scriptVoices.count(text) != 0) {
        return tr("The script has a voice of this name.");
    }
    return {};
}

void TryVoicesDialog::showStatement()
{
    const QString complaint = complaintOfName();
    preview->setText(complaint.isEmpty() ? statement() : complaint);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(complaint.isEmpty());
}

QString TryVoicesDialog::statement() const
{
    return QString::fromStdString(
        voiceStatement(name->text().toStdString(), table->voiceOf(table->currentRow())));
}

// What goes on; a complaint stays until the author asks for another voice.
void TryVoicesDialog::say(const QString& text)
{
    if (!hasComplained) {
        showMessage(text);
    }
}

void TryVoicesDialog::complain(const QString& text)
{
    hasComplained = true;
    showMessage(text);
}

void TryVoicesDialog::showMessage(const QString& text)
{
    message->setText(text);
    if (!text.isEmpty()) {
        QAccessibleEvent alert(message, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

// --- What is heard -------------------------------------------------------------------------------

void TryVoicesDialog::play()
{
    playRows({table->currentRow()});
}

void TryVoicesDialog::playAll()
{
    playRows(table->voiceRows());
}

void TryVoicesDialog::playRows(const std::vector<int>& rows)
{
    stop();
    hasComplained = false;
    waiting.assign(rows.begin(), rows.end());
    playNext();
}

void TryVoicesDialog::playNext()
{
    if (waiting.empty()) {
        stop();
        return;
    }
    const int row = waiting.front();
    waiting.pop_front();
    table->go(row);
    if (sentence->text().trimmed().isEmpty()) {
        playNext();
        return;
    }
    setBusy(true);
    speaker = QString::fromStdString(table->nameOf(row));
    say(tr("%1 takes a breath ...").arg(speaker));
    speech.want(sentence->text().toStdString(), table->voiceOf(row));
}

void TryVoicesDialog::stop()
{
    waiting.clear();
    speech.cancel();
    player.stop();
    say({});
    setBusy(false);
}

void TryVoicesDialog::setBusy(bool busy)
{
    const bool hasSentence = !sentence->text().trimmed().isEmpty();
    playButton->setEnabled(hasSentence);
    playAllButton->setEnabled(hasSentence);
    stopButton->setEnabled(busy);
}
