#include "publish/GameFile.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/PrintFunction.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"
#include "publish/YamlFile.h"
#include "ttbasic/ttbasic.h"

namespace fs = std::filesystem;

namespace {

struct CloseFile
{
    void operator()(FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

std::string contentOf(const std::string& path)
{
    const File file(FileSystem::myfopen(path, "rb"));
    std::string content;
    std::array<char, 1 << 16> piece{};
    size_t size = 0;
    while (file != nullptr && (size = fread(piece.data(), 1, piece.size(), file.get())) > 0) {
        content.append(piece.data(), size);
    }
    return content;
}

// What a build draws anew each time, the seed of the random numbers, does not count.
std::string withoutSeed(std::string description)
{
    static const std::string kSeed = "  $rnd := ";
    const size_t found = description.find(kSeed);
    if (found == std::string::npos) {
        return description;
    }
    const auto start = description.begin() + static_cast<std::ptrdiff_t>(found + kSeed.size());
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    description.erase(start, std::find_if_not(start, description.end(), isDigit));
    return description;
}

// The compilers' messages are not heard while it lives.
class QuietCompilers
{
public:
    QuietCompilers() { ttbasic::redirectPrintfTo(printNothing); }
    ~QuietCompilers() { ttbasic::redirectPrintfTo(before); }
    QuietCompilers(const QuietCompilers&) = delete;
    QuietCompilers& operator=(const QuietCompilers&) = delete;

private:
    PrintFunction before = ttbasic::myprintf;
};

bool isAnySpeechNewer(const ttbasic& script, const std::string& folder, const QDateTime& game)
{
    const auto& texts = script.talkTexts;
    return std::any_of(texts.begin(), texts.end(), [&](const auto& text) {
        const std::string file = folder + FileSystem::directorySeparator + text.first + ".ogg";
        const QDateTime sound = timeOfChange(file);
        return !sound.isValid() || sound > game;
    });
}

bool isGameFile(const fs::path& path)
{
    return toLower(path.extension().u8string()) == ".gme";
}

}  // namespace

QDateTime timeOfChange(const std::string& path)
{
    Platform::useUtf8ForSystemTexts();
    return QFileInfo(QString::fromStdString(Platform::nativePath(path))).lastModified();
}

std::string dayAndMinute(const QDateTime& time)
{
    return time.toString("yyyy-MM-dd HH:mm").toStdString();
}

// The game was made from the description, so that one tells what was built.
bool isGameOutdated(const Oid::OidProject& project, const std::string& script)
{
    const QDateTime game = timeOfChange(project.pathGme());
    const QDateTime described = timeOfChange(project.pathYaml());
    if (!game.isValid() || !described.isValid()) {
        return game.isValid() && timeOfChange(project.projectPath) > game;
    }
    if (described > game) {
        return true;  // the assembler has failed
    }
    const QuietCompilers quiet;
    const std::string built = withoutSeed(contentOf(project.pathYaml()));
    for (const bool debugMode : {false, true}) {
        ttbasic now;
        now.source = script;
        if (compileScript(now, debugMode) && withoutSeed(description(project, now)) == built) {
            return isAnySpeechNewer(now, audioFolder(project), game);
        }
    }
    return true;
}

std::optional<std::uint32_t> productIdOfGame(const std::string& path)
{
    constexpr long kPlace = 0x14;  // u32, the lowest byte first
    const File file(FileSystem::myfopen(path, "rb"));
    std::array<unsigned char, 4> bytes{};
    if (file == nullptr || std::fseek(file.get(), kPlace, SEEK_SET) != 0 ||
        fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        return std::nullopt;
    }
    return bytes[0] | bytes[1] << 8 | bytes[2] << 16 | std::uint32_t(bytes[3]) << 24;
}

std::vector<std::string> gamesWithId(const std::string& folder, std::uint32_t productId)
{
    std::vector<std::string> names;
    std::error_code unreadable;
    const std::string root = Platform::nativePath(folder + FileSystem::directorySeparator);
    for (fs::directory_iterator entry(fs::u8path(root), unreadable), end;
         !unreadable && entry != end; entry.increment(unreadable)) {
        const fs::path& path = entry->path();
        if (isGameFile(path) && productIdOfGame(path.u8string()) == productId) {
            names.push_back(path.filename().u8string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}
