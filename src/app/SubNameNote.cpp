#include "app/SubNameNote.h"

#include "document/Document.h"
#include "publish/SubNames.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

// A character that cannot be shown is named by its number.
QString shown(const QString& character)
{
    const QVector<uint> codes = character.toUcs4();
    if (!codes.isEmpty() && (!QChar::isPrint(codes[0]) || QChar::isSpace(codes[0]))) {
        return "U+" + QString::number(codes[0], 16).rightJustified(4, '0').toUpper();
    }
    return character;
}

}  // namespace

SubNameNote::SubNameNote(QLineEdit* nameField, Document& named, QBoxLayout* layout, int index)
    : QObject(nameField), field(nameField), document(named), label(new QLabel)
{
    layout->insertWidget(index, label);
    label->setObjectName("lbPolyNameProblems");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    connect(field, &QLineEdit::textChanged, this, &SubNameNote::tell);
    connect(field, &QLineEdit::textEdited, this, &SubNameNote::notice);
    // When the field shows the name of the area that was selected.
    connect(&document, &Document::changed, this, &SubNameNote::tell, Qt::QueuedConnection);
    tell();
}

QString SubNameNote::problemOf(const QString& name)
{
    const std::string bytes = name.toStdString();
    const SubNameFinding found = problemOfSubName(bytes);
    const QString character =
        shown(QString::fromUtf8(found.character.data(), static_cast<int>(found.character.size())));
    switch (found.problem) {
    case SubNameProblem::none:
        return {};
    case SubNameProblem::empty:
        return tr("An area needs a name. Type one.");
    case SubNameProblem::character:
        return tr("\"%1\" cannot stand in a name. Leave it out.").arg(character);
    case SubNameProblem::beginning:
        return tr("A name cannot begin with \"%1\". Begin with a letter.").arg(character);
    case SubNameProblem::number:
        return tr("The name would be taken for a number of dots. Begin with a letter.");
    case SubNameProblem::label:
        return tr("\"asm\" with a number belongs to the compiler. Choose another name.");
    case SubNameProblem::jump:
        if (found.character.front() >= '0' && found.character.front() <= '9') {
            return tr("No \"goto\" can lead to a name that begins with a digit. Begin with a "
                      "letter.");
        }
        return tr("No \"goto\" can lead to a name with \"%1\". Take letters, digits and \"_\".")
            .arg(character);
    }
    return {};
}

bool SubNameNote::isPossible(const QString& name)
{
    const std::string bytes = name.toStdString();
    const SubNameProblem problem = problemOfSubName(bytes).problem;
    return problem == SubNameProblem::none || problem == SubNameProblem::jump;
}

// Without an area the field keeps the name of the last one, and can be typed into.
void SubNameNote::notice()
{
    isForNobody = document.selectedArea() == AreaId::none;
    tell();
}

// Screen readers hear a change of what describes the field, and read it with the field.
void SubNameNote::tell()
{
    const bool isNobodys = document.selectedArea() == AreaId::none;
    isForNobody = isForNobody && isNobodys;
    QString problem;
    if (isForNobody) {
        problem = tr("No area is selected, so this names none. Click one, then type its name.");
    } else if (!isNobodys || !field->text().isEmpty()) {
        problem = problemOf(field->text());
    }
    if (problem != label->text()) {
        label->setText(problem);
        field->setAccessibleDescription(problem);
    }
    label->setVisible(!problem.isEmpty());
}
