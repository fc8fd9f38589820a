#include "speech/tab/ImportDialog.h"

#include "speech/ReadingSheet.h"
#include "speech/tab/TickTable.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

enum Column { kFile, kText, kReason, kColumns };

QString nameOfFile(const std::string& path)
{
    return QFileInfo(QString::fromStdString(path)).fileName();
}

}  // namespace

ImportDialog::ImportDialog(const SpeechImport& found, const std::vector<SpeechText>& allTexts,
                           Oid::OidProject project, QWidget* parent)
    : QDialog(parent),
      texts(allTexts),
      book(std::move(project)),
      matches(found.taken),
      summary(new QLabel),
      table(new TickTable({tr("File"), tr("Text"), tr("What becomes of it")})),
      all(new QCheckBox(tr("&All that fit"))),
      progress(new QProgressBar),
      buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("importDialog");
    setWindowTitle(tr("Import recordings"));
    summary->setObjectName("importSummary");
    summary->setWordWrap(true);
    table->setObjectName("importTable");
    table->setAccessibleName(tr("Files and the texts that they fit"));
    table->setAccessibleDescription(tr("Space sets or takes away the tick of the selected files"));
    fill(found);
    table->fitColumns();
    table->setCurrentCell(0, 0);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(summary);
    rows->addWidget(table, 1);
    rows->addWidget(makeEnd());
    connect(table, &TickTable::ticksChanged, this, &ImportDialog::showCount);
    connect(&work, &SpeechWork::progressed, this, [this](int done, int total) {
        progress->setMaximum(total);
        progress->setValue(done);
    });
    connect(&work, &SpeechWork::ended, this, &ImportDialog::end);
    showCount();
    table->setFocus();
    resize(760, 460);
}

QWidget* ImportDialog::makeEnd()
{
    all->setObjectName("importAll");
    all->setToolTip(tr("Sets or takes away all ticks; only files with a tick are taken"));
    connect(all, &QCheckBox::clicked, table, &TickTable::tickAll);
    progress->setObjectName("importProgress");
    progress->setAccessibleName(tr("Taking the files..."));
    progress->setFormat(progress->accessibleName() + " %v/%m");
    progress->hide();
    QPushButton* const take = buttons->button(QDialogButtonBox::Ok);
    take->setText(tr("&Take over"));
    take->setToolTip(tr("Takes the files with a tick as the recordings of their texts"));
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    auto* const end = new QWidget;
    auto* const rows = new QVBoxLayout(end);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(all);
    rows->addWidget(progress);
    rows->addWidget(buttons);
    return end;
}

// --- What the files fit --------------------------------------------------------------------------

QString ImportDialog::nameOfText(std::size_t text) const
{
    const Utterance& said = texts[text].said;
    return QString::fromStdString(said.voice + ": " + said.text).simplified();
}

QString ImportDialog::planOf(const SpeechImport::Match& match) const
{
    QString plan = tr("fits by its name");
    if (match.way == SpeechImport::byText || match.way == SpeechImport::byWords) {
        plan = tr("fits by its text");
    } else if (match.way == SpeechImport::byNumber) {
        plan = tr("fits by its number");
    }
    const bool isRecorded = texts[match.text].state == SpeechState::recorded;
    return isRecorded ? tr("%1; takes the place of your recording, which is kept").arg(plan) : plan;
}

void ImportDialog::fill(const SpeechImport& found)
{
    for (const SpeechImport::Match& match : found.taken) {
        table->addRow({nameOfFile(match.file), nameOfText(match.text), planOf(match)}, true);
    }
    addDoubts(found.secondBest, tr("not taken: another file fits the text better"));
    addDoubts(found.rivals, tr("not taken: other files fit the text as well"));
    addDoubts(found.fitSeveral, tr("not taken: it fits several texts"));
    for (const std::string& file : found.fitNothing) {
        table->addRow({nameOfFile(file), {}, tr("not taken: it fits no text")}, false);
    }
}

void ImportDialog::addDoubts(const std::vector<SpeechImport::Doubt>& doubts, const QString& reason)
{
    for (const SpeechImport::Doubt& doubt : doubts) {
        QStringList meant;
        for (const std::size_t text : doubt.texts) {
            meant << nameOfText(text);
        }
        table->addRow({nameOfFile(doubt.file), meant.join(" / "), reason}, false);
    }
}

void ImportDialog::showCount()
{
    const int ticks = table->countTicks();
    summary->setText(tr("%1 of %2 files become recordings. Take away the tick of what is to be "
                        "left out.")
                         .arg(ticks)
                         .arg(table->rowCount()));
    all->setEnabled(!matches.empty());
    all->setChecked(ticks > 0 && ticks == static_cast<int>(matches.size()));
    buttons->button(QDialogButtonBox::Ok)->setEnabled(ticks > 0);
}

// --- Taking them over ----------------------------------------------------------------------------

void ImportDialog::accept()
{
    if (isDone) {
        QDialog::accept();
    } else if (!work.isBusy()) {
        begin();
    }
}

void ImportDialog::reject()
{
    if (work.isBusy()) {
        work.cancel();
    } else {
        QDialog::reject();
    }
}

void ImportDialog::begin()
{
    std::vector<SpeechJobs::Adoption> adoptions;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (table->hasTick(static_cast<int>(i))) {
            takenRows.push_back(static_cast<int>(i));
            adoptions.push_back({QString::fromStdString(matches[i].file), texts[matches[i].text]});
        }
    }
    reports = std::make_shared<std::vector<recording::FileReport>>();
    table->freezeTicks();
    all->hide();
    progress->setRange(0, 0);
    progress->show();
    buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    work.start(SpeechJobs::adopt(std::move(book), std::move(adoptions), reports));
}

void ImportDialog::end(const QStringList& sentences)
{
    told = sentences;
    isDone = true;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (!table->hasTick(static_cast<int>(i))) {
            table->setCell(static_cast<int>(i), kReason, tr("left out"));
        }
    }
    for (std::size_t i = 0; i < takenRows.size(); ++i) {
        const bool isReported = i < reports->size();
        const bool isTaken =
            isReported && (*reports)[i].done != recording::FileReport::Done::failed;
        const QString words = isReported ? (*reports)[i].text : tr("not taken");
        table->setCell(takenRows[i], kReason, isTaken ? tr("taken: %1").arg(words) : words);
    }
    progress->hide();
    summary->setText(sentences.join('\n'));
    buttons->setStandardButtons(QDialogButtonBox::Close);
    QPushButton* const close = buttons->button(QDialogButtonBox::Close);
    close->setDefault(true);
    close->setFocus();
    QAccessibleEvent alert(summary, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
