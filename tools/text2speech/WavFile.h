#pragma once

#include <functional>
#include <string>

#include <QByteArray>

// A WAV file while it arrives. What cannot be written is noticed when the file is committed.
class ArrivingSound
{
public:
    explicit ArrivingSound(FILE* target) : file(target) {}

    void add(const QByteArray& piece);

    bool isEmpty() const { return size == 0; }
    // Whether it has begun as WAV files do.
    bool isWav() const;
    // Who writes into a pipe does not know the lengths that belong into the header: those that are
    // longer than what came, or nothing, are set right. False when that cannot be written.
    bool completeHeader() const;

private:
    int positionOfData() const;
    bool writeLengthAt(long position, qint64 length) const;

    FILE* file;
    QByteArray start;  // a few kilobytes, among them the header
    qint64 size = 0;   // of all
};

// Makes a WAV file, whole or not at all, of what the speaker adds, who returns what went wrong. The
// speaker's name is for messages. Returns what went wrong, in one line; empty when nothing did.
std::string writeWav(const std::string& file, const std::string& speaker,
                     const std::function<std::string(ArrivingSound&)>& speak);
