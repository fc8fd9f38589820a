// Writing files whole while programs are killed, and several at once.
#include "base/PlatformFiles.h"
#include "tests/helpers/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using Replacement = Platform::FileReplacement;
using Temporary = Platform::FileReplacement::Temporary;

namespace {

const std::string kOld(200000, 'o');
const std::string kNew(300000, 'n');

void put(const std::string& text, Replacement& replacement)
{
    fwrite(text.data(), 1, text.size(), replacement.file());
}

bool save(const std::string& path, const std::string& text, Temporary kind)
{
    Replacement replacement(path, kind);
    put(text, replacement);
    return replacement.commit();
}

// A stand-in for the program, which does the work and is killed meanwhile.
pid_t startProgram(const std::function<void()>& work)
{
    const pid_t program = fork();
    if (program == 0) {
        work();
        _exit(1);
    }
    return program;
}

void killedIn(const std::function<void()>& work)
{
    waitpid(startProgram(work), nullptr, 0);
}

// From now on this process finds no file system that has unnamed files.
void forbidUnnamedFiles()
{
    constexpr auto kFlags = offsetof(seccomp_data, args[2]);  // their lower half
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kFlags),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, O_TMPFILE & ~O_DIRECTORY, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {std::size(rules), rules};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0) {
        _exit(1);
    }
}

class FileReplacementTest : public testing::TestWithParam<Temporary>
{
protected:
    std::string book() const { return folder.file("farm.oidpro"); }
    bool saveNew() const { return save(book(), kNew, GetParam()); }

    TemporaryFolder folder;
};

const auto kName = [](const auto& info) {
    return info.param == Temporary::unnamed ? "Unnamed" : "Named";
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Temporary, FileReplacementTest,
                         testing::Values(Temporary::unnamed, Temporary::named), kName);

TEST(KilledWriter, LeavesNoFileBehind)
{
    const TemporaryFolder folder;
    writeFile(folder.file("farm.oidpro"), kOld);
    killedIn([&] {
        Replacement replacement(folder.file("farm.oidpro"));
        put(kNew, replacement);
        fflush(replacement.file());
        raise(SIGKILL);
    });
    EXPECT_EQ(readFile(folder.file("farm.oidpro")), kOld);
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST(KilledWriter, WithoutUnnamedFilesLeavesOneThatTheNextTakesOver)
{
    const TemporaryFolder folder;
    const std::string book = folder.file("farm.oidpro");
    writeFile(book, kOld);
    for (int i = 0; i < 3; ++i) {
        killedIn([&] {
            Replacement replacement(book, Temporary::named);
            put(kNew, replacement);
            fflush(replacement.file());
            raise(SIGKILL);
        });
        EXPECT_EQ(folder.listing(), "farm.oidpro farm.oidpro.unfinished");
    }
    EXPECT_EQ(readFile(book), kOld);
    EXPECT_TRUE(save(book, kNew, Temporary::named));
    EXPECT_EQ(readFile(book), kNew);
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST(KilledWriter, OnAFileSystemWithoutUnnamedFilesLeavesTheSame)
{
    const TemporaryFolder folder;
    const std::string book = folder.file("farm.oidpro");
    writeFile(book, kOld);
    killedIn([&] {
        forbidUnnamedFiles();
        Replacement replacement(book);
        put(kNew, replacement);
        fflush(replacement.file());
        raise(SIGKILL);
    });
    EXPECT_EQ(folder.listing(), "farm.oidpro farm.oidpro.unfinished");
    killedIn([&] {
        forbidUnnamedFiles();
        save(book, kNew, Temporary::unnamed);
    });
    EXPECT_EQ(readFile(book), kNew);
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST(KilledWriter, IsClearedUpAfterByWhoeverSavesNextAlsoWithUnnamedFiles)
{
    const TemporaryFolder folder;
    writeFile(folder.file("farm.oidpro"), kOld);
    writeFile(folder.file("farm.oidpro.unfinished"), "half");
    EXPECT_TRUE(save(folder.file("farm.oidpro"), kNew, Temporary::unnamed));
    EXPECT_EQ(readFile(folder.file("farm.oidpro")), kNew);
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

// At whatever moment. PLINKETT_KILLS says how often.
TEST_P(FileReplacementTest, IsOldOrNewHoweverOftenTheProgramIsKilled)
{
    const char* const wish = std::getenv("PLINKETT_KILLS");
    const int kills = wish != nullptr ? std::atoi(wish) : 50;
    writeFile(book(), kOld);
    for (int i = 0; i < kills; ++i) {
        const pid_t program = startProgram([&] {
            while (save(book(), kNew, GetParam()) && save(book(), kOld, GetParam())) {}
        });
        usleep(static_cast<useconds_t>(1000 + i % 17 * 500));
        kill(program, SIGKILL);
        waitpid(program, nullptr, 0);
        const std::string content = readFile(book());
        ASSERT_TRUE(content == kOld || content == kNew) << content.size() << " bytes, kill " << i;
        ASSERT_LE(std::distance(fs::directory_iterator(folder.path()), {}), 2);
    }
    EXPECT_TRUE(saveNew());
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST_P(FileReplacementTest, OfTwoAtOnceKeepsTheLastWhole)
{
    writeFile(book(), "older");
    Replacement first(book(), GetParam());
    Replacement second(book(), GetParam());
    put(kNew, second);
    put(kOld, first);
    EXPECT_TRUE(second.commit());
    EXPECT_EQ(readFile(book()), kNew);
    EXPECT_TRUE(first.commit());
    EXPECT_EQ(readFile(book()), kOld);
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST_P(FileReplacementTest, OfManyProgramsAtOnceIsAlwaysWhole)
{
    writeFile(book(), kOld);
    for (const std::string* text : {&kOld, &kNew, &kOld, &kNew}) {
        startProgram([&, text] {
            for (int i = 0; i < 25; ++i) {
                if (!save(book(), *text, GetParam())) {
                    _exit(1);
                }
            }
            _exit(0);
        });
    }
    int status = 0;
    while (wait(&status) > 0) {
        EXPECT_EQ(status, 0);
        const std::string content = readFile(book());
        EXPECT_TRUE(content == kOld || content == kNew);
    }
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST_P(FileReplacementTest, LeavesAStrangersFileOfItsTemporaryNameAlone)
{
    fs::create_directory(folder.file("farm.oidpro.unfinished"));
    writeFile(folder.file("precious"), "precious");
    fs::create_symlink("precious", folder.file("farm.oidpro.unfinished2"));
    EXPECT_TRUE(saveNew());
    EXPECT_EQ(folder.listing(),
              "farm.oidpro farm.oidpro.unfinished farm.oidpro.unfinished2 precious");
    EXPECT_EQ(readFile(folder.file("precious")), "precious");
}

TEST_P(FileReplacementTest, KeepsThePermissions)
{
    writeFile(book(), kOld);
    fs::permissions(book(), fs::perms(0640));
    EXPECT_TRUE(saveNew());
    EXPECT_EQ(fs::status(book()).permissions(), fs::perms(0640));
}

TEST_P(FileReplacementTest, GivesANewFileThePermissionsOfAnyNewFile)
{
    const mode_t before = umask(027);
    EXPECT_TRUE(saveNew());
    umask(before);
    EXPECT_EQ(fs::status(book()).permissions(), fs::perms(0640));
}

TEST_P(FileReplacementTest, ThatFindsNoRoomLeavesTheOldFileAndNothingElse)
{
    writeFile(book(), kOld);
    killedIn([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit room = {kNew.size() / 2, kNew.size() / 2};
        setrlimit(RLIMIT_FSIZE, &room);
        if (saveNew()) {
            writeFile(folder.file("saved"), "");
        }
    });
    EXPECT_EQ(readFile(book()), kOld);
    EXPECT_EQ(folder.listing(), "farm.oidpro");
}

TEST_P(FileReplacementTest, IntoAMissingFolderFailsAtOnce)
{
    EXPECT_EQ(Replacement(folder.file("none/farm.oidpro"), GetParam()).file(), nullptr);
    EXPECT_EQ(folder.listing(), "");
}

TEST(ReplacingAFile, DoesNotWaitForAPipeThatNobodyReads)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.file("900-farm.yaml").c_str(), 0600), 0);
    EXPECT_EQ(Replacement(folder.file("900-farm.yaml")).file(), nullptr);
    EXPECT_EQ(folder.listing(), "900-farm.yaml");
}
