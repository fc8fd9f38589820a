#include "document/SampleBooks.h"

#include "base/SharedFolder.h"
#include "oid/OidProject.h"
#include "oid/OpenProject.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

namespace {

// The folders of a language: "de" for "de-AT" and "de_AT".
QString languageOf(const QString& locale)
{
    return locale.left(locale.indexOf(QRegularExpression("[-_]"))).toLower();
}

QDir folderOfLanguage(const QDir& samples, const QStringList& languages)
{
    for (const QString& language : languages) {
        const QString name = languageOf(language);
        if (!name.isEmpty() && samples.exists(name)) {
            return samples.filePath(name);
        }
    }
    return samples.filePath("en");
}

// A folder without exactly one project is none.
bool readBook(const QDir& folder, SampleBook& book)
{
    const QStringList projects = folder.entryList({"*.oidpro"}, QDir::Files);
    Oid::OidProject project;
    if (projects.size() != 1 ||
        !Oid::openProject(project, folder.filePath(projects.front()).toStdString())) {
        return false;
    }
    book = {QString::fromStdString(project.productName), folder.dirName(),
            folder.filePath(projects.front())};
    return true;
}

bool copyFile(const QString& from, const QString& to)
{
    QFile copy(to);
    return QFile::copy(from, to) &&
           copy.setPermissions(copy.permissions() | QFile::WriteOwner | QFile::WriteUser);
}

bool copyFolder(const QDir& from, const QDir& to)
{
    QDirIterator entries(from.path(), QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QString copy = to.filePath(entries.fileName());
        const bool copied = entries.fileInfo().isDir()
                                ? to.mkdir(entries.fileName()) && copyFolder(path, copy)
                                : copyFile(path, copy);
        if (!copied) {
            return false;
        }
    }
    return true;
}

}  // namespace

QString samplesFolder()
{
    return QString::fromStdString(sharedFolder("samples"));
}

QVector<SampleBook> sampleBooks(const QString& folder, const QStringList& languages)
{
    QVector<SampleBook> books;
    if (folder.isEmpty()) {
        return books;
    }
    const QDir ours = folderOfLanguage(QDir(folder), languages);
    for (const QString& name : ours.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        SampleBook book;
        if (readBook(QDir(ours.filePath(name)), book)) {
            books << book;
        }
    }
    return books;
}

QString copySampleBook(const SampleBook& book, const QString& newFolder)
{
    const QFileInfo project(book.project);
    if (!QDir().mkdir(newFolder)) {
        return {};
    }
    QDir folder(newFolder);
    if (!copyFolder(project.absoluteDir(), folder)) {
        folder.removeRecursively();
        return {};
    }
    return folder.filePath(project.fileName());
}
