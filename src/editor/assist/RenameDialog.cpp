#include "editor/assist/RenameDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

RenameDialog::RenameDialog(QWidget* parent, const QString& name, const QString& places,
                           Judge judging)
    : QDialog(parent),
      before(name),
      judge(std::move(judging)),
      nameField(new QLineEdit(name)),
      noteLabel(new QLabel)
{
    setObjectName("renameDialog");
    setWindowTitle(tr("Rename everywhere"));
    auto* const question = new QLabel(tr("&New name of \"%1\":").arg(name));
    question->setTextFormat(Qt::PlainText);
    question->setBuddy(nameField);
    nameField->setObjectName("renameField");
    nameField->setAccessibleName(tr("New name"));
    nameField->selectAll();
    auto* const count = new QLabel(places);
    count->setObjectName("renamePlaces");
    count->setTextFormat(Qt::PlainText);
    noteLabel->setObjectName("renameNote");
    noteLabel->setTextFormat(Qt::PlainText);
    noteLabel->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    rename = buttons->addButton(tr("Rename"), QDialogButtonBox::AcceptRole);
    rename->setObjectName("renameButton");
    auto* const column = new QVBoxLayout(this);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{question, nameField, noteLabel, count, buttons}) {
        column->addWidget(widget);
    }
    constexpr int kWidth = 44;  // letters
    nameField->setMinimumWidth(kWidth * fontMetrics().averageCharWidth());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(nameField, &QLineEdit::textChanged, this, &RenameDialog::judgeName);
    judgeName();
}

QString RenameDialog::name() const
{
    return nameField->text();
}

// Screen readers hear a change of what describes the field.
void RenameDialog::judgeName()
{
    const Verdict verdict = judge(name());
    noteLabel->setText(verdict.note);
    nameField->setAccessibleDescription(verdict.note);
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
    rename->setEnabled(verdict.isPossible && name() != before);
}
