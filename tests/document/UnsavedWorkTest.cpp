#include "document/UnsavedWork.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QThread>

#include "oid/OpenProject.h"
#include "tests/helpers/Environment.h"

#include <filesystem>
#include <functional>

namespace {

// A window with a script and nothing else.
struct Desk
{
    std::string script;
    UnsavedWork work{{[this] { return std::hash<std::string>()(script); },
                      [this] {
                          Oid::OidProject project;
                          project.compiler.source = script;
                          ++askedForProject;
                          return project;
                      }}};
    int askedForProject = 0;
};

class UnsavedWorkTest : public testing::Test
{
protected:
    UnsavedWorkTest() { desk = beginDesk(); }

    std::unique_ptr<Desk> beginDesk()
    {
        auto begun = std::make_unique<Desk>();
        begun->work.isSaved(path);
        return begun;
    }

    void type(const std::string& script) { desk->script = script; }

    // As often as the window does it until what is there now is copied.
    bool keep()
    {
        waitForTheDisk();
        desk->work.keep();
        waitForTheDisk();
        return desk->work.keep();
    }

    void waitForTheDisk() const
    {
        while (desk->work.isWriting()) {
            QThread::msleep(1);
        }
    }

    QStringList copies() const
    {
        return QDir(QString::fromStdString(userData.recovery())).entryList({"*.oidpro"});
    }

    // The script in the copy that the project's next window would be offered.
    std::string offered() const
    {
        const auto found = RecoveryFolder().newestFor(path);
        return found ? scriptIn(found->path) : "none";
    }

    std::string scriptIn(const QString& file) const
    {
        Oid::OidProject project;
        Oid::openProject(project, file.toStdString());
        return project.compiler.source;
    }

    std::string scriptInOnlyCopy() const
    {
        return copies().size() != 1
                   ? std::to_string(copies().size()) + " copies"
                   : scriptIn(QString::fromStdString(userData.recovery()) + "/" + copies()[0]);
    }

    OwnDataFolder userData;
    TemporaryFolder books;
    std::string path = books.file("zoo.oidpro");
    std::unique_ptr<Desk> desk;
};

}  // namespace

TEST_F(UnsavedWorkTest, WithoutAChangeNothingIsWritten)
{
    EXPECT_TRUE(keep());
    desk = nullptr;
    EXPECT_FALSE(std::filesystem::exists(userData.recovery()));
}

TEST_F(UnsavedWorkTest, WithoutAChangeTheProjectIsNotEvenAskedFor)
{
    const int before = desk->askedForProject;
    keep();
    EXPECT_EQ(desk->askedForProject, before);
}

TEST_F(UnsavedWorkTest, AChangeIsCopied)
{
    type("x = 1");
    EXPECT_TRUE(keep());
    EXPECT_EQ(scriptInOnlyCopy(), "x = 1");
}

TEST_F(UnsavedWorkTest, FurtherChangesReplaceTheCopy)
{
    type("x = 1");
    keep();
    type("x = 12");
    keep();
    EXPECT_EQ(scriptInOnlyCopy(), "x = 12");
}

TEST_F(UnsavedWorkTest, WhatWasTakenBackNeedsNoCopy)
{
    type("x = 1");
    keep();
    type("");
    keep();
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(UnsavedWorkTest, WhatSavesAlikeNeedsNoCopy)
{
    type("%");
    desk->work.isSaved(path);
    type("%%");
    keep();
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(UnsavedWorkTest, SavingRemovesTheCopy)
{
    type("x = 1");
    keep();
    desk->work.isSaved(path);
    EXPECT_EQ(copies(), QStringList());
    keep();
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(UnsavedWorkTest, SavingRemovesACopyThatIsJustBeingWritten)
{
    type(std::string(10000000, 'x'));
    desk->work.keep();
    desk->work.isSaved(path);
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(UnsavedWorkTest, NoOtherWindowIsOfferedTheCopy)
{
    type("x = 1");
    keep();
    EXPECT_EQ(offered(), "none");
}

TEST_F(UnsavedWorkTest, WhatALeavingWindowHasNotSavedStays)
{
    type("x = 1");
    desk = nullptr;
    EXPECT_EQ(offered(), "x = 1");
}

TEST_F(UnsavedWorkTest, OtherWorkDoesNotTouchTheCopyThatWasLeft)
{
    type("x = 1");
    desk->work.leave();
    type("other");
    desk->work.isSaved(books.file("farm.oidpro"));
    type("other, changed");
    keep();
    EXPECT_EQ(offered(), "x = 1");
    EXPECT_EQ(copies().size(), 2);
}

TEST_F(UnsavedWorkTest, TheCopyBelongsToWhereTheProjectWasSavedLast)
{
    type("x = 1");
    desk->work.isSaved(books.file("farm.oidpro"));
    type("x = 2");
    desk = nullptr;
    EXPECT_EQ(offered(), "none");
    path = books.file("farm.oidpro");
    EXPECT_EQ(offered(), "x = 2");
}

TEST_F(UnsavedWorkTest, TheCopySaysWhenTheUnsavedWorkBegan)
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    type("x = 1");
    keep();
    const QDateTime between = QDateTime::currentDateTimeUtc();
    type("x = 2");
    keep();
    desk = nullptr;
    const auto found = RecoveryFolder().newestFor(path);
    ASSERT_TRUE(found && found->head);
    EXPECT_GE(found->head->since, before);
    EXPECT_LE(found->head->since, between);
    EXPECT_EQ(found->head->projectPath, path);
}

TEST_F(UnsavedWorkTest, RestoredWorkGoesOnInItsCopy)
{
    type("x = 1");
    desk = nullptr;
    desk = beginDesk();
    const auto found = RecoveryFolder().newestFor(path);
    type("x = 1");
    desk->work.continueWith(RecoveryFile::take(found->path), *found->head);
    keep();
    EXPECT_EQ(scriptInOnlyCopy(), "x = 1");
    type("x = 2");
    keep();
    EXPECT_EQ(scriptInOnlyCopy(), "x = 2");
    EXPECT_EQ(
        readRecoveryHead(QByteArray::fromStdString(readFile(found->path.toStdString())))->since,
        found->head->since);
    desk->work.isSaved(path);
    EXPECT_EQ(copies(), QStringList());
}

// Nobody knows any more what the file held.
TEST_F(UnsavedWorkTest, RestoredWorkOfALostFileStaysUnsavedWhateverItHolds)
{
    type("x = 1");
    desk = nullptr;
    const auto found = RecoveryFolder().newestFor(path);
    desk = std::make_unique<Desk>();
    desk->work.isSaved("");
    desk->work.continueWith(RecoveryFile::take(found->path), *found->head);
    keep();
    EXPECT_EQ(scriptInOnlyCopy(), "");
}

TEST_F(UnsavedWorkTest, WhatCannotBeWrittenIsTriedAgainUntilItCan)
{
    std::filesystem::create_directories(std::filesystem::path(userData.recovery()).parent_path());
    writeFile(userData.recovery(), "in the way");
    type("x = 1");
    EXPECT_FALSE(keep());
    std::filesystem::remove(userData.recovery());
    EXPECT_TRUE(keep());
    EXPECT_EQ(scriptInOnlyCopy(), "x = 1");
}

TEST_F(UnsavedWorkTest, AFolderThatVanishesIsMadeAgain)
{
    type("x = 1");
    keep();
    std::filesystem::remove_all(userData.recovery());
    type("x = 2");
    EXPECT_TRUE(keep());
    EXPECT_EQ(scriptInOnlyCopy(), "x = 2");
}
