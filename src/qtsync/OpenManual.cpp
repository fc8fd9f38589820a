#include "qtsync/OpenManual.h"

#include "base/Manual.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

namespace {

// What opens a file for others drops the place behind "#". So a page is opened that leads there.
QUrl signpostTo(const QUrl& place)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                      "/plinkett");
    QSaveFile page(folder.filePath("manual.html"));
    const QByteArray url = place.toString(QUrl::FullyEncoded).toHtmlEscaped().toUtf8();
    const QByteArray html = "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>Plinkett</title>\n"
                            "<meta http-equiv=\"refresh\" content=\"0; url=" +
                            url + "\">\n<a href=\"" + url + "\">Plinkett</a>\n";
    const bool written = folder.mkpath(".") && page.open(QIODevice::WriteOnly) &&
                         page.write(html) == html.size() && page.commit();
    return written ? QUrl::fromLocalFile(page.fileName()) : place;
}

}  // namespace

bool openManual(const QString& place)
{
    const QString file = manualFile(QLocale::system().uiLanguages());
    if (file.isEmpty()) {
        return false;
    }
    QUrl url = QUrl::fromLocalFile(file);
    url.setFragment(place);
    return QDesktopServices::openUrl(signpostTo(url));
}

QString whyNoManual()
{
    return QCoreApplication::translate(
        "OpenManual", "The manual cannot be shown: it is not installed, or there is no browser.");
}
