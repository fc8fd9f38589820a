#include "document/NewBook.h"

#include "base/PlatformFiles.h"
#include "document/BookNumbers.h"
#include "document/Document.h"
#include "document/NewPage.h"
#include "oid/PictureFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

// The name of a file on every system: Windows knows some characters as parts of a path, and leaves
// out blanks and points at the end; a point in front hides the file elsewhere.
QString fileNameOf(const QString& bookName)
{
    QString name = bookName.trimmed();
    for (QChar& c : name) {
        if (!c.isPrint() || QString("<>:\"/\\|?*#").contains(c)) {
            c = '_';
        }
    }
    while (name.endsWith('.')) {
        name.chop(1);
    }
    return name.startsWith('.') ? '_' + name.mid(1) : name;
}

// The folder itself when it is there, else the one above it that is.
QFileInfo nearestThatIsThere(const QString& folder)
{
    QFileInfo place(QDir::cleanPath(folder));
    while (!place.exists() && !place.isRoot()) {
        place.setFile(place.path());
    }
    return place;
}

// Folders that come into being with a book, and go with it when it fails.
class MadeFolders
{
public:
    explicit MadeFolders(const QString& wanted) : folder(QDir::cleanPath(wanted)) {}

    bool make()
    {
        for (QString missing = folder; !QFileInfo::exists(missing);
             missing = QFileInfo(missing).path()) {
            made << missing;
        }
        return QDir().mkpath(folder);
    }

    // Those that are empty.
    void remove() const
    {
        for (const QString& one : made) {
            QDir().rmdir(one);
        }
    }

private:
    QString folder;
    QStringList made;  // the innermost first
};

}  // namespace

QString NewBook::projectFile() const
{
    return QDir::cleanPath(folder) + '/' + fileNameOf(name) + ".oidpro";
}

QString NewBook::folderIn(const QString& books) const
{
    return QDir::cleanPath(books) + '/' + fileNameOf(name);
}

QString NewBook::problem() const
{
    if (fileNameOf(name).isEmpty()) {
        return tr("The book needs a name.");
    }
    if (number < kFirstNumber || number > kLastNumber) {
        return tr("The number must be from %1 to %2.").arg(kFirstNumber).arg(kLastNumber);
    }
    const QString ofFolder = problemOfFolder();
    return ofFolder.isEmpty() ? problemOfNumber() : ofFolder;
}

QString NewBook::problemOfFolder() const
{
    if (folder.isEmpty()) {
        return tr("The book needs a folder.");
    }
    if (QDir::isRelativePath(folder)) {
        return tr("The folder needs its whole path.");
    }
    const QFileInfo place = nearestThatIsThere(folder);
    if (!place.isDir()) {
        return tr("%1 is a file and no folder.").arg(shown(place.filePath()));
    }
    if (!place.isWritable()) {
        return tr("Nothing can be written into the folder %1.").arg(shown(place.filePath()));
    }
    const QFileInfo project(projectFile());
    if (project.exists() || project.isSymLink()) {
        return tr("There is a book already: %1. Take another name or folder.")
            .arg(shown(projectFile()));
    }
    return {};
}

// Pictures, audio files and the game are named by the number.
QString NewBook::problemOfNumber() const
{
    const QStringList projects = projectsOfSameNumber(projectFile().toStdString(), number);
    if (!projects.isEmpty()) {
        return tr("The book %1 in this folder has the number %2, too. Take another number or "
                  "folder.")
            .arg(projects.front())
            .arg(number);
    }
    const QStringList files = filesOfNumber(folder, number);
    if (!files.isEmpty()) {
        return tr("In this folder is %1, which belongs to a book of the number %2. Take another "
                  "number or folder.")
            .arg(files.front())
            .arg(number);
    }
    return {};
}

NewBook::Outcome NewBook::make(const Progress& progress) const
{
    const QString foreseen = problem();
    if (!foreseen.isEmpty()) {
        return {false, foreseen};
    }
    MadeFolders folders(folder);
    Outcome outcome;
    if (folders.make()) {
        bool cancelled = false;
        outcome.problem = makeFiles([&](int pages) {
            cancelled = !progress(pages);
            return !cancelled;
        });
        outcome.made = outcome.problem.isEmpty() && !cancelled;
    } else {
        outcome.problem = tr("The folder %1 cannot be made.").arg(shown(folder)) + '\n' +
                          QString::fromStdString(Platform::lastFileError());
    }
    if (!outcome.made) {
        removeFiles();
        folders.remove();
    }
    return outcome;
}

// None of them was there before.
void NewBook::removeFiles() const
{
    Oid::OidProject project;
    project.productId = number;
    project.projectPath = projectFile().toStdString();
    Platform::removeFile(project.projectPath);
    for (int page = 0; page < pictures.size(); ++page) {
        Platform::removeFile(project.pathImageSource(page));
    }
}

// First the project file, which keeps its number from others meanwhile.
QString NewBook::makeFiles(const Progress& progress) const
{
    const std::string path = projectFile().toStdString();
    Document document;
    Oid::OidProject& project = document.projectRecord();
    project.productName = name.trimmed().toStdString();
    project.productId = number;
    const auto cause = [](const std::string& words) { return QString::fromStdString(words); };
    const auto save = [&] {
        return document.save(path) ? QString()
                                   : tr("%1 cannot be written.").arg(shown(projectFile())) + '\n' +
                                         cause(Platform::lastFileError());
    };
    QString unsaved = save();
    if (!unsaved.isEmpty()) {
        return unsaved;
    }
    document.restart();
    for (int i = 0; i < pictures.size(); ++i) {
        if (!progress(i)) {
            return {};
        }
        const PictureCopy picture(pictures[i]);
        if (picture.image().isNull()) {
            return tr("%1 is no picture, or cannot be read.").arg(shown(pictures[i]));
        }
        if (!document.apply(newPage(picture))) {
            return tr("The picture %1 cannot be kept in the folder of the book.")
                       .arg(shown(pictures[i])) +
                   '\n' + cause(document.problem().cause);
        }
    }
    return progress(pictures.size()) ? save() : QString();
}
