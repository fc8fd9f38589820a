#include "app/NewBookDialog.h"

#include "app/FileDialogs.h"
#include "app/ProductNameNote.h"
#include "app/ScreenFit.h"
#include "app/WorkProgress.h"
#include "document/BookNumbers.h"
#include "oid/PictureFile.h"
#include "qtsync/ToolTip.h"

#include <QAccessible>
#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>

#include <set>

namespace {

constexpr int kMostTyped = 99999;  // a number that is too high is told, not cut

QLabel* note(const char* name)
{
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

// Long paths are broken behind the names of their folders.
QString breakable(QString text)
{
    const QChar noSpace(0x200B);
    return text.replace('/', QString('/') + noSpace).replace('\\', QString('\\') + noSpace);
}

QStringList filesOf(const QListWidget& pages)
{
    QStringList files;
    for (int row = 0; row < pages.count(); ++row) {
        files << pages.item(row)->data(Qt::UserRole).toString();
    }
    return files;
}

}  // namespace

NewBookDialog::NewBookDialog(QString inFolder, std::map<int, QString> others, QWidget* parent)
    : QDialog(parent),
      folderOfBooks(std::move(inFolder)),
      otherBooks(std::move(others)),
      name(new QLineEdit),
      number(new QSpinBox),
      numberNote(note("lbNewBookNumber")),
      folder(new QLineEdit),
      pages(new QListWidget),
      message(note("lbNewBookProblem")),
      buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("newBookDialog");
    setWindowTitle(tr("New book"));
    auto* const form = makeForm();
    auto* const scroll = new QScrollArea;  // what a small screen has no room for
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(form);
    scroll->viewport()->setAutoFillBackground(false);
    form->setAutoFillBackground(false);
    auto* const all = new QVBoxLayout(this);
    all->addWidget(scroll, 1);
    all->addWidget(message);
    all->addWidget(buttons);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Make the book"));
    connect(buttons, &QDialogButtonBox::accepted, this, &NewBookDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NewBookDialog::reject);
    name->setFocus();
    nameTyped();
    resize(form->sizeHint() + QSize(120, 120));
    shrinkOntoScreen(*this);
}

QWidget* NewBookDialog::makeForm()
{
    auto* const content = new QWidget;
    auto* const form = new QFormLayout(content);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    name->setObjectName("txNewBookName");
    name->setAcceptDrops(false);
    name->setToolTip(tr("The name of the book, which the pen says when it is switched on"));
    connect(name, &QLineEdit::textEdited, this, &NewBookDialog::nameTyped);
    form->addRow(tr("Name:"), name);

    number->setObjectName("txNewBookNumber");
    number->setRange(0, kMostTyped);
    number->setToolTip(
        tr("%1 to %2, another one for each book on the pen; 900 to 950 are for books "
           "of your own")
            .arg(NewBook::kFirstNumber)
            .arg(NewBook::kLastNumber));
    connect(number, qOverload<int>(&QSpinBox::valueChanged), this, [this] {
        numberChosen = true;
        showState();
    });
    form->addRow(tr("Number:"), number);
    form->addRow(numberNote);
    form->addRow(tr("Folder:"), makeFolder());
    auto* const pagesLabel = note("lbNewBookPages");
    pagesLabel->setText(tr("Pictures of the pages, which can also come later:"));
    form->addRow(pagesLabel);
    form->addRow(makePages());
    return content;
}

QWidget* NewBookDialog::makeFolder()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    folder->setObjectName("txNewBookFolder");
    folder->setAcceptDrops(false);
    folder->setAccessibleName(tr("Folder"));
    folder->setToolTip(tr("Where all files of the book lie; it is made when it is not there"));
    connect(folder, &QLineEdit::textEdited, this, [this] {
        folderChosen = true;
        suggestNumber();
    });
    auto* const choose = new QPushButton(tr("Choose..."));
    choose->setObjectName("btNewBookFolder");
    choose->setToolTip(tr("Chooses a folder that is there"));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &NewBookDialog::chooseFolder);
    layout->addWidget(folder, 1);
    layout->addWidget(choose);
    row->setFocusProxy(folder);
    return row;
}

QWidget* NewBookDialog::makePages()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    pages->setObjectName("newBookPages");
    pages->setAccessibleName(tr("Pictures of the pages"));
    pages->setDragDropMode(QAbstractItemView::InternalMove);
    pages->setDefaultDropAction(Qt::MoveAction);
    pages->setMinimumHeight(pages->fontMetrics().height() * 5);
    connect(pages, &QListWidget::currentRowChanged, this, &NewBookDialog::showState);
    connect(pages->model(), &QAbstractItemModel::rowsMoved, this, &NewBookDialog::showState);
    layout->addWidget(pages, 1);
    auto* const column = new QVBoxLayout;
    addButton(*column, "btNewBookAdd", tr("Add..."), tr("Adds picture files, several at once"), {},
              &NewBookDialog::addPages);
    up = addButton(*column, "btNewBookUp", tr("Up"), tr("Moves the picture to the page before"),
                   QKeySequence("Alt+Up"), &NewBookDialog::moveUp);
    down = addButton(*column, "btNewBookDown", tr("Down"), tr("Moves the picture to the next page"),
                     QKeySequence("Alt+Down"), &NewBookDialog::moveDown);
    remove = addButton(*column, "btNewBookRemove", tr("Remove"),
                       tr("Takes the picture off this list; its file stays"),
                       QKeySequence(Qt::Key_Delete), &NewBookDialog::removePage);
    column->addStretch();
    layout->addLayout(column);
    row->setFocusProxy(pages);
    return row;
}

// The keys are the list's.
QPushButton* NewBookDialog::addButton(QVBoxLayout& column, const char* buttonName,
                                      const QString& text, const QString& toolTip,
                                      const QKeySequence& keys, void (NewBookDialog::*asked)())
{
    auto* const button = new QPushButton(text);
    button->setObjectName(buttonName);
    button->setToolTip(keys.isEmpty() ? toolTip : withKey(toolTip, keys));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, asked);
    column.addWidget(button);
    if (!keys.isEmpty()) {
        auto* const action = new QAction(pages);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        pages->addAction(action);
        connect(action, &QAction::triggered, this, asked);
    }
    return button;
}

// The folder is named as the book until the author wants another one.
void NewBookDialog::nameTyped()
{
    if (!folderChosen) {
        book.name = name->text();
        folder->setText(QDir::toNativeSeparators(book.folderIn(folderOfBooks)));
    }
    suggestNumber();
}

void NewBookDialog::suggestNumber()
{
    takeFields();
    if (!numberChosen) {
        std::set<int> taken;
        for (const auto& other : otherBooks) {
            taken.insert(other.first);
        }
        const int next = nextFreeNumber(projectFile().toStdString(), taken);
        const QSignalBlocker blocker(number);
        number->setValue(next > 0 ? next : number->value());
    }
    showState();
}

void NewBookDialog::chooseFolder()
{
    const QString chosen = askForFolder(this, tr("Folder of the book"), folderOfBooks);
    if (!chosen.isEmpty()) {
        folder->setText(QDir::toNativeSeparators(chosen));
        folderChosen = true;
        suggestNumber();
    }
}

void NewBookDialog::addPages()
{
    QStringList refused;
    for (const QString& file : askForPictures(this)) {
        if (PictureFile(file).uprightSize().isEmpty()) {
            refused << QDir::toNativeSeparators(file);
            continue;
        }
        auto* const item = new QListWidgetItem(QFileInfo(file).fileName(), pages);
        item->setData(Qt::UserRole, file);
        item->setToolTip(QDir::toNativeSeparators(file));
        pages->setCurrentItem(item);
    }
    showState();
    if (!refused.isEmpty()) {
        tell(tr("No picture, so it is not in the list: %1").arg(refused.join(", ")));
    }
}

void NewBookDialog::moveUp()
{
    movePage(-1);
}

void NewBookDialog::moveDown()
{
    movePage(1);
}

void NewBookDialog::movePage(int way)
{
    const int row = pages->currentRow();
    const int to = row + way;
    if (row >= 0 && to >= 0 && to < pages->count()) {
        pages->insertItem(to, pages->takeItem(row));
        pages->setCurrentRow(to);
        showState();
    }
}

void NewBookDialog::removePage()
{
    delete pages->takeItem(pages->currentRow());
    showState();
}

void NewBookDialog::takeFields()
{
    book.name = name->text();
    book.number = number->value();
    book.folder = QDir::fromNativeSeparators(folder->text());
    book.pictures = filesOf(*pages);
}

void NewBookDialog::showState()
{
    takeFields();
    const int row = pages->currentRow();
    up->setEnabled(row > 0);
    down->setEnabled(row >= 0 && row + 1 < pages->count());
    remove->setEnabled(row >= 0);
    const auto other = otherBooks.find(book.number);
    numberNote->setText(
        other == otherBooks.end()
            ? QString()
            : breakable(tr("The book %1 has this number, too: they cannot both be on the pen.")
                            .arg(other->second)));
    numberNote->setVisible(!numberNote->text().isEmpty());
    number->setAccessibleDescription(numberNote->text());
    const QString ofName = ProductNameNote::problemsOf(book.name);
    const QString problem = ofName.isEmpty() ? book.problem() : ofName;
    message->setText(breakable(problem));
    buttons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
    buttons->button(QDialogButtonBox::Ok)->setAccessibleDescription(problem);
    name->setAccessibleDescription(problem);
    folder->setAccessibleDescription(problem);
}

void NewBookDialog::tell(const QString& problem)
{
    message->setText(breakable(problem));
    message->setAccessibleName(problem);
    QAccessibleEvent alert(message, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NewBookDialog::accept()
{
    takeFields();
    NewBook::Outcome outcome;
    {
        WorkProgress progress(*this, tr("Making the book..."), tr("Cancel"));
        const int count = book.pictures.size();
        outcome = book.make([&](int done) { return progress.tell(done, count); });
    }
    if (outcome.made) {
        QDialog::accept();
    } else {
        tell(outcome.problem.isEmpty() ? tr("Cancelled: nothing was made.") : outcome.problem);
    }
}
