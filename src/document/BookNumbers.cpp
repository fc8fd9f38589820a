#include "document/BookNumbers.h"

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QDir::Filters kAll = QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot;
constexpr int kNoNumber = 0;
constexpr qint64 kLongestLine = 1024;  // bytes, as the reader of projects has it
constexpr int kFirstNumber = 900;      // from here on home-made books have theirs
constexpr int kLastNumber = 999;

QFileInfo fileInfo(const std::string& path)
{
    return QFileInfo(QString::fromStdString(Platform::nativePath(path)));
}

// What the line PRODUCT says, which stands before the pictures and the script.
int numberOfProject(const QString& path)
{
    QFile file;
    if (!openInput(file, path.toStdString())) {
        return kNoNumber;
    }
    while (!file.atEnd()) {
        const std::string line = file.readLine(kLongestLine).toStdString();
        const char* text =
            line.compare(0, 3, "\xEF\xBB\xBF") == 0 ? line.c_str() + 3 : line.c_str();
        const std::string word = parseString(text);
        if (word == "PRODUCT") {
            return parseInt(text);
        }
        if (word == "IMAGE" || word == "SCRIPT") {
            break;
        }
    }
    return kNoNumber;
}

QFileInfoList projectsIn(const QDir& folder)
{
    return folder.entryInfoList({"*.oidpro"}, QDir::Files, QDir::Name);
}

// The number that the name of a game file, a picture or an audio folder begins with: 900 of
// "900-bkgnd0.jpg".
int numberOfFile(const QString& name)
{
    const int end = name.indexOf('-');
    return end > 0 ? name.leftRef(end).toInt() : kNoNumber;
}

}  // namespace

QStringList projectsOfSameNumber(const std::string& projectPath, int number)
{
    const QFileInfo own = fileInfo(projectPath);
    QStringList names;
    for (const QFileInfo& project : projectsIn(own.absoluteDir())) {
        if (project != own && numberOfProject(project.filePath()) == number) {
            names << project.fileName();
        }
    }
    return names;
}

int nextFreeNumber(const std::string& projectPath, const std::set<int>& ofOthers)
{
    const QDir folder = fileInfo(projectPath).absoluteDir();
    std::set<int> taken = ofOthers;
    for (const QFileInfo& project : projectsIn(folder)) {
        taken.insert(numberOfProject(project.filePath()));
    }
    for (const QString& name : folder.entryList(kAll)) {
        taken.insert(numberOfFile(name));
    }
    for (int number = kFirstNumber; number <= kLastNumber; ++number) {
        if (taken.count(number) == 0) {
            return number;
        }
    }
    return kNoNumber;
}

int numberOfBook(const std::string& projectPath)
{
    return numberOfProject(fileInfo(projectPath).filePath());
}

QStringList filesOfNumber(const QString& folder, int number)
{
    QStringList names;
    for (const QString& name : QDir(folder).entryList(kAll, QDir::Name)) {
        if (numberOfFile(name) == number) {
            names << name;
        }
    }
    return names;
}
