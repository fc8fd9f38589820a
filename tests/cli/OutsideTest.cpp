// Projects whose files would lie outside of their folder: by the product's name, or by links.
#include <QImage>

#include <filesystem>
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// A project in the folder "zoo", with a picture, and beside it what is none of its business.
class Outside : public testing::Test
{
protected:
    Outside()
    {
        fs::create_directory(folder.file("zoo"));
        setName("Zoo");
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::white);
        picture.save(QString::fromStdString(zoo("900-bkgnd0.jpg")));
        writeFile(folder.file("precious"), "precious");
    }
    void setName(const std::string& name) const
    {
        writeFile(zoo("zoo.oidpro"), "PRODUCT 900, \"" + name +
                                         "\"\r\n"
                                         "PAPER 20 15\r\nDPI 600\r\nBOX lion 10 10 20 20\r\n"
                                         "SCRIPT\r\nsub lion\r\nend sub\r\n");
    }
    void link(const std::string& name, const std::string& target = "../precious") const
    {
        fs::remove(zoo(name));
        fs::create_symlink(target, zoo(name));
    }
    std::string zoo(const std::string& name) const { return folder.file("zoo/" + name); }
    std::string run(const std::string& command) const
    {
        return resultOf(cli({command, zoo("zoo.oidpro")}, {"TIPTOITOOL="}));
    }
    std::string outside(const std::string& file, const std::string& place) const
    {
        return "Error: '" + zoo(file) + "' leads to '" + folder.file(place) +
               "', outside of the project's folder. It is not written.\n";
    }
    std::string isUntouched() const
    {
        return readFile(folder.file("precious")) == "precious" ? folder.listing() : "touched";
    }

    const TemporaryFolder folder;
};

const char* const kWarning =
    "Warning: The product name 'x/../../evil' leads into another folder: it has a \"/\" or a "
    "backslash\n";

}  // namespace

TEST_F(Outside, AProductNameThatLeadsThereIsToldAndNothingIsWritten)
{
    setName("x/../../evil");
    fs::create_directory(zoo("900-x"));
    EXPECT_EQ(run("check"), std::string("status 0\n") + kWarning);
    const std::string yaml =
        std::string("status 1\n") + kWarning + outside("900-x/../../evil.yaml", "evil.yaml");
    EXPECT_EQ(run("yaml"), yaml);
    EXPECT_EQ(run("build"), yaml);
    EXPECT_EQ(run("pdf"),
              std::string("status 1\n") + kWarning + outside("900-x/../../evil.pdf", "evil.pdf"));
    EXPECT_EQ(isUntouched(), "precious zoo");
}

TEST_F(Outside, ABackslashInTheNameLeadsTheSameWay)
{
    setName("x\\..\\..\\evil");
    EXPECT_EQ(run("yaml"),
              "status 1\nWarning: The product name 'x\\..\\..\\evil' leads into another folder: it "
              "has a \"/\" or a backslash\n" +
                  outside("900-x/../../evil.yaml", "evil.yaml"));
}

TEST_F(Outside, ANameThatStaysInTheFolderIsOnlyToldOf)
{
    setName("AC/DC");
    fs::create_directory(zoo("900-AC"));
    EXPECT_EQ(run("yaml"), "status 0\nWarning: The product name 'AC/DC' leads into another folder: "
                           "it has a \"/\" or a backslash\n");
    EXPECT_TRUE(fs::exists(zoo("900-AC/DC.yaml")));
}

TEST_F(Outside, DotsAloneLeadNowhere)
{
    setName("And so ...");
    EXPECT_EQ(run("yaml"), "status 0\n");
    EXPECT_TRUE(fs::exists(zoo("900-And so ....yaml")));
}

TEST_F(Outside, NothingIsWrittenThroughALink)
{
    link("900-Zoo.yaml");
    link("900-print0.tiff");
    link("900-Zoo.pdf");
    EXPECT_EQ(run("yaml"), "status 1\n" + outside("900-Zoo.yaml", "precious"));
    EXPECT_EQ(run("print"), "status 1\n" + outside("900-print0.tiff", "precious"));
    EXPECT_EQ(run("pdf"), "status 1\n" + outside("900-Zoo.pdf", "precious"));
    EXPECT_EQ(isUntouched(), "precious zoo");
}

TEST_F(Outside, ABuildLooksAtAllItsFilesFirst)
{
    link("900-Zoo.gme", "../new");
    EXPECT_EQ(run("build"), "status 1\n" + outside("900-Zoo.gme", "new"));
    fs::remove(zoo("900-Zoo.gme"));
    link("900-Zoo.codes.yaml");
    EXPECT_EQ(run("build"), "status 1\n" + outside("900-Zoo.codes.yaml", "precious"));
    EXPECT_EQ(isUntouched(), "precious zoo");
}

TEST_F(Outside, ALinkWithinTheFolderIsFollowed)
{
    link("900-Zoo.yaml", "other.yaml");
    EXPECT_EQ(run("yaml"), "status 0\n");
    EXPECT_TRUE(fs::exists(zoo("other.yaml")));
}

TEST_F(Outside, TheProjectsFolderMayBeALinkItself)
{
    fs::create_directory_symlink("zoo", folder.file("short"));
    EXPECT_EQ(resultOf(cli({"yaml", folder.file("short/zoo.oidpro")})), "status 0\n");
    EXPECT_EQ(resultOf(cli({"yaml", "zoo.oidpro"}, {}, folder.file("short"))), "status 0\n");
}

TEST_F(Outside, APictureThatIsALinkIsPrintedAndToldOf)
{
    fs::rename(zoo("900-bkgnd0.jpg"), folder.file("photo.jpg"));
    link("900-bkgnd0.jpg", "../photo.jpg");
    const std::string result = run("print");
    EXPECT_EQ(result.substr(0, result.find("    ")),
              "status 0\nWarning: The picture '" + zoo("900-bkgnd0.jpg") + "' is a link to '" +
                  folder.file("photo.jpg") +
                  "', outside of the project's folder\nCreating pixel image...\n");
}

TEST_F(Outside, WhatTheAuthorNamesLiesWhereverTheyWant)
{
    EXPECT_EQ(resultOf(cli({"yaml", zoo("zoo.oidpro"), "-o", folder.file("mine.yaml")})),
              "status 0\n");
    EXPECT_EQ(isUntouched(), "mine.yaml precious zoo");
}
