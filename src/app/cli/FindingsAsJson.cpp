#include "app/cli/FindingsAsJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "base/TextHelpers.h"

namespace {

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QJsonObject objectOf(const Diagnostic& diagnostic)
{
    return {{"severity", text(toLower(severityName(diagnostic.severity)))},
            {"kind", text(diagnostic.kind)},
            {"text", text(diagnostic.text)},
            {"file", text(diagnostic.file)},
            {"subject", text(diagnostic.subject)},
            {"line", diagnostic.line},
            {"column", diagnostic.column},
            {"length", diagnostic.length},
            {"page", diagnostic.page},
            {"area", diagnostic.area},
            {"fix", QJsonValue()}};
}

// What a fix changes, as the members of its object.
struct ChangeAsJson
{
    QJsonObject operator()(const hints::TextEdits& edits) const
    {
        QJsonArray list;
        for (const hints::TextEdit& edit : edits) {
            list << QJsonObject{{"line", edit.line},
                                {"column", edit.column},
                                {"length", edit.length},
                                {"text", text(edit.text)}};
        }
        return {{"edits", list}};
    }
    QJsonObject operator()(const hints::AreaNumber& number) const
    {
        return {{"subject", text(number.name)}, {"number", number.oid}};
    }
    QJsonObject operator()(const hints::PrintResolution& resolution) const
    {
        return {{"page", resolution.page}, {"dpi", resolution.dpi}};
    }
};

QJsonObject objectOf(const hints::Finding& hint)
{
    QJsonObject object = objectOf(hint.diagnostic);
    if (hint.fix) {
        QJsonObject fix = std::visit(ChangeAsJson(), hint.fix->change);
        fix["words"] = hint.fix->words;
        object["fix"] = fix;
    }
    return object;
}

}  // namespace

std::string findingsAsJson(const std::vector<Diagnostic>& messages,
                           const std::vector<hints::Finding>& hints)
{
    QJsonArray all;
    for (const Diagnostic& message : messages) {
        all << objectOf(message);
    }
    for (const hints::Finding& hint : hints) {
        all << objectOf(hint);
    }
    return QJsonDocument(all).toJson().toStdString();
}
