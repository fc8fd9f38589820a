#include "speech/AudioFile.h"

#include <algorithm>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "pen/SoundLength.h"

static constexpr char kExtension[] = ".ogg";

std::string audioFileIn(const std::string& folder, const std::string& audioName)
{
    return folder + FileSystem::directorySeparator + audioName + kExtension;
}

std::string speechFileIn(const std::string& folder, const std::string& audioName)
{
    return folder + FileSystem::directorySeparator + audioName + ".wav";
}

double secondsOf(const std::string& path)
{
    const std::optional<QByteArray> sound = readInput(path);
    return sound ? pen::soundSeconds(sound->toStdString()) : 0;
}

// A page (RFC 3533, section 6): "OggS", flags, and behind the header a table with the lengths of
// what it holds.
static bool isLastPage(const QByteArray& bytes, int at)
{
    constexpr int kFlags = 5;
    constexpr int kEndOfStream = 4;
    constexpr int kCount = 26;  // of the table's bytes
    constexpr int kHeader = 27;
    if (at + kHeader > bytes.size() || (bytes[at + kFlags] & kEndOfStream) == 0) {
        return false;
    }
    const int count = static_cast<unsigned char>(bytes[at + kCount]);
    int size = kHeader + count;
    for (int i = 0; i < count && at + kHeader + i < bytes.size(); ++i) {
        size += static_cast<unsigned char>(bytes[at + kHeader + i]);
    }
    return at + size == bytes.size();
}

bool isCutOff(const std::string& path)
{
    constexpr qint64 kLargestPage = 65307;  // bytes
    constexpr char kPage[] = "OggS";
    QFile file;
    if (!openInput(file, path)) {
        return false;
    }
    if (file.size() != 0 && !file.peek(sizeof kPage - 1).startsWith(kPage)) {
        return false;
    }
    file.seek(std::max<qint64>(file.size() - kLargestPage, 0));
    const QByteArray end = file.readAll();
    int at = end.lastIndexOf(kPage);
    while (at >= 0 && !isLastPage(end, at)) {  // the letters may stand in what a page holds
        at = at > 0 ? end.lastIndexOf(kPage, at - 1) : -1;
    }
    return at < 0;
}

Refusal refusalOf(const std::string& audioName, const std::string& text)
{
    constexpr size_t kLongestName = 255;  // bytes, on every usual file system
    if (audioName.size() + sizeof kExtension - 1 > kLongestName) {
        return Refusal::longName;
    }
    return text.size() > Platform::longestArgument ? Refusal::longText : Refusal::none;
}
