#include "base/FileSystem.h"

#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"

#include <QProcess>

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace FileSystem {

FILE* myfopen(const std::string& path, const std::string& mode)
{
    return Platform::openFile(path, mode);
}

std::string whyNoFile(const std::string& path)
{
    const std::string kind = Platform::kindOfNoFile(path);
    return kind.empty() ? kind : "'" + Platform::nativePath(path) + "' is " + kind + ", not a file";
}

std::string cannotOpen(const std::string& path)
{
    const std::string why = whyNoFile(path);
    return "Error: Can't open file '" + path + "'\n" + (why.empty() ? why : "Error: " + why + "\n");
}

bool doesFileExist(const std::string& path)
{
    return Platform::fileExists(path);
}

bool copyFileContent(const std::string& source, const std::string& destination)
{
    return Platform::copyFile(source, destination);
}

bool deleteFile(const std::string& path)
{
    return Platform::removeFile(path);
}

bool createDirectory(const std::string& path)
{
    return Platform::createDirectory(path);
}

int setCurrentDirectory(const std::string& path)
{
    return Platform::changeDirectory(path);
}

std::string getCurrentDirectory()
{
    return Platform::currentDirectory();
}

std::string exeDirectory()
{
    return Platform::exeDirectory();
}

std::string trimFileExtension(const std::string& path)
{
    return path.substr(0, path.rfind('.'));
}

// Where the separator in front of the file name stands: the last backslash, and only if there is
// none the last "/"; npos when neither occurs.
static size_t lastSeparator(const std::string& path)
{
    const size_t backslash = path.rfind('\\');
    return backslash != std::string::npos ? backslash : path.rfind('/');
}

std::string getDirectoryOfPath(const std::string& path)
{
    const size_t separator = lastSeparator(path);
    return separator != std::string::npos ? path.substr(0, separator) : ".";
}

std::string getFilenameOfPath(const std::string& path)
{
    const size_t separator = lastSeparator(path);
    return separator != std::string::npos ? path.substr(separator + 1) : path;
}

std::string placeOutside(const std::string& folder, const std::string& path)
{
    const auto inFull = [](const fs::path& place) {
        std::error_code ignored;
        const fs::path full = fs::weakly_canonical(fs::absolute(place), ignored);
        return full.has_filename() ? full : full.parent_path();
    };
    const fs::path root = inFull(fs::u8path(Platform::nativePath(folder + directorySeparator)));
    const fs::path file = fs::u8path(Platform::resolveLinks(Platform::nativePath(path)));
    const fs::path place = inFull(file.parent_path()) / file.filename();
    const auto [rest, below] = std::mismatch(root.begin(), root.end(), place.begin(), place.end());
    const bool isInside = rest == root.end() && below != place.end();
    return isInside ? std::string() : place.u8string();
}

// A forwarded channel takes no file, so only the other ones are pointed at the null device.
static void chooseChannels(QProcess& process, bool showOutput, bool showErrors)
{
    if (showOutput && showErrors) {
        process.setProcessChannelMode(QProcess::ForwardedChannels);
    } else if (showOutput) {
        process.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    } else if (showErrors) {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }
    if (!showOutput) {
        process.setStandardOutputFile(QProcess::nullDevice());
    }
    if (!showErrors) {
        process.setStandardErrorFile(QProcess::nullDevice());
    }
}

int execCommand(const std::string& commandLine, bool showOutput, bool showErrors)
{
    constexpr int kCannotStart = 2;
    std::vector<std::string> words;
    if (SplitStringKeepQuotes(commandLine, words, true) == 0) {
        return kCannotStart;
    }
    QStringList arguments;
    for (size_t i = 1; i < words.size(); ++i) {
        arguments << QString::fromStdString(words[i]);
    }

    QProcess process;
    chooseChannels(process, showOutput, showErrors);
    fflush(stdout);
    fflush(stderr);
    process.start(QString::fromStdString(Platform::nativePath(words[0])), arguments);
    if (!process.waitForStarted(-1)) {
        return kCannotStart;
    }
    process.waitForFinished(-1);
    fflush(stdout);
    fflush(stderr);
    return process.exitCode();
}

}  // namespace FileSystem
