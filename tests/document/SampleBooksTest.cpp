#include "document/SampleBooks.h"

#include <gtest/gtest.h>

#include "base/PlatformFiles.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

// A folder of sample books with a farm and a zoo in English, and a farm in German.
class SampleBooks : public testing::Test
{
protected:
    SampleBooks()
    {
        addBook("en/zoo", "The zoo");
        addBook("en/farm", "The farm");
        addBook("de/farm", "Der Bauernhof");
    }

    void addBook(const std::string& place, const std::string& title)
    {
        fs::create_directories(samples.file(place));
        writeFile(samples.file(place + "/book.oidpro"),
                  "PRODUCT 900, \"" + title + "\"\nSCRIPT # \n");
    }

    // "farm: The farm, zoo: The zoo"
    std::string booksIn(const QStringList& languages) const
    {
        QStringList lines;
        for (const SampleBook& book :
             sampleBooks(QString::fromStdString(samples.path()), languages)) {
            lines << book.name + ": " + book.title;
        }
        return lines.join(", ").toStdString();
    }

    SampleBook germanFarm() const
    {
        return sampleBooks(QString::fromStdString(samples.path()), {"de"}).front();
    }

    std::string copyOfFarm(const std::string& newFolder) const
    {
        return copySampleBook(germanFarm(), QString::fromStdString(newFolder)).toStdString();
    }

    TemporaryFolder samples;
    TemporaryFolder own;
};

}  // namespace

TEST_F(SampleBooks, AreThoseOfTheFirstLanguageThatThereIs)
{
    EXPECT_EQ(booksIn({"de-AT", "de", "en"}), "farm: Der Bauernhof");
    EXPECT_EQ(booksIn({"fr-FR", "fr", "de_DE"}), "farm: Der Bauernhof");
    EXPECT_EQ(booksIn({"en-GB", "de"}), "farm: The farm, zoo: The zoo");
}

TEST_F(SampleBooks, AreEnglishForAllOthers)
{
    EXPECT_EQ(booksIn({"fr-FR", "fr", "C", ""}), "farm: The farm, zoo: The zoo");
    EXPECT_EQ(booksIn({}), "farm: The farm, zoo: The zoo");
}

TEST_F(SampleBooks, AreFoldersWithAProject)
{
    fs::create_directories(samples.file("en/notes"));
    writeFile(samples.file("en/notes/notes.txt"), "");
    EXPECT_EQ(booksIn({}), "farm: The farm, zoo: The zoo");
}

TEST_F(SampleBooks, AreNoneWhereTheFolderIsMissing)
{
    EXPECT_TRUE(sampleBooks("", {"en"}).isEmpty());
    EXPECT_TRUE(sampleBooks(QString::fromStdString(samples.file("none")), {"en"}).isEmpty());
}

TEST_F(SampleBooks, AreCopiedWithAllThatBelongsToThem)
{
    fs::create_directories(samples.file("de/farm/900-audio"));
    writeFile(samples.file("de/farm/900-audio/moo.ogg"), "moo");
    writeFile(samples.file("de/farm/900-bkgnd0.jpg"), "picture");

    EXPECT_EQ(Platform::nativePath(copyOfFarm(own.file("farm"))), own.file("farm/book.oidpro"));
    EXPECT_EQ(readFile(own.file("farm/book.oidpro")),
              readFile(samples.file("de/farm/book.oidpro")));
    EXPECT_EQ(readFile(own.file("farm/900-bkgnd0.jpg")), "picture");
    EXPECT_EQ(readFile(own.file("farm/900-audio/moo.ogg")), "moo");
}

TEST_F(SampleBooks, ACopyMayBeWrittenWhereTheSampleMayOnlyBeRead)
{
    fs::permissions(samples.file("de/farm/book.oidpro"), fs::perms::owner_read);
    const fs::perms copied = fs::status(copyOfFarm(own.file("farm"))).permissions();
    EXPECT_NE(copied & fs::perms::owner_write, fs::perms::none);
}

TEST_F(SampleBooks, ACopyNeverGoesIntoAFolderThatIsThere)
{
    fs::create_directories(own.file("farm"));
    writeFile(own.file("farm/mine.txt"), "mine");
    EXPECT_EQ(copyOfFarm(own.file("farm")), "");
    EXPECT_EQ(fs::exists(own.file("farm/book.oidpro")), false);
    EXPECT_EQ(readFile(own.file("farm/mine.txt")), "mine");
}

TEST_F(SampleBooks, ACopyCannotBeMadeWhereNoFolderCan)
{
    EXPECT_EQ(copyOfFarm(own.file("none/farm")), "");
    EXPECT_EQ(own.listing(), "");
}

// The test program lies in a folder of the build, beside that of the programs.
TEST(InstalledSampleBooks, AreFoundFromTheFolderOfTheProgram)
{
    const QString folder = samplesFolder();
    EXPECT_EQ(folder.toStdString(),
              fs::weakly_canonical(PLINKETT_BIN_DIR "/../share/plinkett/samples").generic_string());
    ASSERT_FALSE(sampleBooks(folder, {"en"}).isEmpty());
}
