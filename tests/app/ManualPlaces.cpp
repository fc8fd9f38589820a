#include "tests/app/ManualPlaces.h"

#include "base/Manual.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

Browser::Browser()
{
    QDesktopServices::setUrlHandler("file", this, "open");
}

Browser::~Browser()
{
    QDesktopServices::unsetUrlHandler("file");
}

void Browser::open(const QUrl& url)
{
    const QString page = QString::fromStdString(readFile(url.toLocalFile().toStdString()));
    const auto link = QRegularExpression("<a href=\"([^\"]*)\">").match(page);
    place = QUrl(link.captured(1)).fragment();
    file = QUrl(link.captured(1)).toLocalFile();
}

bool isInManual(const QString& place)
{
    const QStringList files = manualFiles();
    return files.size() == 2 && std::all_of(files.begin(), files.end(), [&](const QString& file) {
               const QString html = QString::fromStdString(readFile(file.toStdString()));
               return html.contains("id=\"" + place + '"');
           });
}
