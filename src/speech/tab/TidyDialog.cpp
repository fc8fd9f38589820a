#include "speech/tab/TidyDialog.h"

#include "speech/tab/TickTable.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

TidyDialog::TidyDialog(std::vector<File> unused, QWidget* parent)
    : QDialog(parent),
      files(std::move(unused)),
      table(new TickTable({tr("File"), tr("Kind")})),
      buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("tidyDialog");
    setWindowTitle(tr("Tidy"));
    auto* const about =
        new QLabel(tr("No text uses these audio files. Those with a tick go into the system's "
                      "trash, from where you can take them back."));
    about->setWordWrap(true);
    table->setObjectName("tidyTable");
    table->setAccessibleName(tr("Files that no text uses"));
    table->setAccessibleDescription(tr("Space sets or takes away the tick of the selected files"));
    for (const File& file : files) {
        table->addRow({QString::fromStdString(file.name),
                       file.isOurs ? tr("spoken by the speech program") : tr("your own")},
                      true);
    }
    table->fitColumns();
    table->setCurrentCell(0, 0);
    auto* const all = new QCheckBox(tr("&All files"));
    all->setObjectName("tidyAll");
    all->setToolTip(tr("Sets or takes away all ticks; only files with a tick go to the trash"));
    all->setChecked(true);
    connect(all, &QCheckBox::clicked, table, &TickTable::tickAll);
    QPushButton* const move = buttons->button(QDialogButtonBox::Ok);
    move->setText(tr("&Move to the trash"));
    move->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(table, &TickTable::ticksChanged, this, [this, all] {
        all->setChecked(table->countTicks() == table->rowCount());
        allowMove();
    });
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(about);
    rows->addWidget(table, 1);
    rows->addWidget(all);
    rows->addWidget(buttons);
    table->setFocus();
    resize(560, 420);
}

std::vector<std::string> TidyDialog::chosen() const
{
    std::vector<std::string> names;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->hasTick(row)) {
            names.push_back(files[static_cast<std::size_t>(row)].name);
        }
    }
    return names;
}

void TidyDialog::allowMove()
{
    buttons->button(QDialogButtonBox::Ok)->setEnabled(table->countTicks() > 0);
}
