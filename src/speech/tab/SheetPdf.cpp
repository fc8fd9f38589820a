#include "speech/tab/SheetPdf.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(SheetPdf)
};

constexpr int kTextSize = 13;     // points
constexpr int kHeadingSize = 17;  // points
constexpr double kIndent = 54;    // of the texts behind their numbers, in points

QTextCharFormat letters(int size, bool isBold)
{
    QTextCharFormat format;
    format.setFontPointSize(size);
    format.setFontWeight(isBold ? QFont::Bold : QFont::Normal);
    return format;
}

void addHeading(QTextCursor& cursor, const QString& words, int size)
{
    QTextBlockFormat format;
    format.setTopMargin(kTextSize);
    format.setBottomMargin(kTextSize / 2.0);
    format.setPageBreakPolicy(QTextFormat::PageBreak_Auto);
    cursor.insertBlock(format, letters(size, true));
    cursor.insertText(words);
}

// The number hangs before the text; there is room between the lines to write something in.
void addText(QTextCursor& cursor, int number, const QString& words)
{
    QTextBlockFormat format;
    format.setLeftMargin(kIndent);
    format.setTextIndent(-kIndent);
    format.setTabPositions({QTextOption::Tab(kIndent, QTextOption::LeftTab)});
    format.setBottomMargin(kTextSize / 2.0);
    format.setLineHeight(130, QTextBlockFormat::ProportionalHeight);
    format.setNonBreakableLines(false);
    cursor.insertBlock(format, letters(kTextSize, true));
    cursor.insertText(QString::number(number) + '\t');
    cursor.insertText(words, letters(kTextSize, false));
}

}  // namespace

QByteArray sheetAsPdf(const ReadingSheet& sheet, const std::vector<SpeechText>& texts,
                      const QString& title)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.setCharFormat(letters(kHeadingSize + 4, true));
    cursor.insertText(title);
    cursor.insertBlock({}, letters(kTextSize - 2, false));
    cursor.insertText(Words::tr("Record each text as a file of its own whose name begins with the "
                                "number: 7.wav"));
    for (const ReadingSheet::Voice& voice : sheet.voices) {
        addHeading(cursor, QString::fromStdString(voice.name), kHeadingSize);
        for (const ReadingSheet::Line& line : voice.lines) {
            addText(cursor, line.number, QString::fromStdString(texts[line.text].said.text));
        }
    }
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&bytes);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setTitle(title);
        writer.setResolution(600);  // DPI
        document.print(&writer);
    }
    return bytes.data();
}
