#include "editor/widget/KVQtFindDialog.h"

#include "editor/widget/SearchNote.h"
#include "qtsync/KVQtSync.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

KVQtFindDialog::KVQtFindDialog(QWidget* parent)
    : QDialog(parent),
      txFind(new QLineEdit(this)),
      txReplace(new QLineEdit(this)),
      btFind(new QPushButton(tr("&Find"), this)),
      btReplace(new QPushButton(tr("&Replace"), this)),
      btReplaceAll(new QPushButton(tr("Replace &All"), this)),
      chBackwards(new QCheckBox(tr("Search &backwards"), this)),
      lbReplace(new QLabel(tr("Replace with:"), this)),
      lbMessage(new QLabel(this))
{
    setWindowTitle(tr("Find and replace"));
    setObjectName("KVQtFindDialog");
    txFind->setObjectName("txFind");
    txReplace->setObjectName("txReplace");
    btFind->setObjectName("btFind");
    btReplace->setObjectName("btReplace");
    btReplaceAll->setObjectName("btReplaceAll");
    chBackwards->setObjectName("chBackwards");
    lbMessage->setObjectName("lbMessage");
    lbMessage->setMinimumHeight(lbMessage->fontMetrics().height());
    QSizePolicy keepsItsPlace = lbMessage->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    lbMessage->setSizePolicy(keepsItsPlace);
    lbMessage->hide();
    connect(txFind, &QLineEdit::textChanged, this, [this] { say(QString()); });

    txFind->setToolTip(tr("The text that is searched for; capital and small letters differ"));
    txReplace->setToolTip(tr("The text that takes its place; empty deletes what is found"));
    btFind->setToolTip(
        tr("Goes to the next place that holds the text (Return); F3 does it in the script"));
    btReplace->setToolTip(
        tr("Replaces what is selected, or else the next place that holds the text"));
    btReplaceAll->setToolTip(
        tr("Replaces the text wherever it stands in the script; Undo brings all of it back"));
    chBackwards->setToolTip(tr("Searches from the caret toward the beginning instead of the end"));

    QLabel* const lbFind = new QLabel(tr("Find &what:"), this);
    lbFind->setBuddy(txFind);
    lbReplace->setBuddy(txReplace);
    btFind->setDefault(true);

    QGridLayout* const grid = new QGridLayout(this);
    grid->addWidget(lbFind, 0, 0);
    grid->addWidget(txFind, 0, 1);
    grid->addWidget(btFind, 0, 2);
    grid->addWidget(lbMessage, 1, 1, 1, 2);
    grid->addWidget(lbReplace, 2, 0);
    grid->addWidget(txReplace, 2, 1);
    grid->addWidget(btReplace, 2, 2);
    grid->addWidget(chBackwards, 3, 1);
    grid->addWidget(btReplaceAll, 3, 2);
    grid->setRowStretch(4, 1);
}

void KVQtFindDialog::open_for(bool replace)
{
    say(QString());
    lbReplace->setVisible(replace);
    txReplace->setVisible(replace);
    txReplace->setEnabled(replace);
    btReplace->setVisible(replace);
    btReplaceAll->setVisible(replace);
    show();
    raise();
    activateWindow();
    txFind->setFocus();
    txFind->selectAll();
}

void KVQtFindDialog::say(const QString& message)
{
    lbMessage->setText(message);
    lbMessage->setVisible(!message.isEmpty());
    if (txFind->accessibleDescription() != message || !message.isEmpty()) {
        txFind->setAccessibleDescription(message);
    }
    if (isVisible() && !message.isEmpty()) {
        alertScreenReaders(*lbMessage);
    }
}

QString KVQtFindDialog::find_text() const
{
    return KVQt::getS(txFind);
}

void KVQtFindDialog::set_find_text(const QString& text)
{
    txFind->setText(text);
}

QString KVQtFindDialog::replace_text() const
{
    return KVQt::getS(txReplace);
}

bool KVQtFindDialog::backwards() const
{
    int checked = 0;
    KVQtSync sync(KVQtSync::FromWidgets);
    sync.syncI(checked, chBackwards);
    return checked == 1;
}

void KVQtFindDialog::set_backwards(bool backwards)
{
    KVQt::setI(backwards ? 1 : 0, chBackwards);
}
