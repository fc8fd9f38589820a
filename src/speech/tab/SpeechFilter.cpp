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

bool SpeechFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    const SpeechText& text = texts.row(row).text;
    return (!state || text.state == *state) &&
           (voice.isEmpty() || QString::fromStdString(text.said.voice) == voice) &&
           QString::fromStdString(text.said.text).simplified().contains(words, Qt::CaseInsensitive);
}
