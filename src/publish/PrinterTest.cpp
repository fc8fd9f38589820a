#include "publish/PrinterTest.h"

#include <QTemporaryDir>

#include "base/FileSystem.h"
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

// Numbers, script, description and speech in a folder for the time being, and the game from them.
bool makeGame(const std::string& gameFile, Oid::OidProject& book, ProcessRunner& runner)
{
    const QTemporaryDir folder;
    book.projectPath = folder.filePath(QStringLiteral("test.oidpro")).toStdString();
    if (!folder.isValid() || !compileProject(book, false) || !makeYAML(book)) {
        return false;
    }
    if (createSoundFiles(book, runner) != SpeechOutcome::complete) {
        return false;
    }
    gme::AssembleOptions options;
    options.yamlFile = book.pathYaml();
    options.gameFile = gameFile;
    return gme::assemble(options, mi_printf);
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
                     const std::string& language, ProcessRunner& runner)
{
    const std::string start = folder.empty() ? "" : folder + "/";
    if (!makeTestPage(start + printerTestPage(), resolutions)) {
        return false;
    }
    Oid::OidProject book = printerTestBook(resolutions, language);
    if (!makeGame(start + printerTestGame(), book, runner)) {
        mi_printf("Error: The game of the test page was not made\n");
        return false;
    }
    return true;
}
