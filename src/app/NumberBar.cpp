#include "app/NumberBar.h"

#include "base/FileSystem.h"
#include "document/BookNumbers.h"
#include "oid/OidProject.h"

#include <QPushButton>

NumberBar::NumberBar(QWidget* parent) : NoticeBar("numberBar", parent)
{
    take = addButton("btTakeNumber", QString(), tr("This book gets another number"),
                     Qt::ALT | Qt::Key_N);
    QPushButton* const keep = addButton("btKeepNumber", tr("Keep"),
                                        tr("Both books keep their number"), Qt::ALT | Qt::Key_K);
    connect(take, &QPushButton::clicked, this, [this] {
        hide();
        emit numberTaken(freeNumber);
    });
    connect(keep, &QPushButton::clicked, this, &QWidget::hide);
    offer(0);
}

void NumberBar::opened(const Oid::OidProject& project)
{
    hide();
    folder = FileSystem::getDirectoryOfPath(project.projectPath);
    number = project.productId;
}

// A book that stays in its folder and keeps its number is another version of the same book.
void NumberBar::saved(const Oid::OidProject& project)
{
    const bool isNewHere = folder != FileSystem::getDirectoryOfPath(project.projectPath) ||
                           number != project.productId;
    if (isNewHere) {
        opened(project);
        tellShared(project);
    }
}

void NumberBar::tellShared(const Oid::OidProject& project)
{
    const QStringList others = projectsOfSameNumber(project.projectPath, number);
    if (others.isEmpty()) {
        return;
    }
    offer(nextFreeNumber(project.projectPath));
    tell(tr("The number %1 is also that of %2 in this folder: the books would use the same "
            "pictures.")
             .arg(number)
             .arg(others.join(", ")));
}

void NumberBar::offer(int next)
{
    freeNumber = next;
    take->setVisible(next > 0);
    take->setText(tr("Take number %1").arg(next));
}
