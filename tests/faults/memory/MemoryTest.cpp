// Memory that is missing once, at each place where a work takes some: the work says so or throws
// std::bad_alloc, which programs tell, and all that was there before is still there.
#include <QImage>

#include <gtest/gtest.h>

#include <filesystem>

#include "base/PrintFunction.h"
#include "document/UnsavedWork.h"
#include "oid/OpenProject.h"
#include "oid/PrintImage.h"
#include "publish/DescribeGame.h"
#include "publish/YamlFile.h"
#include "tests/document/Snapshot.h"
#include "tests/faults/memory/FailingMemory.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

using failingMemory::End;
namespace fs = std::filesystem;

namespace {

const char* const kScript = "voice max lang de sex m\n"
                            "sub cow\n"
                            "count = count + 1\n"
                            "if count > 3\n"
                            "say max \"Moo\" \"Muh\"\n"
                            "else\n"
                            "say \"Not yet\"\n"
                            "end if\n"
                            "end sub\n";

std::string bookText()
{
    return std::string("PRODUCT 900, \"Zoo\"\r\nIMAGE\r\nPAPER 4 3\r\nDPI 600\r\n"
                       "BOX cow 10 10 30 30\r\nCIRCLE hen 60 40 10\r\n"
                       "POLY pig\r\n10 60\r\n20 60\r\n20 80\r\nEND\r\nSCRIPT\r\n") +
           kScript;
}

class MissingMemory : public testing::Test
{
protected:
    MissingMemory()
    {
        setDefaultPrintf(printNothing);
        ttbasic::redirectPrintfTo(printNothing);
        mi_printf = printNothing;
        writeFile(path, bookText());
        QImage picture(60, 40, QImage::Format_RGB32);
        picture.fill(Qt::white);
        EXPECT_TRUE(picture.save(QString::fromStdString(folder.file("900-bkgnd0.jpg"))));
    }

    // Does the work as often as it takes memory, which is refused at another place each time, and
    // looks after each. The preparation gets all memory.
    void refuseEach(const std::function<void()>& prepare, const std::function<void()>& work,
                    const std::function<void(End end)>& check)
    {
        prepare();
        const int count = failingMemory::allocationsOf(work);
        ASSERT_GT(count, 10);
        int thrown = 0;
        for (int i = 1; i <= count && !HasFailure(); ++i) {
            SCOPED_TRACE("allocation " + std::to_string(i) + " of " + std::to_string(count));
            prepare();
            const End end = failingMemory::refuse(i, work);
            thrown += end == End::refused ? 1 : 0;
            check(end);
        }
        printf("%d allocations refused, %d of them thrown\n", count, thrown);
    }

    const TemporaryFolder folder;
    const std::string path = folder.file("book.oidpro");
};

void ignore(const Diagnostic& /*diagnostic*/) {}

std::unique_ptr<Oid::OidProject> opened(const std::string& path)
{
    auto project = std::make_unique<Oid::OidProject>();
    project->print = printNothing;
    EXPECT_TRUE(Oid::openProject(
        *project, path, [](const Diagnostic& found) { ADD_FAILURE() << consoleLine(found); }));
    return project;
}

std::string described(Oid::OidProject& project)
{
    const auto game = describeGame(project, ignore, false);
    return game ? std::to_string(game->scripts.size()) : "none";
}

}  // namespace

TEST_F(MissingMemory, WhileAProjectIsLoadedIsToldAndTheNextLoadIsWhole)
{
    std::unique_ptr<Oid::OidProject> project;
    bool isOpen = false;
    const std::string whole = savedBytes(*opened(path));
    refuseEach(
        [&] {
            project = std::make_unique<Oid::OidProject>();
            project->print = printNothing;
        },
        [&] { isOpen = Oid::openProject(*project, path, ignore); },
        [&](End end) {
            if (end == End::done && isOpen) {
                EXPECT_EQ(savedBytes(*project), whole);
            }
            EXPECT_EQ(readFile(path), bookText());
            EXPECT_EQ(savedBytes(*opened(path)), whole);
        });
}

TEST_F(MissingMemory, WhileAScriptIsCompiledLeavesTheProjectAsItWas)
{
    const auto project = opened(path);
    const std::string before = savedBytes(*project);
    const std::string game = described(*project);
    EXPECT_NE(game, "none");
    refuseEach([] {}, [&] { described(*project); },
               [&](End /*end*/) {
                   EXPECT_EQ(savedBytes(*project), before);
                   EXPECT_EQ(described(*project), game);
               });
}

TEST_F(MissingMemory, WhileADescriptionIsWrittenLeavesTheOldOne)
{
    const auto project = opened(path);
    const std::string before = savedBytes(*project);
    const std::string yaml = folder.file("900-Zoo.yaml");
    ASSERT_TRUE(makeYAML(*project));
    const std::string whole = readFile(yaml);
    bool isMade = false;
    const auto prepare = [&] {
        writeFile(yaml, "old");
        isMade = false;
    };
    refuseEach(
        prepare, [&] { isMade = makeYAML(*project); },
        [&](End /*end*/) {
            const std::string now = readFile(yaml);
            EXPECT_TRUE(now == whole || (now == "old" && !isMade)) << now;
            EXPECT_EQ(savedBytes(*project), before);
        });
}

TEST_F(MissingMemory, WhileAPageIsPrintedLeavesTheOldImage)
{
    const auto project = opened(path);
    const std::string image = folder.file("900-print0.tiff");
    ASSERT_TRUE(makeImage(0, *project));
    const std::string whole = readFile(image);
    const std::string before = savedBytes(*project);
    bool isMade = false;
    const auto prepare = [&] {
        writeFile(image, "old");
        isMade = false;
    };
    refuseEach(
        prepare, [&] { isMade = makeImage(0, *project); },
        [&](End /*end*/) {
            const std::string now = readFile(image);
            EXPECT_TRUE(now == whole || (now == "old" && !isMade)) << now.size();
            EXPECT_EQ(savedBytes(*project), before);
        });
}

TEST_F(MissingMemory, WhileAProjectIsSavedLeavesTheOldFile)
{
    const auto project = opened(path);
    const std::string whole = savedBytes(*project);
    bool isSaved = false;
    const auto prepare = [&] {
        writeFile(path, "old");
        isSaved = false;
    };
    refuseEach(
        prepare, [&] { isSaved = project->save(path); },
        [&](End /*end*/) {
            const std::string now = readFile(path);
            EXPECT_TRUE(now == whole || (now == "old" && !isSaved)) << now;
            EXPECT_EQ(savedBytes(*project), whole);
        });
}

// The copy is the old one or the new one, and what could not be kept is kept by the next attempt.
TEST_F(MissingMemory, WhileUnsavedWorkIsKeptLosesNoCopy)
{
    const ChangedVariable data("XDG_DATA_HOME", folder.path());
    std::string script;
    std::unique_ptr<UnsavedWork> work;
    const auto kept = [&] {
        std::string all;
        for (const auto& entry : fs::recursive_directory_iterator(folder.file("plinkett"))) {
            const bool isCopy = entry.path().extension() == ".oidpro";
            all += isCopy ? readFile(entry.path().string()) : std::string();
        }
        return all;
    };
    const auto holds = [&](const std::string& text) {
        return kept().find(text) != std::string::npos;
    };
    refuseEach(
        [&] {
            work.reset();
            fs::remove_all(folder.file("plinkett"));
            work = std::make_unique<UnsavedWork>(
                UnsavedWork::Source{[&] { return std::hash<std::string>()(script); },
                                    [&] {
                                        Oid::OidProject project;
                                        project.compiler.source = script;
                                        return project;
                                    }});
            script = "before";
            work->isSaved(path);
            script = "the old script";
            ASSERT_TRUE(work->keepNow());
            ASSERT_TRUE(holds("the old script")) << folder.listing();
            script = "the new script";
        },
        [&] { work->keepNow(); },
        [&](End /*end*/) {
            EXPECT_NE(holds("the old script"), holds("the new script"));
            EXPECT_TRUE(work->keepNow());
            EXPECT_TRUE(holds("the new script"));
        });
}
