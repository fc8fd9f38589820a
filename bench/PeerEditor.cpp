#include "bench/PeerEditor.h"

namespace {

const char* const kFirstClass[] = {
    "#include", "#if",   "#ifdef", "#else",    "#elif",     "#endif",  "defined", "for",
    "while",    "do",    "if",     "goto",     "select",    "case",    "int",     "double",
    "float",    "short", "char",   "unsigned", "signed",    "bool",    "wchar_t", "end",
    "else",     "endif", "sub",    "endsub",   "endselect", "default", "voice",   "say"};
const char* const kSecondClass[] = {"foo", "bar", "lang", "age", "pitch", "speed", "sex"};

QTextCharFormat inColor(int red, int green, int blue)
{
    QTextCharFormat format;
    format.setForeground(QColor(red, green, blue));
    return format;
}

bool isWord(QChar ch)
{
    return ch.isLetterOrNumber() || ch == '_';
}

}  // namespace

PeerHighlighter::PeerHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document), string(inColor(96, 96, 96)), comment(inColor(0, 128, 0))
{
    for (const char* word : kFirstClass) {
        keywords[word] = inColor(0, 0, 255);
    }
    for (const char* word : kSecondClass) {
        keywords[word] = inColor(112, 32, 176);
    }
}

// One pass over the line, as the code editor does it.
void PeerHighlighter::highlightBlock(const QString& text)
{
    int column = 0;
    while (column < text.size()) {
        const QChar ch = text[column];
        if (ch == '\'' || ch == '#') {
            setFormat(column, text.size() - column, comment);
            return;
        }
        if (ch == '"') {
            const int close = text.indexOf(ch, column + 1);
            const int end = close < 0 ? text.size() : close + 1;
            setFormat(column, end - column, string);
            column = end;
            continue;
        }
        QTextCharFormat format;
        const int length = keywordAt(text, column, format);
        if (length > 0 && format.isValid()) {
            setFormat(column, length, format);
        }
        column += qMax(length, 1);
    }
}

// The length of the word that begins here, and its format if it is a keyword.
int PeerHighlighter::keywordAt(const QString& text, int column, QTextCharFormat& format) const
{
    int end = column;
    while (end < text.size() && isWord(text[end])) {
        ++end;
    }
    const auto keyword = keywords.constFind(text.mid(column, end - column));
    if (keyword != keywords.constEnd()) {
        format = *keyword;
    }
    return end - column;
}

PeerEditor::PeerEditor() : highlighter(new PeerHighlighter(document()))
{
    QFont fixed("Consolas", 11);
    fixed.setStyleHint(QFont::Monospace);
    fixed.setFixedPitch(true);
    setFont(fixed);
    setLineWrapMode(NoWrap);
}
