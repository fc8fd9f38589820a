#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "document/BookWatch.h"
#include "speech/SpeechIndex.h"
#include "speech/SpeechTexts.h"
#include "speech/tab/SpeechLengths.h"

// A text of the book with what there is of its audio file.
struct SpeechRow
{
    SpeechText text;
    // How long the file sounds; 0 without one, when it cannot be read, and before it was read.
    double seconds = 0;
};

// Both are the same text of the book, be it at another line or in another state.
bool isSameText(const SpeechRow& one, const SpeechRow& other);
// There is nothing that the author would see.
bool looksAlike(const SpeechRow& one, const SpeechRow& other);

struct SpeechFindings
{
    QString audioFolder;  // native; empty while the book has no file
    std::vector<SpeechRow> rows;
    std::vector<std::string> unread;  // files whose length is not known yet
    QString problem;  // with what is remembered of the files, in English; else empty
    std::map<std::string, ttbasic::VOICE> voices;  // of the script
};

// Finds the texts of a book and their files again and again. Can be used on any thread, by one at a
// time.
class SpeechSearch
{
public:
    // The lengths that are known then outlive it.
    explicit SpeechSearch(const SpeechLengths& knownLengths) : lengths(knownLengths) {}

    // What was found until it was cancelled is of no use.
    SpeechFindings find(BookState& state, const std::atomic<bool>& isCancelled);

private:
    // How the index was when it was read.
    struct IndexFile
    {
        QString path;
        qint64 size = -1;  // -1: it was not there; -2: it may change without being seen to
        qint64 time = 0;
    };

    SpeechIndex& indexOf(const std::string& folder);
    void addRow(SpeechText text, SpeechFindings& findings) const;

    Oid::OidProject book;
    std::optional<SpeechIndex> index;
    IndexFile indexFile;
    const SpeechLengths& lengths;
};
