#include "tests/sound/FakeSpeech.h"

#include <QDir>
#include <QFile>

#include "tests/sound/WavFile.h"

FakeSpeech::FakeSpeech()
{
    writeFile(programs.file("spoken"), wavFile(2, 44100, tone(2, 44100, 440, 0.05)));
    writeFile(programs.file("languages"), "*                    by talker\n"
                                          "de                   German\n"
                                          "en-us                English (America), by talker\n"
                                          "es                   Spanish (Spain)\n");
    letSpeak("cp '" + programs.file("spoken") + "' \"$2\"");
}

void FakeSpeech::letSpeak(const std::string& command) const
{
    const std::string program = programs.file("Text2Speech");
    writeFile(program, "#!/bin/sh\n"
                       "if [ \"$1\" = -l ]; then cat '" +
                           programs.file("languages") +
                           "'; exit; fi\n"
                           "for last; do :; done\necho \"$3 $5 $7 $last\" >> '" +
                           programs.file("log") +
                           "'\n"
                           "while [ $# -gt 1 ] && [ \"$1\" != -f ]; do shift; done\n" +
                           command + "\n");
    QFile::setPermissions(QString::fromStdString(program),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString FakeSpeech::log() const
{
    QFile file(QString::fromStdString(programs.file("log")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void FakeSpeech::setEngines(const std::string& text) const
{
    const std::string folder = programs.file("settings/plinkett");
    QDir().mkpath(QString::fromStdString(folder));
    writeFile(folder + "/engines.ini", text);
}
