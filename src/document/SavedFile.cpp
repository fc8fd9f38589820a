#include "document/SavedFile.h"

#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "oid/ProjectWriter.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr QCryptographicHash::Algorithm kHash = QCryptographicHash::Sha1;

// None for what is no file or cannot be read. A pipe is not waited for.
std::optional<QByteArray> hashOfFile(const std::string& path)
{
    QFile file;
    QCryptographicHash hash(kHash);
    if (path.empty() || !openInput(file, path) || !hash.addData(&file)) {
        return std::nullopt;
    }
    return hash.result();
}

QByteArray hashOfSaving(const Oid::OidProject& project)
{
    const std::string text = Oid::textInFile(project);
    return QCryptographicHash::hash(
        QByteArray::fromRawData(text.data(), static_cast<int>(text.size())), kHash);
}

}  // namespace

void SavedFile::isRead(const std::string& path)
{
    file = path;
    seen = hashOfFile(path);
}

void SavedFile::isWritten(const Oid::OidProject& project)
{
    file = project.projectPath;
    seen = hashOfSaving(project);
}

void SavedFile::isUnseen(const std::string& path)
{
    file = path;
    seen.reset();
}

bool SavedFile::wasChanged() const
{
    const std::optional<QByteArray> now = hashOfFile(file);
    return now && now != seen;
}

bool SavedFile::wouldBeLost(const Oid::OidProject& toSave) const
{
    const std::optional<QByteArray> now = hashOfFile(file);
    return now && now != seen && now != hashOfSaving(toSave);
}
