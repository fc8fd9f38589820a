#pragma once

#include <QCoreApplication>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "oid/OidProject.h"
#include "recording/BookSounds.h"
#include "speech/SpeechTexts.h"
#include "speech/tab/SpeechWork.h"

// What is made of audio files. Everything is done on another thread, and has copies.
class SpeechJobs
{
    Q_DECLARE_TR_FUNCTIONS(SpeechJobs)

public:
    // A sound file that is to become a text's.
    struct Adoption
    {
        QString source;
        SpeechText text;
    };

    // Speaks those of the texts that have no file or one that is out of date. The folders of our
    // tools are on PATH.
    static SpeechWork::Job speak(Oid::OidProject book, QString script,
                                 std::vector<SpeechText> texts);
    // What became of each, as far as it came; read when the work has ended.
    using Reports = std::shared_ptr<std::vector<recording::FileReport>>;
    static SpeechWork::Job adopt(Oid::OidProject book, std::vector<Adoption> adoptions,
                                 Reports reports);
    // A sheet to read from, with those of the book's texts whose audio names are wanted: a PDF, or
    // a text. The numbers that texts get are kept in the audio folder first.
    struct Sheet
    {
        std::vector<SpeechText> texts;
        std::set<std::string> wanted;
        QString file;
        bool isPdf;
    };
    static SpeechWork::Job writeSheet(Oid::OidProject book, Sheet sheet);
    // Moves audio files of the book, by their names, to the system's trash.
    static SpeechWork::Job moveToTrash(Oid::OidProject book, std::vector<std::string> names);
    // Makes the files equally loud. What we spoke stays ours.
    static SpeechWork::Job evenOut(Oid::OidProject book, std::vector<SpeechText> texts);

private:
    static QStringList speakNow(Oid::OidProject& book, const std::vector<SpeechText>& texts,
                                const SpeechWork::Contact& contact);
    static QStringList adoptNow(const std::string& folder, const std::vector<Adoption>& adoptions,
                                std::vector<recording::FileReport>& reports,
                                const SpeechWork::Contact& contact);
    static QStringList writeSheetNow(const Oid::OidProject& book, const Sheet& sheet);
    static QStringList trashNow(const std::string& folder, const std::vector<std::string>& names,
                                const SpeechWork::Contact& contact);
    static QStringList evenOutNow(const std::string& folder, const std::vector<SpeechText>& texts,
                                  const SpeechWork::Contact& contact);
};
