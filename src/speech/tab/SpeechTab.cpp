#include "speech/tab/SpeechTab.h"

#include "qtsync/FlowLayout.h"
#include "qtsync/ToolTip.h"
#include "speech/tab/SpeechView.h"

#include <QAction>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <set>

namespace {

constexpr std::array kStates = {SpeechState::missing, SpeechState::spoken, SpeechState::recorded,
                                SpeechState::stale, SpeechState::refused};
constexpr int kMostSentences = 4;  // the others are in the tool tip

bool isRecorded(const SpeechText& text)
{
    return text.state == SpeechState::recorded;
}

}  // namespace

SpeechTab::SpeechTab(BookSource bookSource, QWidget* parent)
    : QWidget(parent),
      table(new SpeechView(filter)),
      summary(new QLabel),
      source(std::move(bookSource)),
      watch(
          source,
          [this](BookState& state, const std::atomic<bool>& isCancelled) {
              return search.find(state, isCancelled);
          },
          [this](SpeechFindings findings) { show(std::move(findings)); })
{
    summary->setObjectName("lbSpeechSummary");
    summary->setWordWrap(true);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(4, 4, 4, 4);
    rows->setSpacing(4);
    rows->addWidget(makeFilters());
    rows->addWidget(summary);
    rows->addWidget(table, 1);
    result = new QLabel;
    result->setObjectName("lbSpeechResult");
    result->setWordWrap(true);
    result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    result->hide();
    rows->addWidget(result);
    rows->addWidget(makeProgress());
    rows->addWidget(makeButtons());
    connectTable();
    connect(&files, &QFileSystemWatcher::directoryChanged, this, &SpeechTab::lookSoon);
    connect(&lengths, &SpeechLengths::found, this, &SpeechTab::lookSoon);
    connect(&work, &SpeechWork::progressed, this, [this](int done, int total) {
        progress->setMaximum(total);
        progress->setValue(done);
    });
    connect(&work, &SpeechWork::ended, this, &SpeechTab::end);
    connect(&player, &SoundPlayer::ended, this, &SpeechTab::playNext);
    connect(&player, &SoundPlayer::problem, this, &SpeechTab::told);
    connect(&player, &SoundPlayer::silent, this, &SpeechTab::told);
    showSummary();
    allowCommands();
    lookSoon();
}

SpeechTab::~SpeechTab() = default;

// --- What there is -------------------------------------------------------------------------------

QWidget* SpeechTab::makeFilters()
{
    words = new QLineEdit;
    words->setObjectName("txSpeechSearch");
    words->setPlaceholderText(tr("Search"));
    words->setAccessibleName(tr("Search in the texts"));
    words->setToolTip(
        tr("Shows only texts that hold these words, to find one among many; empty shows all"));
    words->setAcceptDrops(false);
    connect(words, &QLineEdit::textChanged, &filter, &SpeechFilter::search);

    states = new QComboBox;
    states->setObjectName("cbSpeechState");
    states->setAccessibleName(tr("State"));
    states->setToolTip(tr("Shows only texts of this state, such as those that are missing still"));
    states->addItem(tr("All states"));
    for (const SpeechState state : kStates) {
        states->addItem(SpeechModel::nameOf(state));
    }
    connect(states, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        filter.showState(index > 0 ? std::optional(kStates[static_cast<std::size_t>(index) - 1])
                                   : std::nullopt);
    });

    voices = new QComboBox;
    voices->setObjectName("cbSpeechVoice");
    voices->setAccessibleName(tr("Voice"));
    voices->setToolTip(tr("Shows only texts of this voice, such as those that one person records"));
    voices->addItem(tr("All voices"));
    voices->setMinimumContentsLength(10);
    connect(voices, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { filter.showVoice(index > 0 ? voices->itemText(index) : ""); });

    auto* const filters = new QWidget;
    auto* const row = new QHBoxLayout(filters);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(words, 1);
    row->addWidget(states);
    row->addWidget(voices);
    return filters;
}

// The command stands in the menu of the table, too.
QAction* SpeechTab::addCommand(QLayout& row, const char* name, const QString& text,
                               const QString& toolTip, void (SpeechTab::*command)())
{
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(withKey(toolTip, button->shortcut()));
    button->setAutoDefault(false);
    row.addWidget(button);
    auto* const action = new QAction(text, this);
    table->addAction(action);
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::triggered, this, command);
    connect(action, &QAction::changed, button, [button, action, toolTip] {
        button->setText(action->text());
        button->setToolTip(withKey(toolTip, button->shortcut()));
        button->setEnabled(action->isEnabled());
    });
    return action;
}

QWidget* SpeechTab::makeProgress()
{
    progress = new QProgressBar;
    progress->setObjectName("speechProgress");
    auto* const cancel = new QPushButton(tr("Cancel"));
    cancel->setObjectName("btSpeechCancel");
    cancel->setToolTip(tr("Ends what is being made; what is done stays"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, &work, &SpeechWork::cancel);
    progressRow = new QWidget;
    auto* const row = new QHBoxLayout(progressRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(progress, 1);
    row->addWidget(cancel);
    progressRow->hide();
    return progressRow;
}

QWidget* SpeechTab::makeButtons()
{
    auto* const buttons = new QWidget;
    auto* const row = new FlowLayout(buttons);
    playing =
        addCommand(*row, "btSpeechPlay", tr("&Play"),
                   tr("Plays the selected texts, one after the other, or stops"), &SpeechTab::play);
    speaking = addCommand(*row, "btSpeak", tr("&Speak"),
                          tr("Has the selected texts spoken that are missing or out of date; "
                             "without a selection all of them"),
                          &SpeechTab::speak);
    recording = addCommand(*row, "btRecord", tr("Re&cord..."),
                           tr("Records texts with the microphone, one after the other, beginning "
                              "with the selected one"),
                           &SpeechTab::record);
    usingFile = addCommand(*row, "btUseFile", tr("&Use file..."),
                           tr("Takes a sound file for the selected text; one can also be dropped "
                              "on a row"),
                           &SpeechTab::useFile);
    takingBack = addCommand(*row, "btTakeBack", tr("Take &back"),
                            tr("Puts the selected recordings into the trash, so that the texts "
                               "are spoken again"),
                            &SpeechTab::takeBack);
    eveningOut = addCommand(*row, "btEvenOut", tr("&Even out"),
                            tr("Makes the selected texts equally loud; without a selection all"),
                            &SpeechTab::evenOut);
    addCommand(*row, "btTryVoices", tr("Try &voices..."),
               tr("Lets you hear one sentence in many voices, and writes the one that you like "
                  "into the script"),
               &SpeechTab::tryVoices);
    importing = addCommand(*row, "btImportFolder", tr("&Import folder..."),
                           tr("Takes recordings from a folder; one can also be dropped on the "
                              "table"),
                           &SpeechTab::importFolder);
    printingSheet = addCommand(*row, "btPrintSheet", tr("Prin&t sheet..."),
                               tr("Makes a PDF to be printed, from which somebody reads the "
                                  "selected texts; without a selection all"),
                               &SpeechTab::printSheet);
    savingSheet = addCommand(*row, "btSaveSheet", tr("Save s&heet..."),
                             tr("Saves the sheet to read the selected texts from as a text; "
                                "without a selection all"),
                             &SpeechTab::saveSheet);
    tidying = addCommand(*row, "btTidy", tr("Ti&dy..."),
                         tr("Lists the audio files that no text uses, and moves them to the trash"),
                         &SpeechTab::tidy);
    return buttons;
}

void SpeechTab::connectTable()
{
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(table, &SpeechView::playAsked, this, &SpeechTab::playRow);
    connect(table, &SpeechView::lineAsked, this, &SpeechTab::goTo);
    connect(table, &SpeechView::rowClicked, this, [this](int row) {
        if (const int line = textOf(row).place.line; line > 0) {
            emit lineShown(line);
        }
    });
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SpeechTab::allowCommands);
    connect(table, &SpeechView::fileDropped, this,
            [this](int row, const QString& path) { adoptFile(path, textOf(row)); });
    connect(table, &SpeechView::filesDropped, this, &SpeechTab::importFiles);
}

// Files may have come while the author was elsewhere.
void SpeechTab::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    lookSoon();
}

// The loudspeaker is left to others.
void SpeechTab::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    stop();
    player.release();
}

// --- Showing -------------------------------------------------------------------------------------

void SpeechTab::show(SpeechFindings findings)
{
    folder = findings.audioFolder;
    problem = findings.problem;
    scriptVoices = findings.voices;
    model.show(std::move(findings.rows));
    lengths.read(std::move(findings.unread));
    showVoices();
    showSummary();
    watchFolder();
    allowCommands();
}

// The voice that was chosen stays chosen as long as there is one of that name.
void SpeechTab::showVoices()
{
    std::set<QString> names;
    for (const SpeechRow& row : model.all()) {
        names.insert(QString::fromStdString(row.text.said.voice));
    }
    const QString chosen = voices->currentIndex() > 0 ? voices->currentText() : QString();
    bool isThere = chosen.isEmpty();
    {
        const QSignalBlocker filling(voices);
        while (voices->count() > 1) {
            voices->removeItem(1);
        }
        for (const QString& name : names) {
            voices->addItem(name);
            if (name == chosen) {
                voices->setCurrentIndex(voices->count() - 1);
                isThere = true;
            }
        }
    }
    if (!isThere) {
        filter.showVoice({});
    }
}

void SpeechTab::showSummary()
{
    if (folder.isEmpty()) {
        summary->setText(tr("Save the project first: its audio files lie in a folder beside it."));
        return;
    }
    std::array<int, kStates.size()> counts{};
    for (const SpeechRow& row : model.all()) {
        ++counts[static_cast<std::size_t>(row.text.state)];
    }
    QStringList parts;
    for (const SpeechState state : kStates) {
        if (const int count = counts[static_cast<std::size_t>(state)]; count > 0) {
            parts << tr("%1 %2").arg(QString::number(count), SpeechModel::nameOf(state));
        }
    }
    const QString texts =
        model.all().size() == 1 ? tr("1 text") : tr("%1 texts").arg(model.all().size());
    summary->setText(tr("%1: %2").arg(texts, parts.join(", ")) +
                     (problem.isEmpty() ? QString() : '\n' + problem));
}

// A folder that is not there yet comes into the one around it.
void SpeechTab::watchFolder()
{
    QStringList wanted;
    if (!folder.isEmpty()) {
        wanted << (QFileInfo(folder).isDir() ? folder : QFileInfo(folder).path());
    }
    if (files.directories() != wanted) {
        if (!files.directories().isEmpty()) {
            files.removePaths(files.directories());
        }
        files.addPaths(wanted);
    }
}

void SpeechTab::allowCommands()
{
    const std::vector<int> selected = selectedRows();
    playing->setEnabled(player.isPlaying() ||
                        std::any_of(selected.begin(), selected.end(), [this](int row) {
                            return SpeechModel::hasFile(model.row(row).text);
                        }));
    playing->setText(player.isPlaying() ? tr("Sto&p") : tr("&Play"));

    const bool mayMake = !folder.isEmpty() && !work.isBusy() && !isBuilding;
    const auto isAny = [&](bool (*isMeant)(const SpeechText&)) {
        return mayMake && std::any_of(selected.begin(), selected.end(),
                                      [&](int row) { return isMeant(model.row(row).text); });
    };
    const auto isInBook = [&](bool (*isMeant)(const SpeechText&)) {
        return std::any_of(model.all().begin(), model.all().end(),
                           [&](const SpeechRow& row) { return isMeant(row.text); });
    };
    const auto isAnyOrNone = [&](bool (*isMeant)(const SpeechText&)) {
        return isAny(isMeant) || (mayMake && selected.empty() && isInBook(isMeant));
    };
    speaking->setEnabled(isAnyOrNone(needsSpeech));
    recording->setEnabled(isAnyOrNone(takesFile));
    usingFile->setEnabled(selected.size() == 1 && isAny(takesFile));
    takingBack->setEnabled(isAny(isRecorded));
    eveningOut->setEnabled(isAnyOrNone(SpeechModel::hasFile));
    importing->setEnabled(mayMake);
    printingSheet->setEnabled(isAnyOrNone(takesFile));
    savingSheet->setEnabled(isAnyOrNone(takesFile));
    tidying->setEnabled(mayMake);
}

void SpeechTab::setBuilding(bool building)
{
    isBuilding = building;
    allowCommands();
}

void SpeechTab::forget()
{
    work.cancel();
    stop();
    say({});
}

void SpeechTab::showProgress(const QString& what)
{
    progress->setRange(0, 0);
    progress->setFormat(what + " %v/%m");
    progress->setAccessibleName(what);
    progressRow->show();
}

void SpeechTab::say(const QStringList& sentences)
{
    result->setText(sentences.mid(0, kMostSentences).join('\n'));
    result->setToolTip(sentences.join('\n'));
    result->setVisible(!sentences.isEmpty());
    emit told(sentences.value(0));
}

// --- The script ----------------------------------------------------------------------------------

std::vector<int> SpeechTab::selectedRows() const
{
    std::vector<int> shown;
    for (const QModelIndex& index : table->selectionModel()->selectedRows()) {
        shown.push_back(index.row());
    }
    std::sort(shown.begin(), shown.end());
    for (int& row : shown) {
        row = filter.mapToSource(filter.index(row, 0)).row();
    }
    return shown;
}

const SpeechText& SpeechTab::textOf(int shownRow) const
{
    return model.row(filter.mapToSource(filter.index(shownRow, 0)).row()).text;
}

void SpeechTab::goTo(int shownRow)
{
    emit lineAsked(textOf(shownRow).place.line);
}

// --- Playing -------------------------------------------------------------------------------------

void SpeechTab::play()
{
    if (player.isPlaying()) {
        stop();
        return;
    }
    for (const int row : selectedRows()) {
        if (SpeechModel::hasFile(model.row(row).text)) {
            toPlay.push_back(model.row(row).text.file);
        }
    }
    std::reverse(toPlay.begin(), toPlay.end());
    playNext();
}

void SpeechTab::playRow(int shownRow)
{
    const SpeechText& text = textOf(shownRow);
    const bool wasHeard = model.isPlaying(text.file);
    stop();
    if (wasHeard) {
        return;
    }
    if (SpeechModel::hasFile(text)) {
        toPlay = {text.file};
        playNext();
    } else {
        emit told(tr("This text has no audio file yet."));
    }
}

void SpeechTab::playNext()
{
    if (toPlay.empty()) {
        stop();
        return;
    }
    const std::string file = toPlay.back();
    toPlay.pop_back();
    model.setPlaying(file);
    player.play(QString::fromStdString(file));
    allowCommands();
}

void SpeechTab::stop()
{
    toPlay.clear();
    player.stop();
    model.setPlaying({});
    allowCommands();
}
