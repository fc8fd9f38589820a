#include "publish/PrinterTest.h"

#include <QTemporaryDir>

#include "base/PlatformFiles.h"
#include "gme/Assembler.h"
#include "oid/OidTable.h"
#include "oid/PrintImage.h"
#include "pdf/TestPage.h"
#include "publish/BuildDriver.h"
#include "publish/YamlFile.h"

namespace {

Oid::POLY areaOf(const TestField& field)
{
    const double percent = 100 / kA4.width;
    const double left = field.place.x() * percent;
    const double top = field.place.y() * percent;
    const double edge = kTestFieldEdge * percent;
    Oid::POLY area;
    area.name = field.name;
    area.points = {{left, top}, {left + edge, top}, {left + edge, top + edge}, {left, top + edge}};
    return area;
}

// "B3" is said as a letter and a number.
std::string subOf(const TestField& field)
{
    return "sub " + field.name + "\nsay \"" + field.name.substr(0, 1) + " " + field.name.substr(1) +
           ".\"\nend sub\n";
}

std::string nameOfFile(const char* extension)
{
    return std::to_string(kTestProduct) + "-" + kTestName + extension;
}

constexpr int kTotal = 100;  // percent, of which the speech takes this part:
constexpr int kOfSpeech = 80;

// Numbers, script, description and speech in a folder for the time being, and the game from them,
// there, too. An empty path when it was cancelled, or could not be made.
std::string makeGame(const QTemporaryDir& folder, Oid::OidProject& book, ProcessRunner& runner,
                     const PrintJobProgress& progress)
{
    book.projectPath = folder.filePath(QStringLiteral("test.oidpro")).toStdString();
    if (!folder.isValid() || !compileProject(book, false) || !makeYAML(book)) {
        return {};
    }
    const auto speech = [&](int done, int total) {
        return !progress || progress(total > 0 ? kOfSpeech * done / total : 0, kTotal);
    };
    if (createSoundFiles(book, runner, speech) != SpeechOutcome::complete) {
        return {};
    }
    gme::AssembleOptions options;
    options.yamlFile = book.pathYaml();
    options.gameFile = folder.filePath(QStringLiteral("test.gme")).toStdString();
    return gme::assemble(options, mi_printf) ? options.gameFile : std::string();
}

// Said before the speech is made, which takes long.
bool canBeWritten(const std::string& path)
{
    const bool opened = Platform::FileReplacement(path).file() != nullptr;
    if (!opened) {
        mi_printf("Error: Can't open file '%s'\n", Platform::nativePath(path).c_str());
    }
    return opened;
}

bool putInPlace(const std::string& made, const std::string& path)
{
    const bool copied = Platform::copyFile(made, path);
    if (!copied) {
        mi_printf("Error: Can't write file '%s'\n", Platform::nativePath(path).c_str());
    }
    return copied;
}

}  // namespace

const std::vector<std::string>& printerTestLanguages()
{
    static const std::vector<std::string> languages{"en", "de", "fr", "nl"};
    return languages;
}

Oid::OidProject printerTestBook(const std::vector<int>& resolutions, const std::string& language)
{
    Oid::OidProject book;
    book.productId = kTestProduct;
    book.productName = kTestName;
    book.pictures.resize(1);
    book.pictures[0].paperWidth = kA4.width;
    book.pictures[0].paperHeight = kA4.height;
    book.compiler.source = "voice reader lang " + language + " sex f age 30\n";
    for (const TestField& field : testFields(resolutions)) {
        book.pictures[0].polys.push_back(areaOf(field));
        book.oids[field.name] = Oid::tableEntry(field.oid);
        book.compiler.source += subOf(field);
    }
    return book;
}

std::string printerTestPage()
{
    return nameOfFile(".pdf");
}

std::string printerTestGame()
{
    return nameOfFile(".gme");
}

bool makePrinterTest(const std::string& folder, const std::vector<int>& resolutions,
                     const std::string& language, ProcessRunner& runner,
                     const PrintJobProgress& progress)
{
    const std::string start = folder.empty() ? "" : folder + "/";
    bool cancelled = false;
    const PrintJobProgress noting = [&](int done, int total) {
        cancelled = cancelled || (progress && !progress(done, total));
        return !cancelled;
    };
    if (!canBeWritten(start + printerTestPage())) {
        return false;
    }
    const QTemporaryDir work;
    Oid::OidProject book = printerTestBook(resolutions, language);
    const std::string game = makeGame(work, book, runner, noting);
    if (cancelled) {
        return false;
    }
    if (game.empty()) {
        mi_printf("Error: The game of the test page was not made\n");
        return false;
    }
    const auto page = [&](int done, int total) {
        return noting(kOfSpeech + (kTotal - kOfSpeech) * done / total, kTotal);
    };
    return makeTestPage(start + printerTestPage(), resolutions, page) &&
           putInPlace(game, start + printerTestGame());
}
