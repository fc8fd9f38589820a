#pragma once

#include <QSortFilterProxyModel>

#include <optional>

#include "speech/SpeechTexts.h"

class SpeechModel;

// Which of the texts are shown, and in what order.
class SpeechFilter : public QSortFilterProxyModel
{
public:
    // The texts outlive it.
    explicit SpeechFilter(SpeechModel& shown);

    void showState(std::optional<SpeechState> wanted);
    // Empty: all.
    void showVoice(const QString& wanted);
    // Texts that hold these words, upper and lower case alike.
    void search(const QString& wanted);

    void sort(int column, Qt::SortOrder order) override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const SpeechModel& texts;
    std::optional<SpeechState> state;
    QString voice;
    QString words;
};
