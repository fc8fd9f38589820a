#include "oid/PictureOrder.h"

#include <algorithm>

#include <QCryptographicHash>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "oid/ProjectWriter.h"

namespace Oid {

namespace {

constexpr char kTitle[] = "Plinkett picture order 1";
constexpr char kProject[] = "project ";
constexpr char kFinal[] = "final ";
constexpr char kPicture[] = "picture";
constexpr char kEnd[] = "end";

std::string hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex().toStdString();
}

bool takePrefix(std::string& line, const std::string& prefix)
{
    const bool has = line.compare(0, prefix.size(), prefix) == 0;
    if (has) {
        line.erase(0, prefix.size());
    }
    return has;
}

// "picture 2 0", "picture 1 -"
bool readPlace(const std::string& line, PictureOrder& order)
{
    const char* text = line.c_str();
    const bool isPicture = parseString(text) == kPicture;
    const std::string picture = parseString(text);
    const std::string place = parseString(text);
    if (!isPicture || !isNumber(picture) || (place != "-" && !isNumber(place))) {
        return false;
    }
    order.places[toInt(picture.c_str())] = place == "-" ? kAside : toInt(place.c_str());
    return true;
}

std::string folderOf(const OidProject& project)
{
    return FileSystem::getDirectoryOfPath(project.projectPath) + FileSystem::directorySeparator;
}

void tellDamaged(const std::string& path, const DiagnosticSink& sink)
{
    Diagnostic diagnostic;
    diagnostic.severity = Severity::warning;
    diagnostic.kind = "picture-order-damaged";
    diagnostic.file = Platform::nativePath(path);
    diagnostic.text = "The file that tells where moved pictures are is damaged. The pictures are "
                      "shown as they are named.";
    sink(diagnostic);
}

}  // namespace

PictureFiles::PictureFiles(const OidProject& project)
    : beginning(folderOf(project) + itostr(project.productId) + "-bkgnd")
{}

std::string PictureFiles::at(int page) const
{
    return beginning + itostr(page) + ".jpg";
}

std::string PictureFiles::aside(int picture) const
{
    return beginning + "-moved" + itostr(picture) + ".jpg";
}

std::string PictureFiles::order() const
{
    return beginning + "-moved.txt";
}

std::string PictureFiles::lock() const
{
    return beginning + "-moved.lock";
}

std::string PictureFiles::fileOf(const PictureOrder& order, int picture) const
{
    const auto place = order.places.find(picture);
    const int page = place != order.places.end() ? place->second : picture;
    const std::string beside = aside(picture);
    return page == kAside || Platform::fileExists(beside) ? beside : at(page);
}

std::string textOf(const PictureOrder& order)
{
    std::string text = std::string(kTitle) + '\n' + kProject + order.projectFile + '\n';
    if (!order.finalHash.empty()) {
        text += kFinal + order.finalHash + '\n';
    }
    for (const auto& [picture, place] : order.places) {
        text += std::string(kPicture) + ' ' + itostr(picture) + ' ' +
                (place == kAside ? "-" : itostr(place)) + '\n';
    }
    return text + kEnd + '\n';
}

std::optional<PictureOrder> parsePictureOrder(const std::string& text)
{
    PictureOrder order;
    std::size_t begin = 0;
    for (int number = 1; begin < text.size(); ++number) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        std::string line = text.substr(begin, end - begin);
        begin = end + 1;
        if (number == 1 ? line == kTitle : readPlace(line, order)) {
            continue;
        }
        if (line == kEnd) {
            return order;
        }
        if (takePrefix(line, kProject)) {
            if (line.find_first_of("/\\") != std::string::npos) {
                break;  // it lies in the same folder
            }
            order.projectFile = line;
        } else if (takePrefix(line, kFinal)) {
            order.finalHash = line;
        } else {
            break;
        }
    }
    return std::nullopt;
}

std::string hashOfFile(const OidProject& project)
{
    return hashOf(QByteArray::fromStdString(textInFile(project)));
}

bool isSaved(const OidProject& project, const PictureOrder& order)
{
    const std::optional<QByteArray> file = readInput(folderOf(project) + order.projectFile);
    return file && hashOf(*file) == order.finalHash;
}

std::optional<PictureOrder> readPictureOrder(const OidProject& project, const DiagnosticSink& sink)
{
    const std::string path = PictureFiles(project).order();
    const std::optional<QByteArray> text = readInput(path);
    if (!text) {
        return std::nullopt;
    }
    std::optional<PictureOrder> order = parsePictureOrder(text->toStdString());
    if (!order) {
        tellDamaged(path, sink);
    }
    return order;
}

void findMovedPictures(OidProject& project, const DiagnosticSink& sink)
{
    project.movedPictures.clear();
    const std::optional<PictureOrder> order = readPictureOrder(project, sink);
    if (!order) {
        return;
    }
    const PictureFiles files(project);
    const bool saved = isSaved(project, *order);
    std::map<int, std::string> found;
    for (const auto& [picture, place] : order->places) {
        const int page = saved ? place : picture;
        if (page != kAside) {
            found[page] = files.fileOf(*order, picture);
        }
    }
    project.movedPictures = std::move(found);
}

}  // namespace Oid
