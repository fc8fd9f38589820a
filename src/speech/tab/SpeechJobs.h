#pragma once

#include <QCoreApplication>

#include <string>
#include <vector>

#include "oid/OidProject.h"
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
    static SpeechWork::Job adopt(Oid::OidProject book, std::vector<Adoption> adoptions);
    // Makes the files equally loud. What we spoke stays ours.
    static SpeechWork::Job evenOut(Oid::OidProject book, std::vector<SpeechText> texts);

private:
    static QStringList speakNow(Oid::OidProject& book, const std::vector<SpeechText>& texts,
                                const SpeechWork::Contact& contact);
    static QStringList adoptNow(const std::string& folder, const std::vector<Adoption>& adoptions,
                                const SpeechWork::Contact& contact);
    static QStringList evenOutNow(const std::string& folder, const std::vector<SpeechText>& texts,
                                  const SpeechWork::Contact& contact);
};
