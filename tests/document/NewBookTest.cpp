#include "document/NewBook.h"

#include <gtest/gtest.h>

#include <QImage>

#include <filesystem>

#include "base/PlatformFiles.h"
#include "document/Document.h"
#include "document/NewPage.h"
#include "oid/OpenProject.h"
#include "oid/PictureFile.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

class NewBooks : public testing::Test
{
protected:
    NewBooks()
    {
        book.name = "Zoo";
        book.number = 917;
        book.folder = inFolder("zoo");
    }

    QString inFolder(const std::string& name) const
    {
        return QString::fromStdString(folder.file(name));
    }

    // A picture file with its resolution, and noise, which no compression makes small.
    QString picture(const std::string& name, QSize size = {60, 40}) const
    {
        QImage image(size, QImage::Format_RGB32);
        unsigned noise = 1;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                noise = noise * 1664525 + 1013904223;
                image.setPixel(x, y, noise >> 8);
            }
        }
        image.setDotsPerMeterX(11811);
        image.setDotsPerMeterY(11811);
        image.save(inFolder(name));
        return inFolder(name);
    }

    NewBook::Outcome make() const
    {
        return book.make([](int /*pages*/) { return true; });
    }

    std::string madeProblem() const
    {
        const NewBook::Outcome outcome = make();
        EXPECT_FALSE(outcome.made);
        EXPECT_FALSE(outcome.problem.isEmpty());
        return outcome.problem.toStdString();
    }

    // With the path of the folder left out.
    std::string problem() const { return book.problem().remove(inFolder("")).toStdString(); }

    std::string listing(const std::string& name = "zoo") const
    {
        std::string names;
        std::set<std::string> sorted;
        for (const auto& entry : fs::directory_iterator(folder.file(name))) {
            sorted.insert(entry.path().filename().string());
        }
        for (const std::string& one : sorted) {
            names += (names.empty() ? "" : " ") + one;
        }
        return names;
    }

    TemporaryFolder folder;
    NewBook book;
};

}  // namespace

TEST_F(NewBooks, HaveTheFilesThatSavingAndImportingMake)
{
    const QStringList pictures = {picture("b.png"), picture("a.jpg", {80, 30})};
    book.pictures = pictures;
    EXPECT_TRUE(make().made);
    EXPECT_EQ(listing(), "917-bkgnd0.jpg 917-bkgnd1.jpg Zoo.oidpro");

    fs::create_directory(folder.file("byhand"));
    Document byHand;
    byHand.setProduct("Zoo", 917);
    ASSERT_TRUE(byHand.save(folder.file("byhand/Zoo.oidpro")));
    for (const QString& file : pictures) {
        ASSERT_TRUE(byHand.apply(newPage(PictureCopy(file))));
    }
    ASSERT_TRUE(byHand.save(folder.file("byhand/Zoo.oidpro")));
    for (const char* const name : {"Zoo.oidpro", "917-bkgnd0.jpg", "917-bkgnd1.jpg"}) {
        EXPECT_EQ(readFile(folder.file(std::string("zoo/") + name)),
                  readFile(folder.file(std::string("byhand/") + name)))
            << name;
    }
}

TEST_F(NewBooks, HaveTheirPicturesInOrderWithWhatTheySayOfThemselves)
{
    book.pictures = QStringList{picture("b.png"), picture("a.jpg", {80, 30})};
    EXPECT_TRUE(make().made);
    Oid::OidProject project;
    ASSERT_TRUE(Oid::openProject(project, folder.file("zoo/Zoo.oidpro")));
    EXPECT_EQ(project.productName, "Zoo");
    EXPECT_EQ(project.productId, 917);
    ASSERT_EQ(project.pictures.size(), 2U);
    EXPECT_EQ(project.pictures[0].dpi, 300);
    EXPECT_EQ(project.pictures[1].paperWidth, 7);
    EXPECT_EQ(QImage(inFolder("zoo/917-bkgnd0.jpg")).size(), QSize(60, 40));
    EXPECT_EQ(QImage(inFolder("zoo/917-bkgnd1.jpg")).size(), QSize(80, 30));
}

TEST_F(NewBooks, MayHaveNoPicturesYet)
{
    EXPECT_TRUE(make().made);
    EXPECT_EQ(listing(), "Zoo.oidpro");
}

TEST_F(NewBooks, MakeFoldersWithinFolders)
{
    book.folder = inFolder("books/of/animals");
    EXPECT_TRUE(make().made);
    EXPECT_EQ(listing("books/of/animals"), "Zoo.oidpro");
}

TEST_F(NewBooks, ComeIntoAFolderThatHasOtherThings)
{
    fs::create_directory(folder.file("zoo"));
    writeFile(folder.file("zoo/notes.txt"), "lions");
    writeFile(folder.file("zoo/farm.oidpro"), "PRODUCT 900, \"Farm\"\n");
    EXPECT_TRUE(make().made);
    EXPECT_EQ(listing(), "Zoo.oidpro farm.oidpro notes.txt");
}

TEST_F(NewBooks, TellHowManyPagesAreDone)
{
    book.pictures = QStringList{picture("a.png"), picture("b.png")};
    std::string told;
    book.make([&](int pages) {
        told += std::to_string(pages) + ' ';
        return true;
    });
    EXPECT_EQ(told, "0 1 2 ");
}

TEST_F(NewBooks, AreFilesOfTheirNameAsFarAsFilesCanHaveIt)
{
    const auto fileOf = [this](const char* name) {
        book.name = QString::fromUtf8(name);
        return book.projectFile().remove(inFolder("zoo/")).toStdString();
    };
    EXPECT_EQ(fileOf(u8"Käse für Zoé"), u8"Käse für Zoé.oidpro");
    EXPECT_EQ(fileOf(" Who? What: 1*2 \"<yes|no>\" "), "Who_ What_ 1_2 __yes_no__.oidpro");
    EXPECT_EQ(fileOf("../up"), "_._up.oidpro");
    EXPECT_EQ(fileOf("The end..."), "The end.oidpro");
}

TEST_F(NewBooks, NeedANumberThatGamesCanHave)
{
    for (const int number : {0, 1000}) {
        book.number = number;
        EXPECT_EQ(problem(), "The number must be from 1 to 999.");
    }
    for (const int number : {1, 999}) {
        book.number = number;
        EXPECT_EQ(problem(), "");
    }
}

TEST_F(NewBooks, NeedANameAndAFolder)
{
    book.name = "  ";
    EXPECT_EQ(problem(), "The book needs a name.");
    book.name = "Zoo";
    book.folder = "";
    EXPECT_EQ(problem(), "The book needs a folder.");
    book.folder = "zoo";
    EXPECT_EQ(problem(), "The folder needs its whole path.");
}

TEST_F(NewBooks, DoNotOverwriteABook)
{
    fs::create_directory(folder.file("zoo"));
    writeFile(folder.file("zoo/Zoo.oidpro"), "PRODUCT 900, \"Old\"\n");
    EXPECT_EQ(problem(), "There is a book already: zoo/Zoo.oidpro. Take another name or folder.");
    EXPECT_EQ(madeProblem(), book.problem().toStdString());
    EXPECT_EQ(readFile(folder.file("zoo/Zoo.oidpro")), "PRODUCT 900, \"Old\"\n");
}

TEST_F(NewBooks, DoNotShareTheirNumberInAFolder)
{
    fs::create_directory(folder.file("zoo"));
    writeFile(folder.file("zoo/farm.oidpro"), "PRODUCT 917, \"Farm\"\n");
    EXPECT_EQ(problem(),
              "The book farm.oidpro in this folder has the number 917, too. Take another number "
              "or folder.");
    EXPECT_EQ(madeProblem(), book.problem().toStdString());
    EXPECT_EQ(listing(), "farm.oidpro");
}

TEST_F(NewBooks, LeaveTheFilesOfAnotherBookAlone)
{
    fs::create_directory(folder.file("zoo"));
    writeFile(folder.file("zoo/917-bkgnd0.jpg"), "another");
    book.pictures = QStringList{picture("a.png")};
    EXPECT_EQ(problem(),
              "In this folder is 917-bkgnd0.jpg, which belongs to a book of the number 917. Take "
              "another number or folder.");
    EXPECT_EQ(madeProblem(), book.problem().toStdString());
    EXPECT_EQ(readFile(folder.file("zoo/917-bkgnd0.jpg")), "another");
}

TEST_F(NewBooks, CannotLieBelowAFile)
{
    writeFile(folder.file("notes"), "lions");
    book.folder = inFolder("notes/books/zoo");
    EXPECT_EQ(problem(), "notes is a file and no folder.");
    EXPECT_EQ(madeProblem(), book.problem().toStdString());
}

TEST_F(NewBooks, LeaveNothingBehindWhenAPictureIsNone)
{
    writeFile(folder.file("letter.png"), "Dear reader");
    book.folder = inFolder("books/zoo");
    book.pictures = QStringList{picture("a.png"), inFolder("letter.png")};
    EXPECT_EQ(madeProblem(), folder.file("letter.png") + " is no picture, or cannot be read.");
    EXPECT_FALSE(fs::exists(folder.file("books")));
}

TEST_F(NewBooks, LeaveNothingBehindOnAFullDisk)
{
    fs::create_directory(folder.file("zoo"));
    writeFile(folder.file("zoo/notes.txt"), "lions");
    book.pictures = QStringList{picture("a.png"), picture("b.png", {900, 700})};
    const SmallDisk disk(100000);
    EXPECT_EQ(madeProblem().substr(0, madeProblem().find('\n')),
              "The picture " + folder.file("b.png") + " cannot be kept in the folder of the book.");
    EXPECT_EQ(listing(), "notes.txt");
}

TEST_F(NewBooks, LeaveNothingBehindWhenNotEvenTheProjectCanBeWritten)
{
    const SmallDisk disk(10);
    EXPECT_EQ(madeProblem().substr(0, madeProblem().find('\n')),
              folder.file("zoo/Zoo.oidpro") + " cannot be written.");
    EXPECT_FALSE(fs::exists(folder.file("zoo")));
}

TEST_F(NewBooks, LeaveNothingBehindWhenTheyAreCancelled)
{
    book.pictures = QStringList{picture("a.png"), picture("b.png")};
    for (int last = 0; last <= 2; ++last) {
        const NewBook::Outcome outcome = book.make([&](int pages) { return pages < last; });
        EXPECT_FALSE(outcome.made);
        EXPECT_EQ(outcome.problem.toStdString(), "");
        EXPECT_FALSE(fs::exists(folder.file("zoo"))) << last;
    }
}
