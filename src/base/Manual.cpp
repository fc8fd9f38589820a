#include "base/Manual.h"

#include "base/SharedFolder.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

// "de" for "de-AT" and "de_AT"; empty when there is none of the language.
QString fileOf(const QString& locale)
{
    const QString language = locale.left(locale.indexOf(QRegularExpression("[-_]"))).toLower();
    const QString folder = QString::fromStdString(sharedFolder("manual"));
    const QString file = folder + "/" + language + "/index.html";
    return !folder.isEmpty() && QFileInfo(file).isFile() ? file : QString();
}

}  // namespace

QStringList manualFiles()
{
    QStringList files = {fileOf("en"), fileOf("de")};
    files.removeAll(QString());
    return files;
}

QString manualFile(const QStringList& languages)
{
    for (const QString& language : languages) {
        QString file = fileOf(language);
        if (!file.isEmpty()) {
            return file;
        }
    }
    return fileOf("en");
}
