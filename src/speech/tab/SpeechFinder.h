#pragma once

#include <QHash>

#include <map>
#include <string>
#include <vector>

#include "document/BookWatch.h"
#include "speech/SpeechTexts.h"

// A text of the book with what there is of its audio file.
struct SpeechRow
{
    SpeechText text;
    double seconds = 0;  // how long the file sounds; 0 without one, or when it cannot be read
};

// Both are the same text of the book, be it at another line or in another state.
bool isSameText(const SpeechRow& one, const SpeechRow& other);
// There is nothing that the author would see.
bool looksAlike(const SpeechRow& one, const SpeechRow& other);

struct SpeechFindings
{
    QString audioFolder;  // native; empty while the book has no file
    std::vector<SpeechRow> rows;
    QString problem;  // with what is remembered of the files, in English; else empty
    std::map<std::string, ttbasic::VOICE> voices;  // of the script
};

// Finds the texts of a book and their files again and again. Can be used on any thread, by one at a
// time.
class SpeechSearch
{
public:
    // What was found until it was cancelled is of no use.
    SpeechFindings find(BookState& state, const std::atomic<bool>& isCancelled);

private:
    // How long a file sounded that had this size and time.
    struct Length
    {
        qint64 size = -1;
        qint64 time = 0;
        double seconds = 0;
    };

    double secondsOfFile(const std::string& path);

    Oid::OidProject book;
    QHash<QString, Length> lengths;
};
