// Pictures and audio files go where their project goes.
#include "document/CompanionFiles.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "speech/SpeechIndex.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// A project of two pages with the number 900 in the folder "here", which was opened there.
class Companions : public testing::Test
{
protected:
    Companions()
    {
        for (const char* const name : {"here", "here/900-audio", "there"}) {
            fs::create_directory(folder.file(name));
        }
        writeFile(folder.file("here/900-bkgnd0.jpg"), "cover");
        writeFile(folder.file("here/900-bkgnd1.jpg"), "meadow");
        writeFile(folder.file("here/900-audio/moo.ogg"), "moo!");
        project.pictures.resize(2);
        project.projectPath = folder.path() + "\\here\\book.oidpro";
        companions.areBeside(project);
    }

    // As a save does; what the author was asked and what could not be copied, a line each.
    std::string save(const std::string& path, int number, bool overwrite = false)
    {
        project.projectPath = folder.file(path);
        project.productId = number;
        std::string told;
        const auto outcome = companions.follow(project, [&](const std::string& file) {
            told += "overwrite " + below(file) + "?\n";
            return overwrite;
        });
        for (const std::string& file : outcome.failed) {
            told += "failed " + below(file) + "\n";
        }
        copied = outcome.copied;
        return told;
    }

    // Every file with its content, but those that were there from the beginning.
    std::string newFiles() const
    {
        std::string text;
        for (const char* const part : {"here", "there"}) {
            for (const std::string& name : sortedFiles(folder.file(part))) {
                const bool old = below(name).find("here/900-") == 0;
                text += old ? "" : below(name) + ": " + readFile(name) + "\n";
            }
        }
        return text;
    }

    std::string below(const std::string& path) const
    {
        return fs::u8path(path.substr(folder.path().size() + 1)).generic_u8string();
    }

    const TemporaryFolder folder;
    Oid::OidProject project;
    CompanionFiles companions;
    bool copied = false;

private:
    static std::vector<std::string> sortedFiles(const std::string& top)
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(top)) {
            if (entry.is_regular_file()) {
                names.push_back(entry.path().u8string());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

}  // namespace

TEST_F(Companions, AnotherNumberGivesThemOtherNames)
{
    EXPECT_EQ(save("here/book.oidpro", 905), "");
    EXPECT_TRUE(copied);
    EXPECT_EQ(newFiles(), "here/905-audio/moo.ogg: moo!\n"
                          "here/905-bkgnd0.jpg: cover\n"
                          "here/905-bkgnd1.jpg: meadow\n");
}

TEST_F(Companions, AnotherFolderGetsThem)
{
    EXPECT_EQ(save("there/book.oidpro", 900), "");
    EXPECT_EQ(newFiles(), "there/900-audio/moo.ogg: moo!\n"
                          "there/900-bkgnd0.jpg: cover\n"
                          "there/900-bkgnd1.jpg: meadow\n");
}

TEST_F(Companions, TheOldOnesStay)
{
    save("there/book.oidpro", 905);
    EXPECT_EQ(readFile(folder.file("here/900-bkgnd0.jpg")), "cover");
    EXPECT_EQ(readFile(folder.file("here/900-bkgnd1.jpg")), "meadow");
    EXPECT_EQ(readFile(folder.file("here/900-audio/moo.ogg")), "moo!");
}

TEST_F(Companions, WhereNothingChangesNothingIsCopied)
{
    EXPECT_EQ(save("here/other name.oidpro", 900), "");
    EXPECT_FALSE(copied);
    EXPECT_EQ(newFiles(), "");
}

TEST_F(Companions, TheyFollowFromSaveToSave)
{
    save("there/book.oidpro", 905);
    fs::remove_all(folder.file("here"));
    fs::create_directory(folder.file("here"));
    save("there/book.oidpro", 906);
    EXPECT_EQ(readFile(folder.file("there/906-bkgnd1.jpg")), "meadow");
    EXPECT_EQ(readFile(folder.file("there/906-audio/moo.ogg")), "moo!");
}

TEST_F(Companions, APictureInTheWayIsOverwrittenOnlyOnYes)
{
    writeFile(folder.file("there/900-bkgnd1.jpg"), "another book");
    EXPECT_EQ(save("there/book.oidpro", 900, false), "overwrite there/900-bkgnd1.jpg?\n");
    EXPECT_EQ(readFile(folder.file("there/900-bkgnd0.jpg")), "cover");
    EXPECT_EQ(readFile(folder.file("there/900-bkgnd1.jpg")), "another book");
    save("here/book.oidpro", 900);
    EXPECT_EQ(save("there/book.oidpro", 900, true), "overwrite there/900-bkgnd1.jpg?\n");
    EXPECT_EQ(readFile(folder.file("there/900-bkgnd1.jpg")), "meadow");
}

TEST_F(Companions, NobodyIsAskedAgainAboutTheSameFile)
{
    writeFile(folder.file("there/900-bkgnd1.jpg"), "another book");
    save("there/book.oidpro", 900, false);
    EXPECT_EQ(save("there/book.oidpro", 900, true), "");
    EXPECT_EQ(readFile(folder.file("there/900-bkgnd1.jpg")), "another book");
}

// Not the picture of the other book.
TEST_F(Companions, AfterANoItsOwnPictureFollowsToTheNextNumber)
{
    writeFile(folder.file("there/900-bkgnd1.jpg"), "another book");
    save("there/book.oidpro", 900, false);
    EXPECT_EQ(save("there/book.oidpro", 901), "");
    EXPECT_EQ(readFile(folder.file("there/901-bkgnd1.jpg")), "meadow");
}

TEST_F(Companions, TheSamePictureIsNotAskedAbout)
{
    save("there/book.oidpro", 905);
    EXPECT_EQ(save("here/book.oidpro", 900), "");
    EXPECT_FALSE(copied);
}

TEST_F(Companions, AudioFilesThatAreThereStay)
{
    fs::create_directory(folder.file("there/900-audio"));
    writeFile(folder.file("there/900-audio/moo.ogg"), "own recording");
    writeFile(folder.file("here/900-audio/baa.ogg"), "baa!");
    EXPECT_EQ(save("there/book.oidpro", 900), "");
    EXPECT_EQ(readFile(folder.file("there/900-audio/moo.ogg")), "own recording");
    EXPECT_EQ(readFile(folder.file("there/900-audio/baa.ogg")), "baa!");
}

TEST_F(Companions, FoldersWithinTheAudioFolderComeAlong)
{
    fs::create_directories(fs::u8path(folder.file("here/900-audio/songs/K\xC3\xBCken")));
    writeFile(folder.file("here/900-audio/songs/K\xC3\xBCken/la.ogg"), "la!");
    save("there/book.oidpro", 905);
    EXPECT_EQ(readFile(folder.file("there/905-audio/songs/K\xC3\xBCken/la.ogg")), "la!");
}

TEST_F(Companions, AProjectMayMoveIntoItsOwnAudioFolder)
{
    EXPECT_EQ(save("here/900-audio/book.oidpro", 900), "");
    EXPECT_EQ(readFile(folder.file("here/900-audio/900-audio/moo.ogg")), "moo!");
    EXPECT_FALSE(fs::exists(folder.file("here/900-audio/900-audio/900-audio")));
}

TEST_F(Companions, APageWithoutItsPictureIsNothingToCopy)
{
    fs::remove(folder.file("here/900-bkgnd0.jpg"));
    EXPECT_EQ(save("there/book.oidpro", 900), "");
    EXPECT_FALSE(fs::exists(folder.file("there/900-bkgnd0.jpg")));
}

// It was kept under the number that the form shows, which may not be saved yet.
TEST_F(Companions, APictureThatCameInIsWhereTheProjectLooksForIt)
{
    project.productId = 905;
    writeFile(folder.file("here/905-bkgnd1.jpg"), "wood");
    companions.cameIn(project, 1);
    EXPECT_EQ(save("here/book.oidpro", 905), "");
    EXPECT_EQ(readFile(folder.file("here/905-bkgnd0.jpg")), "cover");
    EXPECT_EQ(readFile(folder.file("here/905-bkgnd1.jpg")), "wood");
    save("here/book.oidpro", 906);
    EXPECT_EQ(readFile(folder.file("here/906-bkgnd1.jpg")), "wood");
}

TEST_F(Companions, WhatCannotBeCopiedIsToldAndTriedAgain)
{
    writeFile(folder.file("here/900-bkgnd1.jpg"), std::string(5000, 'x'));
    writeFile(folder.file("here/900-audio/moo.ogg"), std::string(5000, 'x'));
    {
        const SmallDisk disk(1000);
        EXPECT_EQ(save("there/book.oidpro", 905), "failed there/905-bkgnd1.jpg\n"
                                                  "failed there/905-audio\n");
    }
    EXPECT_EQ(newFiles(), "there/905-bkgnd0.jpg: cover\n");
    EXPECT_EQ(save("there/book.oidpro", 905), "");
    EXPECT_EQ(fs::file_size(folder.file("there/905-bkgnd1.jpg")), 5000U);
    EXPECT_EQ(fs::file_size(folder.file("there/905-audio/moo.ogg")), 5000U);
}

TEST_F(Companions, AFolderInThePlaceOfAPictureFails)
{
    fs::create_directory(folder.file("there/900-bkgnd0.jpg"));
    EXPECT_EQ(save("there/book.oidpro", 900, true),
              "overwrite there/900-bkgnd0.jpg?\nfailed there/900-bkgnd0.jpg\n");
    EXPECT_EQ(readFile(folder.file("there/900-bkgnd1.jpg")), "meadow");
}

TEST_F(Companions, AProjectThatWasNeverSavedHasNone)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.file("here"));
    CompanionFiles ofNewProject;
    Oid::OidProject fresh;
    fresh.pictures.resize(1);
    ofNewProject.areBeside(fresh);
    fresh.projectPath = folder.file("there/new.oidpro");
    EXPECT_FALSE(ofNewProject.follow(fresh, {}).copied);
    fs::current_path(before);
    EXPECT_EQ(newFiles(), "");
}

TEST_F(Companions, ANewBookTakesNoAudioFilesOfTheOneThatHasItsNumber)
{
    companions = CompanionFiles();
    project.pictures.clear();
    EXPECT_EQ(save("here/new.oidpro", 900), "");
    EXPECT_EQ(save("here/new.oidpro", 900), "");
    EXPECT_EQ(save("here/new.oidpro", 901), "");
    EXPECT_EQ(newFiles(), "");
}

TEST_F(Companions, AudioFilesMadeUnderAFreeNumberFollow)
{
    companions = CompanionFiles();
    project.pictures.clear();
    save("here/new.oidpro", 900);
    save("here/new.oidpro", 901);
    fs::create_directory(folder.file("here/901-audio"));
    writeFile(folder.file("here/901-audio/baa.ogg"), "baa!");
    save("there/new.oidpro", 902);
    EXPECT_EQ(newFiles(), "here/901-audio/baa.ogg: baa!\nthere/902-audio/baa.ogg: baa!\n");
}

TEST_F(Companions, AfterANoItsOwnPictureFollowsItsPageWhenThatIsMoved)
{
    writeFile(folder.file("there/900-bkgnd1.jpg"), "another book");
    save("there/book.oidpro", 900, false);
    fs::rename(folder.file("there/900-bkgnd0.jpg"), folder.file("there/x"));
    fs::rename(folder.file("there/900-bkgnd1.jpg"), folder.file("there/900-bkgnd0.jpg"));
    fs::rename(folder.file("there/x"), folder.file("there/900-bkgnd1.jpg"));
    companions.pagesArranged({1, 0});
    EXPECT_EQ(save("there/book.oidpro", 900), "");
    EXPECT_EQ(save("there/book.oidpro", 901), "");
    EXPECT_EQ(readFile(folder.file("there/901-bkgnd0.jpg")), "meadow");
    EXPECT_EQ(readFile(folder.file("there/901-bkgnd1.jpg")), "cover");
}

TEST_F(Companions, WhatWasSpokenIsKnownThere)
{
    Utterance said;
    said.text = "Moo!";
    SpeechIndex index(folder.file("here/900-audio"));
    index.remember("moo", said);
    ASSERT_TRUE(index.save());
    EXPECT_EQ(save("there/book.oidpro", 905), "");
    EXPECT_NE(SpeechIndex(folder.file("there/905-audio")).spokenInto("moo"), nullptr);
}

TEST_F(Companions, WhatWasSpokenIsKnownAlsoWhereOtherFilesAre)
{
    for (const char* const file :
         {"here/900-audio/baa", "here/905-audio/baa", "here/905-audio/own"}) {
        fs::create_directory(folder.file("here/905-audio"));
        writeFile(folder.file(file) + std::string(".ogg"), file);
    }
    setTime(folder.file("here/905-audio/baa.ogg"), "2024-05-31 14:05:40");
    Utterance said;
    SpeechIndex index(folder.file("here/900-audio"));
    index.remember("moo", said);
    index.remember("baa", said);
    ASSERT_TRUE(index.save());
    SpeechIndex other(folder.file("here/905-audio"));
    other.remember("own", said);
    ASSERT_TRUE(other.save());

    companions.areBeside(project);
    project.productId = 905;
    std::ignore = companions.follow(project, [](const std::string&) { return false; });
    SpeechIndex there(folder.file("here/905-audio"));
    EXPECT_NE(there.spokenInto("moo"), nullptr);
    EXPECT_NE(there.spokenInto("own"), nullptr);
    EXPECT_EQ(there.spokenInto("baa"), nullptr);  // it was not copied
}

TEST_F(Companions, APictureThatWasPutBackIsFoundWhereItIsNow)
{
    writeFile(folder.file("there/900-bkgnd1.jpg"), "another book");
    save("there/book.oidpro", 900, false);
    fs::rename(folder.file("here/900-bkgnd1.jpg"), folder.file("here/900-bkgnd7.jpg"));
    const std::string here = folder.path() + "\\here\\900-bkgnd";
    companions.wereRenamed({{here + "1.jpg", here + "7.jpg"}});
    save("there/book.oidpro", 901);
    EXPECT_EQ(readFile(folder.file("there/901-bkgnd1.jpg")), "meadow");
}
