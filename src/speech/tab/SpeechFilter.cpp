#include "speech/tab/SpeechFilter.h"

#include "speech/tab/SpeechModel.h"

SpeechFilter::SpeechFilter(SpeechModel& shown) : texts(shown)
{
    setSourceModel(&shown);
    setSortRole(SpeechModel::kSortRole);
    setSortLocaleAware(true);
}

void SpeechFilter::showState(std::optional<SpeechState> wanted)
{
    state = wanted;
    invalidateFilter();
}

void SpeechFilter::showVoice(const QString& wanted)
{
    voice = wanted;
    invalidateFilter();
}

void SpeechFilter::search(const QString& wanted)
{
    words = wanted.simplified();
    invalidateFilter();
}

// The texts are in the order of their lines; to sort thousands by that with each change would only
// cost.
void SpeechFilter::sort(int column, Qt::SortOrder order)
{
    const bool isSorted = column == SpeechModel::line && order == Qt::AscendingOrder;
    QSortFilterProxyModel::sort(isSorted ? -1 : column, order);
}

bool SpeechFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    const SpeechText& text = texts.row(row).text;
    return (!state || text.state == *state) &&
           (voice.isEmpty() || QString::fromStdString(text.said.voice) == voice) &&
           (words.isEmpty() || QString::fromStdString(text.said.text)
                                   .simplified()
                                   .contains(words, Qt::CaseInsensitive));
}
