#include "speech/AudioFile.h"

#include <QFile>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "pen/SoundLength.h"

static constexpr char kExtension[] = ".ogg";

std::string audioFileIn(const std::string& folder, const std::string& audioName)
{
    return folder + FileSystem::directorySeparator + audioName + kExtension;
}

double secondsOf(const std::string& path)
{
    QFile file(QString::fromStdString(Platform::nativePath(path)));
    return file.open(QIODevice::ReadOnly) ? pen::soundSeconds(file.readAll().toStdString()) : 0;
}

Refusal refusalOf(const std::string& audioName, const std::string& text)
{
    constexpr size_t kLongestName = 255;  // bytes, on every usual file system
    if (audioName.size() + sizeof kExtension - 1 > kLongestName) {
        return Refusal::longName;
    }
    return text.size() > Platform::longestArgument ? Refusal::longText : Refusal::none;
}
