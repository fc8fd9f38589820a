#include "pdf/PrinterProfiles.h"

#include <QUrl>

#include <algorithm>

namespace {

// Names may hold slashes, which would be groups of their own, and letters whose case some systems
// do not keep apart.
QString groupOf(const std::string& name)
{
    return QStringLiteral("printers/") +
           QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(name)));
}

}  // namespace

std::vector<std::string> PrinterProfiles::names() const
{
    settings.beginGroup(QStringLiteral("printers"));
    std::vector<std::string> found;
    for (const QString& group : settings.childGroups()) {
        found.push_back(QUrl::fromPercentEncoding(group.toLatin1()).toStdString());
    }
    settings.endGroup();
    std::sort(found.begin(), found.end());
    return found;
}

std::optional<PrinterSettings> PrinterProfiles::find(const std::string& name) const
{
    const QString group = groupOf(name);
    if (!settings.contains(group + QStringLiteral("/dpi"))) {
        return std::nullopt;
    }
    PrinterSettings printer;
    printer.dpi = settings.value(group + QStringLiteral("/dpi")).toInt();
    printer.dotSize = settings.value(group + QStringLiteral("/dotSize")).toInt();
    printer.noBlack = settings.value(group + QStringLiteral("/noBlack")).toBool();
    printer.lighten = settings.value(group + QStringLiteral("/lighten")).toInt();
    return printer;
}

void PrinterProfiles::keep(const std::string& name, const PrinterSettings& printer)
{
    const QString group = groupOf(name);
    settings.setValue(group + QStringLiteral("/dpi"), printer.dpi);
    settings.setValue(group + QStringLiteral("/dotSize"), printer.dotSize);
    settings.setValue(group + QStringLiteral("/noBlack"), printer.noBlack);
    settings.setValue(group + QStringLiteral("/lighten"), printer.lighten);
}

void PrinterProfiles::remove(const std::string& name)
{
    settings.remove(groupOf(name));
}
