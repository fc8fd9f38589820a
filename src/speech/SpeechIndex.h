#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "speech/Utterance.h"

class QFileInfo;
class QJsonObject;

// The numbers of texts on reading sheets, from 1, by their audio names.
using SheetNumbers = std::map<std::string, int>;

// What an audio folder remembers of the files that we spoke into it: what they say, and how the
// files looked. So a file whose text or voice has changed can be told from a good one, and a file
// of the author's own from ours. It remembers the numbers of reading sheets, too. A value; nothing
// is written but by save.
class SpeechIndex
{
public:
    enum class State {
        good,       // or not there, as in a folder of before
        damaged,    // and treated as empty; the next likewise
        unreadable  // the system does not let us
    };

    static constexpr char kFileName[] = "speech-index.json";

    // Reads the index of an audio folder, which need not be there.
    explicit SpeechIndex(const std::string& audioFolder);

    State state() const { return now; }
    // The native path of the index.
    std::string path() const;
    // What is to be said of an index that is not good, one sentence in English; else empty.
    std::string problem() const;

    // What we spoke into the audio file of that name; null when there is no such file or when it
    // is the author's own. A file that was only touched, or copied, is still ours: its new time is
    // noted then.
    const Utterance* spokenInto(const std::string& audioName);
    // The same where one has looked at the file already.
    const Utterance* spokenInto(const std::string& audioName, const QFileInfo& file);

    // Notes that the audio file of that name is there and that we have just made it. False when the
    // file cannot be read.
    bool remember(const std::string& audioName, const Utterance& spoken);
    void forget(const std::string& audioName);

    // A speech file is what the speech program writes, "say_adam_Moo.wav", before the audio file is
    // made of it. One is left where that fails or is stopped; another one may be the author's own.
    // Notes that we have one written where there is none.
    void expectSpeech(const std::string& audioName);
    // Of one that was expected: notes how it looks now, or that it is gone.
    void rememberSpeech(const std::string& audioName);
    // Whether the one that is there is ours.
    bool isSpeechOurs(const std::string& audioName) const;

    // After files of another folder were copied into this one: notes what the index there says of
    // those that are the same here, and the numbers of texts that have none here, as far as these
    // are free.
    void takeOver(const SpeechIndex& other);
    // Those that texts were ever given, also of texts that are no more: a reader's recording comes
    // back much later.
    const SheetNumbers& sheetNumbers() const { return numbers; }
    // Notes numbers of further texts; nobody has another text's.
    void numberTexts(const SheetNumbers& further);
    // True when something is noted that is not saved.
    bool isChanged() const { return changed; }
    // Writes the index, whole or not at all; a damaged one is kept beside it under another name. A
    // folder that is not there is not made. Where nothing is noted no file stays. False when it
    // cannot be written.
    bool save();

private:
    struct Entry
    {
        Utterance spoken;
        std::int64_t size = 0;  // bytes
        std::int64_t time = 0;  // of the last change, in milliseconds since 1970
        std::string hash;       // SHA-256 of the file, in hexadecimal digits
    };

    void read();
    bool readAll(const std::string& text);
    bool readEntries(const QJsonObject& files);
    bool readSpeech(const QJsonObject& files);
    bool readNumbers(const QJsonObject& sheet);
    void takeNumbersOver(const SheetNumbers& others);
    bool keepDamagedFile();
    bool removeFile() const;
    bool writeFile() const;
    std::string asText() const;

    std::string folder;  // native
    std::map<std::string, Entry> entries;
    std::map<std::string, std::string> speech;  // hashes by audio names; empty while it is written
    SheetNumbers numbers;
    State now = State::good;
    bool changed = false;
};
