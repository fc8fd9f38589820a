#include "bench/LoadBook.h"

#include "bench/GeneratedBook.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QProcess>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <stdexcept>

namespace {

constexpr char kProduct[] = "900";
constexpr int kAreasOfAPage = 10;
// The pen reads fewer codes than areas can be drawn: the names come again.
constexpr int kNames = 4000;

std::string subThatSays(const std::string& name, const std::string& text)
{
    return "sub " + name + "\n    say \"" + text + "\"\nend sub\n\n";
}

struct Content
{
    std::vector<std::vector<std::string>> pages;  // names of areas
    std::string script;
};

std::string areaName(int number)
{
    return "a" + std::to_string(number % kNames);
}

Content bookOfPages(int pages)
{
    Content content;
    for (int page = 0; page < pages; ++page) {
        content.pages.emplace_back();
        for (int i = 0; i < kAreasOfAPage; ++i) {
            const std::string name = areaName(page * kAreasOfAPage + i);
            content.pages.back().push_back(name);
            if (page * kAreasOfAPage < kNames) {
                content.script += subThatSays(name, "Thing " + std::to_string(i));
            }
        }
    }
    return content;
}

Content bookOfAreas(int areas)
{
    Content content;
    content.pages.emplace_back();
    for (int i = 0; i < areas; ++i) {
        content.pages.back().push_back(areaName(i));
        if (i < kNames) {
            content.script += subThatSays(areaName(i), "Thing");
        }
    }
    return content;
}

int lineCount(const std::string& text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

Content bookOfLines(int lines)
{
    const int linesOfSixteen = lineCount(generatedBook(1, 16).script);
    const int pages = std::max(1, lines * 16 / linesOfSixteen);
    GeneratedBook generated = generatedBook(1, static_cast<size_t>(pages));
    return {{std::move(generated.areas)}, std::move(generated.script)};
}

Content bookOfTexts(int texts)
{
    constexpr int kTextsOfASub = 10;
    Content content;
    content.pages.emplace_back();
    for (int text = 0; text < texts; ++text) {
        if (text % kTextsOfASub == 0) {
            content.pages.back().push_back(areaName(text / kTextsOfASub));
            content.script += "sub " + content.pages.back().back() + "\n";
        }
        content.script += "    say \"This is text number " + std::to_string(text) + "\"\n";
        if (text % kTextsOfASub == kTextsOfASub - 1 || text == texts - 1) {
            content.script += "end sub\n\n";
        }
    }
    return content;
}

Content contentOf(Growing what, int size)
{
    switch (what) {
    case Growing::pages:
        return bookOfPages(size);
    case Growing::areas:
        return bookOfAreas(size);
    case Growing::lines:
        return bookOfLines(size);
    default:
        return bookOfTexts(size);
    }
}

// Side by side in rows, with some paper between them.
std::string drawnAreas(const std::vector<std::string>& names)
{
    const int perRow = static_cast<int>(std::ceil(std::sqrt(names.size() * 1.4)));
    const double apart = 100.0 / perRow;
    std::string text;
    for (size_t i = 0; i < names.size(); ++i) {
        const double x = static_cast<double>(i % static_cast<size_t>(perRow)) * apart;
        const double y = static_cast<double>(i / static_cast<size_t>(perRow)) * apart;
        text += "BOX " + names[i];
        for (const double number : {x, y, apart * 0.8, apart * 0.8}) {
            text += ' ' + QString::number(number, 'f', 2).toStdString();
        }
        text += "\r\n";
    }
    return text;
}

void write(const QString& path, const std::string& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(text.data(), static_cast<qint64>(text.size())) !=
            static_cast<qint64>(text.size())) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

void makePicture(const QString& path)
{
    QImage picture(600, 420, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.fillRect(60, 60, 300, 200, QLinearGradient(60, 60, 360, 260));
    painter.end();
    if (!picture.save(path, "jpg", 80)) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

// The same file under many names.
void link(const QString& file, const QString& name)
{
    std::filesystem::create_hard_link(file.toStdString(), name.toStdString());
}

void makePictures(const QDir& folder, size_t pages)
{
    const auto path = [&](size_t page) {
        return folder.filePath(QString("%1-bkgnd%2.jpg").arg(kProduct).arg(page));
    };
    makePicture(path(0));
    for (size_t page = 1; page < pages; ++page) {
        link(path(0), path(page));
    }
}

QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() + " " + arguments.join(' ').toStdString() +
                                 ": " + process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

void makeSounds(const QDir& folder, const QString& project)
{
    const QString sound = folder.filePath("sound.ogg");
    outputOf("ffmpeg", {"-f", "lavfi", "-i", "sine=duration=0.2", "-ac", "1", "-ar", "22050",
                        "-c:a", "libvorbis", sound});
    const QByteArray list =
        outputOf(PLINKETT_BIN_DIR "/plinkett-cli", {"speech", project, "list", "--json"});
    folder.mkdir(QString(kProduct) + "-audio");
    for (const QJsonValue& text : QJsonDocument::fromJson(list).array()) {
        const QString name = folder.filePath(text.toObject().value("file").toString());
        if (!QFile::exists(name)) {
            link(sound, name);
        }
    }
}

QByteArray hundredTaps(const Content& content)
{
    QByteArray taps = "start\n";
    const std::vector<std::string>& names = content.pages.front();
    for (size_t i = 0; i < 99; ++i) {
        taps += QByteArray::fromStdString(names[i * 7 % names.size()]) + '\n';
    }
    return taps;
}

}  // namespace

LoadBook makeLoadBook(Growing what, int size, const QString& folderPath)
{
    const QDir folder(folderPath);
    const Content content = contentOf(what, size);
    std::string text = std::string("PRODUCT ") + kProduct + ", \"Book\"\r\n";
    for (const std::vector<std::string>& names : content.pages) {
        text += "IMAGE\r\nPAPER 100.0 70.0\r\nDPI   600\r\n" + drawnAreas(names);
    }
    text += "SCRIPT # -----------------------\r\n" + content.script;

    LoadBook book;
    book.project = folder.filePath("book.oidpro");
    book.bookTest = folder.filePath("book.booktest");
    book.printImage = folder.filePath("900-print0.tiff");
    book.description = folder.filePath("900-Book.yaml");
    book.taps = hundredTaps(content);
    write(book.project, text);
    write(book.bookTest, "start\ntap " + content.pages.front().front() + "\n");
    makePictures(folder, content.pages.size());
    makeSounds(folder, book.project);
    return book;
}
