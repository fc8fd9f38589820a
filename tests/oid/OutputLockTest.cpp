#include "oid/OutputLock.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#include "oid/OidProject.h"
#include "oid/PrintImage.h"
#include "oid/PrintJob.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

class OutputLockTest : public testing::Test
{
protected:
    OutputLockTest() { book.projectPath = folder.path() + "\\zoo.oidpro"; }
    ~OutputLockTest() override { OutputLock::patience = 0; }

    bool take(OutputLock& lock)
    {
        return lock.take([this](const char* line) { said += line; });
    }

    static std::string me()
    {
        return "oid_tests (process " + std::to_string(QCoreApplication::applicationPid()) + ")";
    }
    std::string refusal(const std::string& file) const
    {
        return "Error: " + me() + " makes the same files. Try again when it is done. (" +
               folder.file(file) + ")\n";
    }

    TemporaryFolder folder;
    Oid::OidProject book;
    std::string said;
};

}  // namespace

TEST_F(OutputLockTest, TheSecondOneIsToldWhoHasIt)
{
    OutputLock first(book, "build");
    OutputLock second(book, "build");
    EXPECT_TRUE(take(first));
    EXPECT_EQ(said, "");
    EXPECT_FALSE(take(second));
    EXPECT_EQ(said, refusal("900-build.lock"));
}

TEST_F(OutputLockTest, NothingStaysOfIt)
{
    {
        OutputLock first(book, "build");
        OutputLock second(book, "build");
        EXPECT_TRUE(take(first));
        EXPECT_EQ(folder.listing(), "900-build.lock");
        EXPECT_FALSE(take(second));
    }
    EXPECT_EQ(folder.listing(), "");
    OutputLock next(book, "build");
    EXPECT_TRUE(take(next));
    next.release();
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(OutputLockTest, AnotherKindNumberOrFolderIsFree)
{
    OutputLock first(book, "build");
    OutputLock otherKind(book, "print");
    book.productId = 901;
    OutputLock otherNumber(book, "build");
    EXPECT_TRUE(take(first));
    EXPECT_TRUE(take(otherKind));
    EXPECT_TRUE(take(otherNumber));
}

TEST_F(OutputLockTest, ThatOfACrashedProgramIsTakenOver)
{
    writeFile(folder.file("900-build.lock"), "999999999\nplinkett-cli\n");
    OutputLock lock(book, "build");
    EXPECT_TRUE(take(lock));
    EXPECT_EQ(said, "");
    lock.release();
    EXPECT_EQ(folder.listing(), "");
}

// Whether that program still runs cannot be seen from here.
TEST_F(OutputLockTest, OnAnotherMachineOneIsTakenOverAfterADay)
{
    writeFile(folder.file("900-build.lock"), "12\nplinkett-cli\nlibrary\n");
    {
        OutputLock lock(book, "build");
        EXPECT_FALSE(take(lock));
        EXPECT_EQ(said, "Error: plinkett-cli on library (process 12) makes the same files. Try "
                        "again when it is done. (" +
                            folder.file("900-build.lock") + ")\n");
    }
    setTime(folder.file("900-build.lock"), "2024-05-31 14:05:40");
    OutputLock lock(book, "build");
    EXPECT_TRUE(take(lock));
}

TEST_F(OutputLockTest, WhoHasPatienceWaitsForIt)
{
    OutputLock::patience = 60000;
    auto first = std::make_unique<OutputLock>(book, "build");
    ASSERT_TRUE(take(*first));
    OutputLock second(book, "build");
    std::thread other;
    EXPECT_TRUE(second.take([&](const char* line) {
        said += line;
        other = std::thread([&] { first->release(); });
    }));
    other.join();
    EXPECT_EQ(said, "Waiting: " + me() + " makes the same files\n");
}

TEST_F(OutputLockTest, PatienceEnds)
{
    OutputLock::patience = 10;
    OutputLock first(book, "build");
    OutputLock second(book, "build");
    ASSERT_TRUE(take(first));
    EXPECT_FALSE(take(second));
    EXPECT_EQ(said, "Waiting: " + me() + " makes the same files\n" + refusal("900-build.lock"));
}

// What cannot be written there is told by who writes.
TEST_F(OutputLockTest, WhereNoneCanBeMadeWorkGoesOn)
{
    book.projectPath = folder.path() + "\\none\\zoo.oidpro";
    OutputLock lock(book, "build");
    EXPECT_TRUE(take(lock));
    OutputLock file(folder.file("none/book.pdf"));
    EXPECT_TRUE(take(file));
    EXPECT_EQ(said, "");
}

TEST_F(OutputLockTest, ThatOfOneFileLiesBesideIt)
{
    OutputLock first(folder.file("book.pdf"));
    OutputLock second(folder.file("book.pdf"));
    OutputLock other(folder.file("other.pdf"));
    EXPECT_TRUE(take(first));
    EXPECT_TRUE(take(other));
    EXPECT_FALSE(take(second));
    EXPECT_EQ(said, refusal("book.pdf.lock"));
}

TEST_F(OutputLockTest, APipeHasNone)
{
    makePipe(folder.file("pipe"));
    OutputLock lock(folder.file("pipe"));
    EXPECT_TRUE(take(lock));
    EXPECT_EQ(folder.listing(), "pipe");
}

TEST_F(OutputLockTest, PrintImagesThatAnotherProgramMakesAreNotMade)
{
    const CapturedMessages messages;
    mi_printf = CapturedMessages::print;
    book.pictures.resize(2);
    OutputLock other(book, "print");
    ASSERT_TRUE(take(other));
    const PrintJobResult result = makeImages(book);
    mi_printf = printToStandardOutput;
    EXPECT_EQ(result.created, 0);
    EXPECT_EQ(result.firstFailed, 0);
    EXPECT_EQ(result.firstError + "\n", refusal("900-print.lock"));
    EXPECT_EQ(messages.text(), refusal("900-print.lock"));
}
