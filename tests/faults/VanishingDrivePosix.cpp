// A drive is pulled out while something is written to it: that is told, and when the drive comes
// back it holds what was there before or the new content, whole.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <random>
#include <thread>

#include "base/PlatformEject.h"
#include "base/PlatformFiles.h"
#include "document/Document.h"
#include "publish/PenCopy.h"
#include "tests/faults/Books.h"
#include "tests/faults/LoopDrive.h"
#include "tests/programs/RecordingRunner.h"

namespace fs = std::filesystem;

// Linked in place of that of the system: the test itself takes the drives away.
std::string Platform::ejectVolume(const std::string& /*root*/)
{
    return {};
}

namespace {

int pulls()
{
    constexpr int kInEachRun = 5;
    const char* const asked = std::getenv("PLINKETT_KILLS");
    return asked != nullptr ? std::atoi(asked) : kInEachRun;
}

class VanishingDrive : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!drive.whyNone().empty()) {
            GTEST_SKIP() << "there is no drive to pull out: " << drive.whyNone();
        }
    }

    // Writes the first, second, ... content until the drive has vanished, each time after another
    // part of a second; the check gets the number of the last one that was written, and the drive
    // is back.
    void pullOften(const std::function<bool(int number)>& write,
                   const std::function<void(int last)>& check)
    {
        constexpr int kLongest = 50'000;  // microseconds
        std::mt19937 random(1);
        int number = 0;
        for (int i = 0; i < pulls() && !HasFailure(); ++i) {
            ASSERT_TRUE(write(++number));
            const std::chrono::microseconds moment(random() % kLongest);
            std::thread hand([&] {
                std::this_thread::sleep_for(moment);
                drive.vanish();
            });
            while (write(number + 1)) {
                ++number;
            }
            hand.join();
            drive.comeBack();
            ASSERT_EQ(drive.whyNone(), "");
            check(number);
        }
        printf("%d pulls, %d times written\n", pulls(), number);
    }

    std::string listing() const
    {
        std::string names;
        for (const auto& entry : fs::directory_iterator(drive.path())) {
            const std::string name = entry.path().filename().string();
            names += name == "lost+found" ? "" : name + " ";
        }
        return names;
    }

    LoopDrive drive;
    const TemporaryFolder home;
};

std::string gameOf(int number)
{
    return std::string(300'000, static_cast<char>('a' + number % 26)) + std::to_string(number);
}

}  // namespace

TEST_F(VanishingDrive, HoldsTheOldOrTheNewProject)
{
    const std::string file = drive.file("book.oidpro");
    const auto textOf = [&](int number) {
        Oid::OidProject book = bookOf(number);
        EXPECT_TRUE(book.save(home.file("book.oidpro")));
        return readFile(home.file("book.oidpro"));
    };
    pullOften(
        [&](int number) {
            Oid::OidProject book = bookOf(number);
            return book.save(file);
        },
        [&](int last) {
            const std::string now = readFile(file);
            EXPECT_TRUE(now == textOf(last) || now == textOf(last + 1)) << last;
            EXPECT_EQ(listing(), "book.oidpro ");
        });
}

// What could not be saved there can be saved elsewhere.
TEST_F(VanishingDrive, TakesNothingFromTheDocument)
{
    Document document;
    document.projectRecord() = bookOf(1);
    document.projectRecord().projectPath = drive.file("book.oidpro");
    document.restart();
    ASSERT_TRUE(document.save(drive.file("book.oidpro")));
    ASSERT_TRUE(document.apply(edit::SetPaper{0, 100, 50, 600}));
    drive.vanish();
    EXPECT_FALSE(document.save(drive.file("book.oidpro")));
    EXPECT_FALSE(document.isClean());
    EXPECT_TRUE(document.undo());
    EXPECT_TRUE(document.redo());
    EXPECT_TRUE(document.save(home.file("book.oidpro")));
    EXPECT_TRUE(document.isClean());
    EXPECT_NE(readFile(home.file("book.oidpro")).find("100"), std::string::npos);
}

TEST_F(VanishingDrive, HoldsTheOldOrTheNewGame)
{
    Oid::OidProject book;
    book.productName = "Zoo";
    book.projectPath = home.file("book.oidpro");
    pullOften(
        [&](int number) {
            writeFile(home.file("900-Zoo.gme"), gameOf(number));
            if (number == 1) {
                writeFile(drive.file("tiptoi.ico"), "");
            }
            RecordingRunner runner;
            const PenCopy result = copyGmeToPen(book, runner, {drive.path()});
            if (result == PenCopy::failed) {
                EXPECT_EQ(runner.shown(), "Copy to Pen...\nfailed.\n");
            }
            return isCopied(result);
        },
        [&](int last) {
            const std::string now = readFile(drive.file("900-Zoo.gme"));
            EXPECT_TRUE(now == gameOf(last) || now == gameOf(last + 1)) << last;
            EXPECT_EQ(fs::exists(drive.file("900-Zoo.gme.unfinished")), false);
        });
}
