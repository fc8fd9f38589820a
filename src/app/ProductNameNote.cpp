#include "app/ProductNameNote.h"

#include "gme/Description.h"

#include <QLabel>
#include <QLineEdit>

namespace {

// A quote ends the name in the project file, "#" begins a comment there, and a line break the next
// line; "/" and backslash lead to another folder.
bool isLost(QChar c)
{
    return QString("\"#/\\\r\n").contains(c);
}

// Each of them once, as an author can read it.
QString lostCharacters(const QString& name)
{
    QStringList lost;
    for (const QChar c : name) {
        if (isLost(c)) {
            lost << (c.isPrint() ? QString(c)
                                 : QString(QChar(0x21B5)));  // the sign of a line break
        }
    }
    lost.removeDuplicates();
    return lost.join(' ');
}

}  // namespace

ProductNameNote::ProductNameNote(QLineEdit* nameField, QLabel* noteLabel)
    : QObject(nameField), field(nameField), label(noteLabel)
{
    connect(field, &QLineEdit::textChanged, this, &ProductNameNote::tell);
    tell();
}

QString ProductNameNote::problemsOf(const QString& name)
{
    QStringList problems;
    const QString lost = lostCharacters(name);
    if (!lost.isEmpty()) {
        problems << tr("Not possible in the name: %1").arg(lost);
    }
    const int length = name.toUcs4().size();
    constexpr int kLongest = gme::kLongestComment;
    if (length > kLongest) {
        problems << tr("%1 characters, at most %2").arg(length).arg(kLongest);
    }
    return problems.join('\n');
}

// Screen readers hear a change of what describes the field, and read it with the field.
void ProductNameNote::tell()
{
    const QString problems = problemsOf(field->text());
    if (problems != label->text()) {
        label->setText(problems);
        field->setAccessibleDescription(problems);
    }
}
