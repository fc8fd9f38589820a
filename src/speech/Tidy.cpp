#include "speech/Tidy.h"

#include <QDir>
#include <QFile>

#include <set>

#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"

namespace {

QString native(const std::string& path)
{
    return QString::fromStdString(Platform::nativePath(path));
}

// Of what speakers, recorders and the assembler make and read.
const QStringList& audioFiles()
{
    static const QStringList patterns = {"*.ogg", "*.oga",  "*.opus", "*.wav",
                                         "*.mp3", "*.flac", "*.m4a",  "*.aac"};
    return patterns;
}

}  // namespace

std::vector<std::string> unusedAudio(const std::string& audioFolder,
                                     const std::vector<SpeechText>& texts)
{
    std::set<std::string> used;
    for (const SpeechText& text : texts) {
        used.insert(text.audioName);
    }
    std::vector<std::string> unused;
    const QDir folder(native(audioFolder));
    for (const QFileInfo& file : folder.entryInfoList(audioFiles(), QDir::Files, QDir::Name)) {
        if (used.count(file.completeBaseName().toStdString()) == 0) {
            unused.push_back(file.fileName().toStdString());
        }
    }
    return unused;
}

bool moveToTrash(const std::string& path)
{
    Platform::useUtf8ForSystemTexts();
    // where Qt finds no trash it moves the file into "files" in the current folder
    return Platform::makeTrash() && QFile::moveToTrash(native(path));
}
