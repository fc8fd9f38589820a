#include "document/RecoveryFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "base/PlatformFiles.h"
#include "tests/helpers/Environment.h"

#include <filesystem>

namespace {

class RecoveryFolderTest : public testing::Test
{
protected:
    // A copy that a window has left behind; its content is told by the product's name.
    QString leave(const std::string& projectPath, const std::string& name, int daysAgo = 0)
    {
        Oid::OidProject project;
        project.productName = name;
        RecoveryHead head;
        head.projectPath = projectPath;
        head.since = QDateTime::currentDateTimeUtc();
        const auto copy = RecoveryFile::create(folder.path(), projectPath);
        EXPECT_TRUE(writeWhole(copy->path(), recoveryCopy(project, head)));
        age(copy->path(), daysAgo);
        return copy->path();
    }

    static void age(const QString& path, int days)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addDays(-days),
                                     QFileDevice::FileModificationTime));
    }

    static std::string nameIn(const std::optional<FoundCopy>& found)
    {
        return !found ? "none" : !found->head ? "damaged" : found->head->productName;
    }

    std::string nameFor(const std::string& path) { return nameIn(folder.newestFor(path)); }

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    OwnDataFolder userData;
    TemporaryFolder books;
    RecoveryFolder folder;
};

}  // namespace

TEST_F(RecoveryFolderTest, LiesInTheUsersDataFolder)
{
    EXPECT_EQ(Platform::nativePath(folder.path().toStdString()), userData.recovery());
}

TEST_F(RecoveryFolderTest, ACopyIsFoundByItsProject)
{
    leave(books.file("zoo.oidpro"), "Zoo");
    leave(books.file("farm.oidpro"), "Farm");
    leave("", "New");
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "Zoo");
    EXPECT_EQ(nameFor(books.file("farm.oidpro")), "Farm");
    EXPECT_EQ(nameFor(books.file("sea.oidpro")), "none");
}

TEST_F(RecoveryFolderTest, AnotherWayToTheSameFileFindsItToo)
{
    writeFile(books.file("zoo.oidpro"), "");
    std::filesystem::create_symlink(books.path(), books.file("link"));
    std::filesystem::create_symlink(books.file("zoo.oidpro"), books.file("other.oidpro"));
    leave(books.file("link/zoo.oidpro"), "Zoo");
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "Zoo");
    EXPECT_EQ(nameFor(books.file("./other.oidpro")), "Zoo");
}

TEST_F(RecoveryFolderTest, TheNewestCopyComesFirst)
{
    leave(books.file("zoo.oidpro"), "old", 2);
    leave(books.file("zoo.oidpro"), "new", 1);
    leave(books.file("zoo.oidpro"), "older", 3);
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "new");
}

TEST_F(RecoveryFolderTest, ACopyOfWhatIsInTheFileGoes)
{
    Oid::OidProject project;
    project.productName = "saved";
    ASSERT_TRUE(project.save(books.file("zoo.oidpro")));
    leave(books.file("zoo.oidpro"), "saved");
    leave(books.file("zoo.oidpro"), "other", 1);
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "other");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(RecoveryFolderTest, ACopyThatAWindowHasIsNotFound)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo");
    {
        const auto window = RecoveryFile::take(path);
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(RecoveryFile::take(path), nullptr);
        EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "none");
    }
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "Zoo");
}

TEST_F(RecoveryFolderTest, TheLockOfAProcessThatHasEndedHoldsNothing)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo");
    writeFile(path.toStdString() + ".lock", "999999999\nplinkett\n");
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "Zoo");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(RecoveryFolderTest, ACopyThatIsGoneIsNotTaken)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo");
    RecoveryFile::take(path)->remove();
    EXPECT_EQ(RecoveryFile::take(path), nullptr);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(RecoveryFolderTest, TwoWindowsNeverShareACopy)
{
    const auto one = RecoveryFile::create(folder.path(), books.file("zoo.oidpro"));
    const auto other = RecoveryFile::create(folder.path(), books.file("zoo.oidpro"));
    EXPECT_NE(one->path(), other->path());
}

TEST_F(RecoveryFolderTest, ADamagedCopyIsFoundAsSuch)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo");
    writeFile(path.toStdString(), "");
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "damaged");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(RecoveryFolderTest, WorkThatNeverHadAFileIsFoundWithoutOne)
{
    EXPECT_EQ(nameIn(folder.newestWithoutFile()), "none");
    writeFile(books.file("zoo.oidpro"), "");
    leave(books.file("zoo.oidpro"), "Zoo");
    EXPECT_EQ(nameIn(folder.newestWithoutFile()), "none");
    leave("", "New", 1);
    EXPECT_EQ(nameIn(folder.newestWithoutFile()), "New");
}

TEST_F(RecoveryFolderTest, WorkWhoseFileIsThereNoMoreIsFoundWithoutOne)
{
    leave(books.file("zoo.oidpro"), "Zoo");
    EXPECT_EQ(nameIn(folder.newestWithoutFile()), "Zoo");
}

TEST_F(RecoveryFolderTest, DamagedWorkWithoutAFileIsFound)
{
    writeFile(leave("", "New").toStdString(), "half");
    EXPECT_EQ(nameIn(folder.newestWithoutFile()), "damaged");
}

TEST_F(RecoveryFolderTest, CopiesAreKeptFor90Days)
{
    leave(books.file("zoo.oidpro"), "Zoo", 89);
    leave(books.file("farm.oidpro"), "Farm", 90);
    folder.forgetOld();
    EXPECT_EQ(nameFor(books.file("zoo.oidpro")), "Zoo");
    EXPECT_EQ(nameFor(books.file("farm.oidpro")), "none");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(RecoveryFolderTest, AnOldCopyThatAWindowHasStays)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo", 100);
    const auto window = RecoveryFile::take(path);
    folder.forgetOld();
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(RecoveryFolderTest, WhatAKilledProcessLeftHalfWrittenGoes)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo");
    const QString half = path + ".aBcDeF";
    writeFile(half.toStdString(), "half");
    folder.forgetOld();
    EXPECT_TRUE(QFile::exists(half));  // it may be in the making
    age(half, 1);
    folder.forgetOld();
    EXPECT_FALSE(QFile::exists(half));
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(RecoveryFolderTest, TheLockOfAKilledProcessGoesThatOfALivingOneStays)
{
    const QString path = leave(books.file("zoo.oidpro"), "Zoo");
    writeFile(path.toStdString() + ".lock", "999999999\nplinkett\n");
    writeFile(folder.path().toStdString() + "/0123-abcd.oidpro.lock", "999999999\nplinkett\n");
    const auto window = RecoveryFile::create(folder.path(), books.file("farm.oidpro"));
    folder.forgetOld();
    const QStringList expected = {QFileInfo(path).fileName(),
                                  QFileInfo(window->path()).fileName() + ".lock"};
    EXPECT_EQ(files().size(), 2);
    for (const QString& file : expected) {
        EXPECT_TRUE(files().contains(file)) << file.toStdString();
    }
}
