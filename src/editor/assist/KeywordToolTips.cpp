#include "editor/assist/KeywordToolTips.h"

#include <QCoreApplication>

#include <algorithm>

#include "base/TextHelpers.h"

namespace {

class KeywordToolTips
{
    Q_DECLARE_TR_FUNCTIONS(KeywordToolTips)

public:
    static QString of(const ScriptLanguage::Statement& statement);
    static QString of(const ScriptLanguage::VoiceOption& option);
};

bool covers(const ScriptOutline::Place& place, int line, int column)
{
    return place.line == line && column >= place.column && column < place.column + place.length;
}

// Markdown's "`sub NAME`" in bold letters.
QString inBold(const QString& markdown)
{
    QString html;
    bool isCode = false;
    for (const QChar c : markdown) {
        if (c != '`') {
            html += QString(c).toHtmlEscaped();
            continue;
        }
        isCode = !isCode;
        html += isCode ? "<b>" : "</b>";
    }
    return html;
}

QString translated(const char* text)
{
    return inBold(QCoreApplication::translate("ScriptLanguage", text));
}

QString KeywordToolTips::of(const ScriptLanguage::Statement& statement)
{
    return inBold(statement.syntax) + "<br>" + translated(statement.meaning) + "<pre>" +
           QString(statement.example).trimmed().toHtmlEscaped() + "</pre>";
}

QString KeywordToolTips::of(const ScriptLanguage::VoiceOption& option)
{
    return inBold("`" + QString(option.word) + "`") + "<br>" + translated(option.values) + "<br>" +
           tr("without it: %1").arg(inBold(option.byDefault));
}

}  // namespace

QString keywordToolTip(const ScriptOutline& outline, int line, int column)
{
    const ScriptOutline::Statement* const written = outline.statementOn(line);
    if (written == nullptr || written->kind == StatementKind::assignment) {
        return {};
    }
    const ScriptLanguage::Statement* const statement = ScriptLanguage::statementOf(written->kind);
    if (statement != nullptr && covers(written->keyword, line, column)) {
        return KeywordToolTips::of(*statement);
    }
    for (const ScriptOutline::Voice& voice : outline.voices) {
        for (const ScriptOutline::VoiceOption& option : voice.options) {
            if (!covers(option.word.place, line, column)) {
                continue;
            }
            for (const ScriptLanguage::VoiceOption& known : ScriptLanguage::voiceOptions()) {
                if (toLower(std::string(option.word.text)) == known.word) {
                    return KeywordToolTips::of(known);
                }
            }
        }
    }
    return {};
}
