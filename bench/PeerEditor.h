#pragma once

#include <QPlainTextEdit>
#include <QSyntaxHighlighter>

// The text editor of Qt with the colours of the script language: what the code editor is compared
// with.
class PeerHighlighter : public QSyntaxHighlighter
{
public:
    explicit PeerHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;

private:
    int keywordAt(const QString& text, int column, QTextCharFormat& format) const;

    QTextCharFormat string, comment;
    QHash<QString, QTextCharFormat> keywords;
};

class PeerEditor : public QPlainTextEdit
{
public:
    PeerEditor();

    PeerHighlighter* highlighter;
};
