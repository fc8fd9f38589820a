#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// The words with which a command runs where there is no network, not even this machine's own. Where
// the system allows that to nobody, as in some containers, it runs as it is, and only its sockets
// are watched.
std::vector<std::string> wayOffline()
{
    const std::vector<std::vector<std::string>> ways = {
        {"unshare", "--net"},
        {"unshare", "--user", "--map-root-user", "--net"},
        {"sudo", "--non-interactive", "--preserve-env", "unshare", "--net"}};
    for (const std::vector<std::string>& way : ways) {
        std::vector<std::string> words(way.begin() + 1, way.end());
        words.emplace_back("true");
        if (runProgram(way[0], words).status == 0) {
            return way;
        }
    }
    return {"env"};
}

// What programs do without a network, and whether they look for one.
class Offline : public testing::Test
{
protected:
    ProgramRun run(const std::string& program, const std::vector<std::string>& words)
    {
        std::vector<std::string> all(way.begin() + 1, way.end());
        all.insert(all.end(), {"env", "LD_PRELOAD=" PLINKETT_SOCKET_WATCH,
                               "SOCKET_WATCH=" + folder.file("sockets"), program});
        all.insert(all.end(), words.begin(), words.end());
        return runProgram(way[0], all,
                          {"QT_QPA_PLATFORM=offscreen", "HOME=" + folder.file("home"),
                           "XDG_CONFIG_HOME=" + folder.file("home")});
    }

    std::string sockets() const
    {
        return fs::exists(folder.file("sockets")) ? readFile(folder.file("sockets")) : "none";
    }

    TemporaryFolder folder;
    const std::vector<std::string> way = wayOffline();
};

const std::string kBin = PLINKETT_BUILD_FOLDER "/bin/";

}  // namespace

TEST_F(Offline, WhoLooksForANetworkIsSeenAndFindsNone)
{
    const ProgramRun asked = run("bash", {"-c", "echo </dev/tcp/127.0.0.1/9"});
    EXPECT_NE(asked.status, 0);
    if (way[0] != "env") {
        EXPECT_NE(asked.err.find("Network is unreachable"), std::string::npos) << resultOf(asked);
    }
    EXPECT_NE(sockets().find("opens a socket"), std::string::npos);
}

TEST_F(Offline, TheCommandLineMakesAWholeBook)
{
    writeFile(folder.file("zoo.oidpro"),
              "PRODUCT 7, \"Zoo\"\nSCRIPT\nsub lion\nsay \"Roar\"\nendsub\n");
    for (const char* name : {"farm.oidpro", "901-bkgnd0.jpg", "901-bkgnd1.jpg"}) {
        fs::copy(std::string(PLINKETT_SOURCE_DIR "/examples/farm/") + name, folder.path());
    }
    const std::string farm = folder.file("farm.oidpro");
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{"build", folder.file("zoo.oidpro")},
                                               {"check", farm, "--hints"},
                                               {"print", farm},
                                               {"pdf", farm}}) {
        const ProgramRun made = run(kBin + "plinkett-cli", words);
        EXPECT_EQ(made.status, 0) << words[0] << ": " << resultOf(made);
    }
    EXPECT_TRUE(fs::exists(folder.file("7-Zoo.gme"))) << folder.listing();
    EXPECT_EQ(sockets(), "none");
}

TEST_F(Offline, TheWindowOpensABook)
{
    const ProgramRun opened =
        run("timeout", {"5", kBin + "plinkett", PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"});
    EXPECT_EQ(opened.status, 124) << resultOf(opened);  // it was still there
    EXPECT_EQ(sockets(), "none");
}
