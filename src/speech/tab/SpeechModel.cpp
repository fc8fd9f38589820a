#include "speech/tab/SpeechModel.h"

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QStyle>

#include <algorithm>

namespace {

QIcon standardIcon(QStyle::StandardPixmap which)
{
    return QApplication::style()->standardIcon(which);
}

// Seen on a light ground and on a dark one.
QColor colourOf(SpeechState state)
{
    switch (state) {
    case SpeechState::missing:
        return Qt::gray;
    case SpeechState::spoken:
        return "#3f7fd0";
    case SpeechState::recorded:
        return "#3a9d3a";
    case SpeechState::stale:
        return "#e08a00";
    default:
        return "#c62f26";
    }
}

int sizeOf(const std::vector<SpeechRow>& rows)
{
    return static_cast<int>(rows.size());
}

}  // namespace

SpeechModel::SpeechModel(QObject* parent)
    : QAbstractTableModel(parent),
      playIcon(standardIcon(QStyle::SP_MediaPlay)),
      stopIcon(standardIcon(QStyle::SP_MediaStop))
{}

// Mostly one text changes, or some lines come above all others: what is the same at both ends
// stays, so that selection and place on the screen do, too.
void SpeechModel::show(std::vector<SpeechRow> found)
{
    const auto head =
        std::mismatch(rows.begin(), rows.end(), found.begin(), found.end(), isSameText).first;
    const int first = static_cast<int>(head - rows.begin());
    const auto from = static_cast<std::ptrdiff_t>(first);
    const auto tail = std::mismatch(rows.rbegin(), rows.rend() - from, found.rbegin(),
                                    found.rend() - from, isSameText);
    const int removed = static_cast<int>(rows.rend() - from - tail.first);
    const int added = static_cast<int>(found.rend() - from - tail.second);
    std::vector<SpeechRow> before = rows;
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        rows.erase(rows.begin() + from, rows.begin() + from + removed);
        endRemoveRows();
    }
    if (added > 0) {
        beginInsertRows({}, first, first + added - 1);
        rows = std::move(found);
        endInsertRows();
    } else {
        rows = std::move(found);
    }
    before.erase(before.begin() + from, before.begin() + from + removed);
    before.insert(before.begin() + from, rows.begin() + from, rows.begin() + from + added);
    tellChanges(0, sizeOf(rows), before);
}

// In as few signals as there are stretches of rows that look different.
void SpeechModel::tellChanges(int first, int count, const std::vector<SpeechRow>& before)
{
    const auto isChanged = [&](int n) {
        return !looksAlike(row(n), before[static_cast<std::size_t>(n)]);
    };
    for (int n = first; n < count; ++n) {
        if (isChanged(n)) {
            const int begin = n;
            while (n + 1 < count && isChanged(n + 1)) {
                ++n;
            }
            emit dataChanged(index(begin, 0), index(n, columnCountOfAll - 1));
        }
    }
}

void SpeechModel::setPlaying(const std::string& file)
{
    playing = file;
    if (!rows.empty()) {
        emit dataChanged(index(0, play), index(sizeOf(rows) - 1, play), {Qt::DecorationRole});
    }
}

QString SpeechModel::nameOf(SpeechState state)
{
    switch (state) {
    case SpeechState::missing:
        return tr("missing");
    case SpeechState::spoken:
        return tr("spoken");
    case SpeechState::recorded:
        return tr("recorded");
    case SpeechState::stale:
        return tr("out of date");
    default:
        return tr("impossible");
    }
}

QString SpeechModel::stateOf(const SpeechText& text)
{
    if (text.state != SpeechState::refused) {
        return nameOf(text.state);
    }
    switch (text.refusal) {
    case Refusal::longName:
        return tr("too long a name");
    case Refusal::longText:
        return tr("too long a text");
    default:
        return tr("name of line %1").arg(text.inItsPlace.line);
    }
}

bool SpeechModel::hasFile(const SpeechText& text)
{
    return text.state != SpeechState::missing && text.state != SpeechState::refused;
}

int SpeechModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : sizeOf(rows);
}

int SpeechModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnCountOfAll;
}

QString SpeechModel::shownIn(int column, int number) const
{
    const SpeechRow& shown = row(number);
    const SpeechText& said = shown.text;
    switch (column) {
    case voice:
        return QString::fromStdString(said.said.voice);
    case text:
        return QString::fromStdString(said.said.text);
    case line:
        return said.place.line > 0 ? QString::number(said.place.line) : tr("welcome");
    case length:
        return shown.seconds > 0 ? tr("%1 s").arg(QLocale().toString(shown.seconds, 'f', 1))
                                 : QString();
    case state:
        return stateOf(said);
    default:
        return {};
    }
}

// One hears the first column of the row that one comes to.
QString SpeechModel::sentenceOf(const SpeechRow& row) const
{
    const QString said = QString::fromStdString(row.text.said.text);
    const QString speaker = QString::fromStdString(row.text.said.voice);
    const QString how = stateOf(row.text);
    return row.text.place.line > 0
               ? tr("%1, line %2: %3, %4")
                     .arg(speaker, QString::number(row.text.place.line), said, how)
               : tr("%1, welcome: %2, %3").arg(speaker, said, how);
}

QString SpeechModel::tipOf(int column, const SpeechRow& row) const
{
    switch (column) {
    case text:
        return QString::fromStdString(row.text.said.text);
    case line:
        return row.text.place.line > 0 ? tr("Goes to the line in the script")
                                       : tr("Goes to the name of the product");
    case play:
        return hasFile(row.text) ? tr("Plays this text, or stops it") : QString();
    case state:
        break;
    default:
        return {};
    }
    switch (row.text.state) {
    case SpeechState::missing:
        return tr("There is no audio file yet; the next build speaks the text");
    case SpeechState::spoken:
        return tr("The audio file was spoken by the speech program");
    case SpeechState::recorded:
        return tr("The audio file is your own; a build leaves it as it is");
    case SpeechState::stale:
        return tr("The text or its voice has changed since it was spoken; the next build speaks "
                  "it again");
    default:
        break;
    }
    switch (row.text.refusal) {
    case Refusal::longName:
        return tr("The text is too long for the name of an audio file; say it in several parts");
    case Refusal::longText:
        return tr("The text is too long for the speech program; it can be recorded");
    default:
        return tr("The pen says the text of line %1 here: both have one audio name, in which all "
                  "but letters and digits is the same")
            .arg(row.text.inItsPlace.line);
    }
}

QVariant SpeechModel::sortedBy(int column, int number) const
{
    switch (column) {
    case line:
        return number;
    case length:
        return row(number).seconds;
    case state:
        return static_cast<int>(row(number).text.state);
    default:
        return shownIn(column, number).toLower();
    }
}

QVariant SpeechModel::signIn(int column, const SpeechRow& row) const
{
    if (column == state) {
        return colourOf(row.text.state);
    }
    if (column != play || !hasFile(row.text)) {
        return {};
    }
    return row.text.file == playing ? stopIcon : playIcon;
}

QVariant SpeechModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int column = index.column();
    const SpeechRow& shown = row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return shownIn(column, index.row()).simplified();
    case Qt::AccessibleTextRole:
        return column == voice ? sentenceOf(shown) : shownIn(column, index.row());
    case Qt::ToolTipRole:
        return tipOf(column, shown);
    case Qt::DecorationRole:
        return signIn(column, shown);
    case Qt::TextAlignmentRole:
        return static_cast<int>(
            (column == line || column == length ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setUnderline(column == line);  // it can be clicked
        return font;
    }
    case kSortRole:
        return sortedBy(column, index.row());
    default:
        return {};
    }
}

QVariant SpeechModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case voice:
        return tr("Voice");
    case text:
        return tr("Text");
    case line:
        return tr("Line");
    case length:
        return tr("Length");
    case state:
        return tr("State");
    default:
        return tr("Play");
    }
}
