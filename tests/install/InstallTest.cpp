#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QFile>
#include <QMimeDatabase>
#include <QXmlStreamReader>

#include <filesystem>
#include <gtest/gtest.h>

namespace {

// Plinkett as it lies below the prefix of an installation.
class InstalledPlinkett : public testing::Test
{
protected:
    void SetUp() override
    {
        const ProgramRun run = runProgram(
            PLINKETT_CMAKE, {"--install", PLINKETT_BUILD_FOLDER, "--prefix", prefix.path()});
        ASSERT_EQ(run.status, 0) << resultOf(run);
    }

    TemporaryFolder prefix;
};

const char* const kSample = PLINKETT_SOURCE_DIR "/examples/farm/";

}  // namespace

TEST_F(InstalledPlinkett, ChecksABook)
{
    const ProgramRun run = runProgram(prefix.file("bin/plinkett-cli"),
                                      {"check", std::string(kSample) + "farm.oidpro"});
    EXPECT_EQ(run.status, 0) << resultOf(run);
}

TEST_F(InstalledPlinkett, SpeaksTheTextsOfABook)
{
    const TemporaryFolder book;
    writeFile(book.file("book.oidpro"),
              "PRODUCT 7, \"Zoo\"\nSCRIPT\nsub lion\nsay \"Roar\"\nendsub\n");
    const ProgramRun run =
        runProgram(prefix.file("bin/plinkett-cli"), {"build", book.file("book.oidpro")});
    EXPECT_EQ(run.status, 0) << resultOf(run);
    EXPECT_EQ(book.listing(), "7-Zoo.codes.yaml 7-Zoo.gme 7-Zoo.yaml 7-audio book.oidpro");
}

TEST_F(InstalledPlinkett, GivesProjectFilesATypeOfTheirOwn)
{
    qputenv("XDG_DATA_DIRS", QByteArray::fromStdString(prefix.file("share")));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(prefix.file("none")));
    EXPECT_EQ(QMimeDatabase().mimeTypeForFile("book.oidpro").name().toStdString(),
              "application/x-plinkett-project");
}

TEST_F(InstalledPlinkett, OpensProjectFilesWithTheWindow)
{
    const std::string entry = readFile(prefix.file("share/applications/plinkett.desktop"));
    const std::string window = prefix.file("bin/plinkett");
    EXPECT_NE(entry.find("\nExec=\"" + window + "\" %f\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("\nMimeType=application/x-plinkett-project;\n"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(window));
    EXPECT_TRUE(
        std::filesystem::exists(prefix.file("share/icons/hicolor/scalable/apps/plinkett.svg")));
}

TEST_F(InstalledPlinkett, BringsTheSampleBooks)
{
    const std::string farm = prefix.file("share/plinkett/samples/en/farm");
    const ProgramRun run =
        runProgram(prefix.file("bin/plinkett-cli"), {"test", farm + "/farm.oidpro"});
    EXPECT_EQ(run.status, 0) << resultOf(run);
    EXPECT_TRUE(std::filesystem::exists(farm + "/901-bkgnd0.jpg"));
    EXPECT_FALSE(std::filesystem::exists(farm + "/farmyard.svg"));
}

TEST_F(InstalledPlinkett, BringsTheManual)
{
    const ProgramRun run = runProgram(prefix.file("bin/plinkett-cli"), {"help"});
    EXPECT_EQ(resultOf(run), "status 0\n" + prefix.file("share/plinkett/manual/en/index.html\n") +
                                 prefix.file("share/plinkett/manual/de/index.html\n"));
}

TEST_F(InstalledPlinkett, TellsItsVersionAndItsHelpWithoutADisplay)
{
    const std::vector<std::string> noDisplay = {
        "DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=xcb"};
    const std::string version = runProgram(prefix.file("bin/plinkett-cli"), {"--version"}).out;
    const std::string ours = "plinkett" + version.substr(std::string("plinkett-cli").size());
    EXPECT_EQ(resultOf(runProgram(prefix.file("bin/plinkett"), {"--version"}, noDisplay)),
              "status 0\n" + ours);
    EXPECT_EQ(resultOf(runProgram(prefix.file("bin/plinkett"), {"--help"}, noDisplay)),
              "status 0\n"
              "Usage: plinkett [PROJECT.oidpro]\n"
              "\n"
              "Makes printed books and boards talk. Opens its window, and the project if one is "
              "named.\n"
              "\n"
              "  --help       tells this\n"
              "  --version    tells the version, that of Qt, and the licences\n"
              "  --man        prints the manual page, for man\n");
}

TEST_F(InstalledPlinkett, BringsManualPagesOfBothPrograms)
{
    for (const std::string program : {"plinkett", "plinkett-cli"}) {
        const ProgramRun page =
            runProgram("gzip", {"-dc", prefix.file("share/man/man1/" + program + ".1.gz")});
        EXPECT_EQ(resultOf(page), resultOf(runProgram(prefix.file("bin/" + program), {"--man"})));
        EXPECT_EQ(page.out.substr(0, 4), ".TH ");
    }
}

TEST_F(InstalledPlinkett, TeachesBashItsCommands)
{
    EXPECT_EQ(readFile(prefix.file("share/bash-completion/completions/plinkett-cli")),
              runProgram(prefix.file("bin/plinkett-cli"), {"--completion"}).out);
}

// Where programs are offered, by their description; it names what the desktop entry is called.
TEST_F(InstalledPlinkett, DescribesItselfInFourLanguages)
{
    QFile file(
        QString::fromStdString(prefix.file("share/metainfo/org.plinkett.plinkett.metainfo.xml")));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    QXmlStreamReader xml(&file);
    QStringList summaries, launched;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == "summary") {
            summaries << xml.attributes().value("xml:lang").toString();
        } else if (xml.name() == "launchable") {
            launched << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(summaries.join(' ').toStdString(), " de fr nl");
    EXPECT_EQ(launched.join(' ').toStdString(), "plinkett.desktop");
}

TEST_F(InstalledPlinkett, BringsItsLicenceAndItsNews)
{
    const std::string licence = readFile(prefix.file("share/doc/plinkett/copyright"));
    EXPECT_NE(licence.find("\nCopyright: 2026 The Plinkett founders\nLicense: Expat\n"),
              std::string::npos)
        << licence;
    EXPECT_NE(licence.find("\n Permission is hereby granted, free of charge, to any person"),
              std::string::npos)
        << licence;
    EXPECT_EQ(runProgram("gzip", {"-dc", prefix.file("share/doc/plinkett/changelog.gz")}).out,
              readFile(PLINKETT_SOURCE_DIR "/CHANGELOG.md"));
}
