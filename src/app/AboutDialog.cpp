#include "app/AboutDialog.h"

#include "base/AboutProgram.h"

#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QString libraryLines()
{
    QStringList lines;
    for (const UsedLibrary& library : usedLibraries()) {
        lines << QString::fromStdString(library.name + ": " + library.licence);
    }
    return lines.join('\n');
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName("aboutDialog");
    setWindowTitle(tr("About Plinkett"));
    auto* const icon = new QLabel;
    icon->setPixmap(QIcon(":/icons/plinkett.svg").pixmap(96));
    const QString version = QString::fromStdString(programVersion());
    auto* const text =
        new QLabel(QStringList{"Plinkett " + version, tr("Makes printed books and boards talk."),
                               "", "Qt " + QString::fromStdString(qtVersion()),
                               tr("Licence: %1").arg(QString::fromStdString(programLicence())), "",
                               tr("Libraries and their licences:"), libraryLines()}
                       .join('\n'));
    text->setObjectName("lbAbout");
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const content = new QHBoxLayout;
    content->addWidget(icon, 0, Qt::AlignTop);
    content->addWidget(text, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(content);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    buttons->button(QDialogButtonBox::Close)->setFocus();
}

void AboutDialog::addButton(QStatusBar& bar)
{
    auto* const button = new QToolButton;
    button->setObjectName("btAbout");
    button->setIcon(QIcon(":/icons/plinkett.svg"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(tr("About Plinkett"));
    button->setToolTip(
        tr("Tells the version, to be named when something goes wrong, and the licences"));
    bar.addPermanentWidget(button);
    connect(button, &QToolButton::clicked, &bar, [button] {
        auto* const dialog = new AboutDialog(button->window());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}
