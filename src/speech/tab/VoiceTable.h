#pragma once

#include <QTableWidget>

#include <vector>

#include "speech/tab/NewVoice.h"

class Engines;

// The voices of a script, and below them those of another language that it could get: children,
// young people, adults and old people of both sexes.
class VoiceTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit VoiceTable(Voices ofScript, QWidget* parent = nullptr);

    // Shows the voices of a language below those of the script.
    void offer(const QString& language);

    // The current row is always a voice.
    const ttbasic::VOICE& voiceOf(int row) const { return rows[size_t(row)].voice; }
    // Of a voice of the script; for another one a name that is free.
    const std::string& nameOf(int row) const { return rows[size_t(row)].name; }
    bool isOfScript(int row) const { return rows[size_t(row)].isOfScript; }
    // All voices from the top.
    std::vector<int> voiceRows() const;
    void go(int row) { setCurrentCell(row, 0); }

private:
    // One without a name is a heading.
    struct Row
    {
        std::string name;
        ttbasic::VOICE voice;
        bool isOfScript = false;
    };

    void addHeading(const QString& text);
    void addVoice(const Row& row, const Engines& engines);
    void addCell(int column, const QString& text);

    const Voices scriptVoices;
    std::vector<Row> rows;  // as they are shown
};
