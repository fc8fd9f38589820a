#include "speech/Tidy.h"

#include <filesystem>
#include <gmock/gmock.h>

#include "base/PlatformFiles.h"
#include "speech/SpeechIndex.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

SpeechText textOf(const std::string& audioName)
{
    SpeechText text;
    text.audioName = audioName;
    return text;
}

}  // namespace

TEST(Tidying, FindsAudioFilesThatNoTextUses)
{
    const TemporaryFolder folder;
    for (const char* file : {"used.ogg", "used.wav", "old.ogg", "mine.MP3", "older.flac",
                             "speech-index.json", "speech-index.json.damaged", "notes.txt"}) {
        writeFile(folder.file(file), "");
    }
    fs::create_directory(folder.file("originals"));
    fs::create_directory(folder.file("folder.ogg"));
    writeFile(folder.file("originals/original.wav"), "");
    EXPECT_THAT(unusedAudio(folder.path(), {textOf("used"), textOf("missing")}),
                ElementsAre("mine.MP3", "old.ogg", "older.flac"));
}

TEST(Tidying, AFolderThatIsNotThereIsTidy)
{
    const TemporaryFolder folder;
    EXPECT_THAT(unusedAudio(folder.file("nowhere"), {}), IsEmpty());
}

TEST(Tidying, WhatIsMovedToTheTrashCanBeTakenBack)
{
    const TemporaryFolder folder;
    const ChangedVariable trash(kUserData, folder.file("data"));
    fs::create_directory(folder.file("data"));
    writeFile(folder.file("old.ogg"), "sound");
    EXPECT_TRUE(moveToTrash(folder.file("old.ogg")));
    EXPECT_FALSE(fs::exists(folder.file("old.ogg")));
    EXPECT_EQ(readFile(folder.file("data/Trash/files/old.ogg")), "sound");
}

TEST(Tidying, WithoutATrashTheFileStays)
{
    const TemporaryFolder folder;
    writeFile(folder.file("data"), "no folder");
    const ChangedVariable trash(kUserData, folder.file("data"));
    writeFile(folder.file("old.ogg"), "sound");
    fs::create_directory(folder.file("here"));
    const std::string before = Platform::currentDirectory();
    Platform::changeDirectory(folder.file("here"));
    EXPECT_FALSE(moveToTrash(folder.file("old.ogg")));
    Platform::changeDirectory(before);
    EXPECT_EQ(readFile(folder.file("old.ogg")), "sound");
    EXPECT_TRUE(fs::is_empty(folder.file("here")));
}

TEST(Tidying, TheTrashIsMadeWhereThereIsNoneYet)
{
    const TemporaryFolder folder;
    const ChangedVariable trash(kUserData, folder.file("new/data"));
    writeFile(folder.file("old.ogg"), "sound");
    EXPECT_TRUE(moveToTrash(folder.file("old.ogg")));
    EXPECT_EQ(readFile(folder.file("new/data/Trash/files/old.ogg")), "sound");
}
