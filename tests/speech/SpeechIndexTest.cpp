#include "speech/SpeechIndex.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

Utterance utterance(const std::string& text)
{
    Utterance said;
    said.text = text;
    said.voice = "max";
    said.settings = {"de", true, 7, 3, 4};
    said.engine = "espeak-ng";
    return said;
}

class Index : public testing::Test
{
protected:
    // What the index of the folder, read anew, says of the file "moo".
    std::string spoken() const
    {
        SpeechIndex index(folder.path());
        const Utterance* const said = index.spokenInto("moo");
        return said != nullptr ? said->text : "";
    }

    // The file was spoken by us.
    void speak(const std::string& text = "Moo!") const
    {
        writeFile(file, "sound");
        setTime(file, "2024-05-31 14:05:40");
        SpeechIndex index(folder.path());
        EXPECT_TRUE(index.remember("moo", utterance(text)));
        EXPECT_TRUE(index.save());
    }

    const TemporaryFolder folder;
    const std::string file = folder.file("moo.ogg");
    const std::string indexFile = folder.file("speech-index.json");
};

}  // namespace

TEST_F(Index, RemembersWhatWasSpokenAndHow)
{
    writeFile(file, "sound");
    SpeechIndex index(folder.path());
    Utterance said = utterance("Grün \"und\" gut");
    said.engine = "piper -m Müh";
    EXPECT_FALSE(index.isChanged());
    EXPECT_TRUE(index.remember("moo", said));
    EXPECT_TRUE(index.isChanged());
    EXPECT_TRUE(index.save());
    EXPECT_FALSE(index.isChanged());

    SpeechIndex again(folder.path());
    const Utterance* const read = again.spokenInto("moo");
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(soundAlike(*read, said));
    EXPECT_EQ(read->voice, "max");
}

TEST_F(Index, IsAFileThatCanBeRead)
{
    speak();
    SpeechIndex index(folder.path());
    writeFile(folder.file("maeh.ogg"), "");
    setTime(folder.file("maeh.ogg"), "2024-05-31 14:05:41");
    index.remember("maeh", utterance("Mäh"));
    index.save();
    std::string text = readFile(indexFile);
    for (size_t at = text.find("\"time\": "); at != std::string::npos;
         at = text.find("\"time\": ", at + 1)) {  // counts from the local time of the test
        text.replace(at + 8, text.find(',', at) - at - 8, "TIME");
    }
    EXPECT_EQ(text, "{\n"
                    "    \"files\": {\n"
                    "        \"maeh\": {\n"
                    "            \"age\": 7,\n"
                    "            \"engine\": \"espeak-ng\",\n"
                    "            \"language\": \"de\",\n"
                    "            \"sex\": \"f\",\n"
                    "            \"sha256\": "
                    "\"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855\",\n"
                    "            \"size\": 0,\n"
                    "            \"text\": \"Mäh\",\n"
                    "            \"time\": TIME,\n"
                    "            \"voice\": \"max\"\n"
                    "        },\n"
                    "        \"moo\": {\n"
                    "            \"age\": 7,\n"
                    "            \"engine\": \"espeak-ng\",\n"
                    "            \"language\": \"de\",\n"
                    "            \"sex\": \"f\",\n"
                    "            \"sha256\": "
                    "\"dd29442deca69f52c50006b831cb216edf78a7da33748f0a80ff19f2ebe57ecd\",\n"
                    "            \"size\": 5,\n"
                    "            \"text\": \"Moo!\",\n"
                    "            \"time\": TIME,\n"
                    "            \"voice\": \"max\"\n"
                    "        }\n"
                    "    },\n"
                    "    \"version\": 1\n"
                    "}\n");
}

TEST_F(Index, AFileThatIsNotThereIsNotSpoken)
{
    speak();
    EXPECT_EQ(spoken(), "Moo!");
    fs::remove(file);
    EXPECT_EQ(spoken(), "");
    SpeechIndex index(folder.path());
    EXPECT_FALSE(index.remember("moo", utterance("Moo!")));
}

TEST_F(Index, AFileThatWasOnlyTouchedIsStillOurs)
{
    speak();
    setTime(file, "2025-05-31 14:05:40");
    SpeechIndex index(folder.path());
    ASSERT_NE(index.spokenInto("moo"), nullptr);
    EXPECT_TRUE(index.isChanged());
    EXPECT_TRUE(index.save());
    writeFile(file, "SOUND");  // the new time was noted
    setTime(file, "2025-05-31 14:05:40");
    EXPECT_EQ(spoken(), "Moo!");
}

TEST_F(Index, AFileThatIsReplacedIsTheAuthors)
{
    speak();
    writeFile(file, "my own voice");
    EXPECT_EQ(spoken(), "");
}

TEST_F(Index, AFileThatIsReplacedByOneOfTheSameSizeIsTheAuthors)
{
    speak();
    writeFile(file, "SOUND");
    setTime(file, "2024-05-31 14:05:41");
    EXPECT_EQ(spoken(), "");
}

TEST_F(Index, AFileThatIsForgottenIsTheAuthors)
{
    speak();
    SpeechIndex index(folder.path());
    index.forget("moo");
    EXPECT_TRUE(index.isChanged());
    EXPECT_TRUE(index.save());
    EXPECT_EQ(spoken(), "");
}

TEST_F(Index, WithoutOneEveryFileIsTheAuthors)
{
    writeFile(file, "sound");
    SpeechIndex index(folder.path());
    EXPECT_EQ(index.state(), SpeechIndex::State::good);
    EXPECT_EQ(index.problem(), "");
    EXPECT_EQ(index.spokenInto("moo"), nullptr);
}

TEST_F(Index, GoesAlongWithItsFolder)
{
    speak();
    const TemporaryFolder other;
    for (const char* name : {"moo.ogg", "speech-index.json"}) {
        writeFile(other.file(name), readFile(folder.file(name)));
    }
    SpeechIndex index(other.path());
    EXPECT_NE(index.spokenInto("moo"), nullptr);
}

TEST_F(Index, DamagedItIsEmptyAndKept)
{
    speak();
    const std::string whole = readFile(indexFile);
    int number = 0;
    for (const std::string& damaged :
         {std::string("oops"), std::string(), whole.substr(0, whole.size() / 2),
          std::string("{\"version\": 2, \"files\": {}}"), std::string("{\"version\": 1}"),
          std::string("{\"version\": 1, \"files\": {\"moo\": {\"text\": 5}}}")}) {
        writeFile(indexFile, damaged);
        SpeechIndex index(folder.path());
        EXPECT_EQ(index.state(), SpeechIndex::State::damaged) << damaged;
        EXPECT_EQ(index.problem(), "The file '" + indexFile +
                                       "' is damaged: files that were spoken count as your own");
        EXPECT_EQ(index.spokenInto("moo"), nullptr);
        EXPECT_EQ(readFile(indexFile), damaged);  // reading it changes nothing

        EXPECT_TRUE(index.save());
        const std::string kept = ++number == 1 ? "" : std::to_string(number);
        EXPECT_EQ(readFile(indexFile + ".damaged" + kept), damaged);
        EXPECT_EQ(SpeechIndex(folder.path()).state(), SpeechIndex::State::good);
    }
}

TEST_F(Index, NumbersThatNoneOfOursCanBeAreDamage)
{
    speak();
    const std::string whole = readFile(indexFile);
    for (const std::string name : {"age", "size", "time"}) {
        const size_t value = whole.find("\"" + name + "\": ") + name.size() + 4;
        const size_t end = whole.find_first_not_of("0123456789", value);
        for (const std::string number : {"1e300", "-1e300", "1e19", "0.5", "\"1\""}) {
            writeFile(indexFile, whole.substr(0, value) + number + whole.substr(end));
            EXPECT_EQ(SpeechIndex(folder.path()).state(), SpeechIndex::State::damaged)
                << name << ' ' << number;
        }
    }
}

TEST_F(Index, OneThatCannotBeOpenedIsEmptyAndTold)
{
    fs::create_directory(indexFile);
    SpeechIndex index(folder.path());
    EXPECT_EQ(index.state(), SpeechIndex::State::unreadable);
    EXPECT_EQ(index.problem(),
              "Can't open file '" + indexFile + "': files that were spoken count as your own");
}

TEST_F(Index, InAFolderThatIsNotThereCannotBeSaved)
{
    SpeechIndex index(folder.file("nowhere"));
    index.expectSpeech("moo");
    EXPECT_FALSE(index.save());
}

TEST_F(Index, OneThatCannotBeWrittenStaysAsItIs)
{
    speak();
    SpeechIndex index(folder.path());
    index.forget("moo");
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
    const bool isRoot = fs::exists(file) && std::ofstream(folder.file("probe")).is_open();
    EXPECT_EQ(index.save(), isRoot);
    fs::permissions(folder.path(), fs::perms::owner_all);
    if (!isRoot) {
        EXPECT_TRUE(index.isChanged());
        EXPECT_EQ(spoken(), "Moo!");
    }
}

TEST_F(Index, KnowsTheSpeechFilesThatAreOurs)
{
    const std::string speech = folder.file("moo.wav");
    SpeechIndex index(folder.path());
    EXPECT_FALSE(index.isSpeechOurs("moo"));
    index.expectSpeech("moo");
    EXPECT_TRUE(index.save());
    writeFile(speech, "spe");  // by a build that was killed
    EXPECT_TRUE(SpeechIndex(folder.path()).isSpeechOurs("moo"));

    writeFile(speech, "speech");
    index.rememberSpeech("moo");
    EXPECT_TRUE(index.save());
    EXPECT_TRUE(SpeechIndex(folder.path()).isSpeechOurs("moo"));
    writeFile(speech, "my own");
    EXPECT_FALSE(SpeechIndex(folder.path()).isSpeechOurs("moo"));
}

TEST_F(Index, ForgetsASpeechFileThatIsGone)
{
    SpeechIndex index(folder.path());
    index.expectSpeech("moo");
    index.rememberSpeech("moo");
    index.expectSpeech("maeh");
    writeFile(folder.file("maeh.ogg"), "sound");
    EXPECT_TRUE(index.remember("maeh", utterance("Mäh")));
    EXPECT_FALSE(index.isSpeechOurs("moo"));
    EXPECT_FALSE(index.isSpeechOurs("maeh"));
}

TEST_F(Index, LeavesNoFileWhereNothingIsNoted)
{
    speak();
    SpeechIndex index(folder.path());
    index.forget("moo");
    EXPECT_TRUE(index.save());
    EXPECT_FALSE(fs::exists(indexFile));
    EXPECT_FALSE(index.isChanged());

    index.expectSpeech("moo");
    index.rememberSpeech("moo");  // none was written
    EXPECT_TRUE(index.save());
    EXPECT_FALSE(fs::exists(indexFile));
}

TEST_F(Index, KeepsTheNumbersOfSheets)
{
    SpeechIndex index(folder.path());
    index.numberTexts({{"moo", 1}, {"maeh", 2}});
    EXPECT_TRUE(index.isChanged());
    EXPECT_TRUE(index.save());
    EXPECT_EQ(readFile(indexFile), "{\n"
                                   "    \"files\": {\n"
                                   "    },\n"
                                   "    \"sheet\": {\n"
                                   "        \"maeh\": 2,\n"
                                   "        \"moo\": 1\n"
                                   "    },\n"
                                   "    \"version\": 1\n"
                                   "}\n");
    SpeechIndex again(folder.path());
    EXPECT_EQ(again.sheetNumbers(), SheetNumbers({{"moo", 1}, {"maeh", 2}}));
    again.numberTexts({{"moo", 7}, {"maeh", 2}});
    EXPECT_FALSE(again.isChanged());
    EXPECT_EQ(again.sheetNumbers().at("moo"), 1);
}

TEST_F(Index, NumbersThatCannotBeAreDamage)
{
    for (const char* sheet : {"1", "{\"moo\": 0}", "{\"moo\": \"1\"}", "{\"a\": 1, \"b\": 1}"}) {
        writeFile(indexFile,
                  std::string("{\"version\": 1, \"files\": {}, \"sheet\": ") + sheet + "}");
        const SpeechIndex index(folder.path());
        EXPECT_EQ(index.state(), SpeechIndex::State::damaged) << sheet;
        EXPECT_TRUE(index.sheetNumbers().empty()) << sheet;
    }
}

TEST_F(Index, NumbersGoAlongWhereTheyAreFree)
{
    SpeechIndex here(folder.path());
    here.numberTexts({{"moo", 1}, {"new", 2}});
    SpeechIndex other(folder.file("other"));
    other.numberTexts({{"moo", 4}, {"maeh", 2}, {"wau", 3}});
    here.takeOver(other);
    EXPECT_EQ(here.sheetNumbers(), SheetNumbers({{"moo", 1}, {"new", 2}, {"wau", 3}}));
}

TEST(Utterances, SoundAlikeWithAnotherNameOfTheVoice)
{
    Utterance other = utterance("Moo");
    other.voice = "eve";
    other.settings.speed = 5;
    other.settings.pitch = 5;
    EXPECT_TRUE(soundAlike(utterance("Moo"), other));
}

TEST(Utterances, AreOthersWithAnotherTextVoiceOrEngine)
{
    const Utterance said = utterance("Moo");
    Utterance other = said;
    other.text = "Muh";
    EXPECT_FALSE(soundAlike(said, other));
    other = said;
    other.settings.language = "en";
    EXPECT_FALSE(soundAlike(said, other));
    other = said;
    other.settings.female = false;
    EXPECT_FALSE(soundAlike(said, other));
    other = said;
    other.settings.age = 8;
    EXPECT_FALSE(soundAlike(said, other));
    other = said;
    other.engine = "piper";
    EXPECT_FALSE(soundAlike(said, other));
}

TEST(Utterances, MayBeAlikeWhereTheEngineIsNotKnown)
{
    Utterance other = utterance("Moo");
    other.engine.clear();
    EXPECT_TRUE(soundAlike(utterance("Moo"), other));
    EXPECT_TRUE(soundAlike(other, utterance("Moo")));
    EXPECT_FALSE(soundAlike(utterance("Muh"), other));
}
