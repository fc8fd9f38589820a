#pragma once

#include <QAbstractTableModel>
#include <QIcon>

#include "speech/tab/SpeechFinder.h"

// The texts of the book as the table has them.
class SpeechModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { voice, text, line, length, state, play, columnCountOfAll };

    // By which a column is sorted.
    static constexpr int kSortRole = Qt::UserRole;

    explicit SpeechModel(QObject* parent = nullptr);

    // Rows whose text stays are the same rows as before.
    void show(std::vector<SpeechRow> found);
    // The file that is heard; empty: none.
    void setPlaying(const std::string& file);
    bool isPlaying(const std::string& file) const { return file == playing && !file.empty(); }

    const std::vector<SpeechRow>& all() const { return rows; }
    const SpeechRow& row(int row) const { return rows[static_cast<std::size_t>(row)]; }

    // "out of date" and so on.
    static QString nameOf(SpeechState state);
    // In the table: why it is refused, too.
    static QString stateOf(const SpeechText& text);
    static bool hasFile(const SpeechText& text);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString shownIn(int column, int number) const;
    QString sentenceOf(const SpeechRow& row) const;
    QString tipOf(int column, const SpeechRow& row) const;
    QVariant sortedBy(int column, int number) const;
    QVariant signIn(int column, const SpeechRow& row) const;
    void tellChanges(int first, int count, const std::vector<SpeechRow>& before);

    std::vector<SpeechRow> rows;
    std::string playing;
    const QIcon playIcon, stopIcon;
};
