#include <filesystem>
#include <gmock/gmock.h>
#include <set>

#include "tests/cli/RunCli.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/Sound.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

const char* const kBook = "PRODUCT 901, \"Zoo\"\r\n"
                          "SCRIPT\r\n"
                          "sub cow\r\n"
                          "say \"Moo!\"\r\n"
                          "say eve Grün\r\n"
                          "end sub\r\n";

// A book with three texts (one of them the welcome), and stand-ins for the programs that speak.
class Speech : public testing::Test
{
protected:
    Speech()
    {
        writeFile(folder.file("book.oidpro"), kBook);
        speech.plan("write 9 speech\n");
        sound.plan("write -1 sound\n");
        fs::create_directory(folder.file("in"));
        fs::create_directory(folder.file("data"));
    }

    std::string run(const std::vector<std::string>& words) const
    {
        std::vector<std::string> all = {"speech", folder.file("book.oidpro")};
        all.insert(all.end(), words.begin(), words.end());
        return resultOf(cli(all, {"PATH=" + tools.path() + ":" + PLINKETT_BIN_DIR +
                                      "/tools/text2speech_win:/usr/bin:/bin",
                                  std::string(kUserData) + "=" + folder.file("data"),
                                  std::string(kUserSettings) + "=" + folder.file("data")}));
    }

    std::string audio(const std::string& name) const { return folder.file("901-audio/" + name); }

    // The names in the audio folder, joined by blanks.
    std::string audioFiles() const
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(audio(""))) {
            names.insert(entry.path().filename().string());
        }
        std::string joined;
        for (const std::string& name : names) {
            joined += (joined.empty() ? "" : " ") + name;
        }
        return joined;
    }

    TemporaryFolder folder;
    TemporaryFolder tools;
    FakeProgram speech{tools.path(), "Text2Speech.exe"};
    FakeProgram sound{tools.path(), "ffmpeg.exe"};
};

}  // namespace

// --- list ----------------------------------------------------------------------------------------

TEST_F(Speech, ListsTheTextsInOrderOfUse)
{
    fs::create_directory(audio(""));
    writeTone(audio("say_eve_Gr__n.ogg"));
    EXPECT_EQ(run({"list"}), "status 0\n"
                             "missing      2        -  adam: Moo!\n"
                             "recorded     3    1.0 s  eve: Grün\n"
                             "missing      -        -  adam: Zoo. Start.\n");
}

TEST_F(Speech, ListTellsWhatIsSpokenOutOfDateAndRefused)
{
    EXPECT_EQ(run({"speak"}), "status 0\n");
    writeFile(folder.file("book.oidpro"), "PRODUCT 901, \"Farm\"\r\nSCRIPT\r\nsub cow\r\n"
                                          "say \"Moo?\"\r\nsay \"Moo!\"\r\nsay " +
                                              std::string(250, 'x') + "\r\nend sub\r\n");
    EXPECT_EQ(
        run({"list"}),
        "status 0\n"
        "refused      2        -  adam: Moo? (shares its audio file with the text in line 3)\n"
        "spoken       3    0.0 s  adam: Moo!\n"
        "refused      4        -  adam: " +
            std::string(250, 'x') +
            " (too long for the name of an audio file)\n"
            "stale        -    0.0 s  adam: Farm. Start.\n");
}

TEST_F(Speech, ListAsJsonHasAllKeysOfEveryText)
{
    fs::create_directory(audio(""));
    writeTone(audio("say_eve_Gr__n.ogg"));
    EXPECT_EQ(run({"list", "--json"}),
              "status 0\n"
              "[\n"
              "    {\n"
              "        \"file\": \"901-audio/say_adam_Moo_.ogg\",\n"
              "        \"line\": 2,\n"
              "        \"name\": \"say_adam_Moo_\",\n"
              "        \"seconds\": null,\n"
              "        \"state\": \"missing\",\n"
              "        \"text\": \"Moo!\",\n"
              "        \"voice\": \"adam\"\n"
              "    },\n"
              "    {\n"
              "        \"file\": \"901-audio/say_eve_Gr__n.ogg\",\n"
              "        \"line\": 3,\n"
              "        \"name\": \"say_eve_Gr__n\",\n"
              "        \"seconds\": 1,\n"
              "        \"state\": \"recorded\",\n"
              "        \"text\": \"Grün\",\n"
              "        \"voice\": \"eve\"\n"
              "    },\n"
              "    {\n"
              "        \"file\": \"901-audio/_welcome_message_text.ogg\",\n"
              "        \"line\": null,\n"
              "        \"name\": \"_welcome_message_text\",\n"
              "        \"seconds\": null,\n"
              "        \"state\": \"missing\",\n"
              "        \"text\": \"Zoo. Start.\",\n"
              "        \"voice\": \"adam\"\n"
              "    }\n"
              "]\n");
}

TEST_F(Speech, OfAScriptWithMistakesTheMessagesAreShown)
{
    writeFile(folder.file("book.oidpro"), "SCRIPT\r\nsub cow\r\nfoo\r\nend sub\r\n");
    const std::string messages = "!!! Error: Line 2 Failed to parse command: foo\n"
                                 "!!! Error: Line 2 Syntax Error\n";
    EXPECT_EQ(run({"list"}), "status 1\n" + messages);
    EXPECT_EQ(run({"list", "--json"}), "status 1\nstderr: " + messages);
    EXPECT_EQ(run({"speak"}), "status 1\n" + messages);
    EXPECT_EQ(run({"tidy"}), "status 1\n" + messages);
    EXPECT_EQ(run({"even-out"}), "status 1\n" + messages);
    EXPECT_EQ(run({"import", folder.file("in")}), "status 1\n" + messages);
}

TEST_F(Speech, AProjectThatIsNotThereIsReported)
{
    fs::remove(folder.file("book.oidpro"));
    EXPECT_EQ(run({"list"}),
              "status 1\nError: Can't open file '" + folder.file("book.oidpro") + "'\n");
}

TEST_F(Speech, ADamagedIndexIsTold)
{
    fs::create_directory(audio(""));
    writeFile(audio("speech-index.json"), "oops");
    EXPECT_THAT(run({"list"}),
                testing::StartsWith("status 0\nWarning: The file '" + audio("speech-index.json") +
                                    "' is damaged: files that were spoken count as your own\n"));
    EXPECT_THAT(run({"list", "--json"}), HasSubstr("stderr: Warning: The file '"));
}

// --- speak ---------------------------------------------------------------------------------------

TEST_F(Speech, SpeakMakesWhatIsMissingOrOutOfDate)
{
    EXPECT_EQ(run({"speak"}), "status 0\n");
    EXPECT_EQ(speech.callCount(), 3);
    EXPECT_EQ(run({"speak"}), "status 0\n");
    EXPECT_EQ(speech.callCount(), 3);
    writeFile(folder.file("book.oidpro"), "PRODUCT 901, \"Zoo\"\r\nSCRIPT\r\nsub cow\r\n"
                                          "say \"Moo?\"\r\nend sub\r\n");
    EXPECT_EQ(run({"speak"}), "status 0\nThe audio file of 'Moo?' says 'Moo!' and is made again\n");
    EXPECT_EQ(speech.callCount(), 4);
    EXPECT_EQ(audioFiles(), "_welcome_message_text.ogg say_adam_Moo_.ogg say_eve_Gr__n.ogg "
                            "speech-index.json");
}

TEST_F(Speech, SpeakTellsWhatHasNoFileInTheOrderOfTheNames)
{
    sound.plan("exit 1\n");
    EXPECT_EQ(run({"speak"}), "status 1\n"
                              "Error: The text 'Zoo. Start.' has no audio file\n"
                              "Error: The text 'Moo!' has no audio file\n"
                              "Error: The text 'Grün' has no audio file\n");
}

// --- import --------------------------------------------------------------------------------------

TEST_F(Speech, ImportTakesRecordingsAndSaysWhatFitsNothing)
{
    writeTone(folder.file("in/Moo!.wav"));
    writeTone(folder.file("in/2 the welcome.wav"));
    writeTone(folder.file("in/Muh.wav"));
    const std::string result = run({"import", folder.file("in")});
    EXPECT_THAT(result, testing::MatchesRegex(
                            "status 1\n"
                            "Moo!\\.wav -> say_adam_Moo_\\.ogg: -1[56]\\.. LUFS, before [^\n]*\n"
                            "2 the welcome\\.wav -> _welcome_message_text\\.ogg: [^\n]*\n"
                            "Error: 'Muh\\.wav' fits no text\n"));
    EXPECT_EQ(audioFiles(), "_welcome_message_text.ogg originals say_adam_Moo_.ogg");
    EXPECT_EQ(readFile(audio("originals/say_adam_Moo_.wav")), readFile(folder.file("in/Moo!.wav")));
    EXPECT_EQ(run({"list"}), "status 0\n"
                             "recorded     2    1.0 s  adam: Moo!\n"
                             "missing      3        -  eve: Grün\n"
                             "recorded     -    1.0 s  adam: Zoo. Start.\n");
}

// They were on a sheet before the script was changed; 1 was another text's then.
TEST_F(Speech, ImportGoesByTheNumbersThatWereGiven)
{
    fs::create_directory(audio(""));
    writeFile(audio("speech-index.json"),
              "{\"version\": 1, \"files\": {}, "
              "\"sheet\": {\"say_adam_Muh\": 1, \"say_adam_Moo_\": 2, \"say_eve_Gr__n\": 9}}");
    writeTone(folder.file("in/1.wav"));
    writeTone(folder.file("in/2.wav"));
    EXPECT_THAT(run({"import", folder.file("in")}),
                testing::MatchesRegex("status 1\n"
                                      "2\\.wav -> say_adam_Moo_\\.ogg: [^\n]*\n"
                                      "Error: '1\\.wav' fits no text\n"));
}

TEST_F(Speech, ImportTellsWhatItCannotDecide)
{
    writeFile(folder.file("book.oidpro"), "PRODUCT 901, \"Zoo\"\r\nSCRIPT\r\nsub cow\r\n"
                                          "say Grün\r\nsay Hi\r\nsay eve Hi\r\nend sub\r\n");
    for (const char* name :
         {"1.wav", "Grün.mp3", "Grün.wav", "Hi.wav", "say_adam_hi.wav", "2.wav", "Zoo.wav"}) {
        writeTone(folder.file("in/") + name);
    }
    EXPECT_THAT(run({"import", folder.file("in")}),
                testing::MatchesRegex(
                    "status 1\n"
                    "say_adam_hi\\.wav -> say_adam_Hi\\.ogg: [^\n]*\n"
                    "Error: '1\\.wav' was not taken: another file fits say_adam_Gr__n better\n"
                    "Error: '2\\.wav' was not taken: another file fits say_adam_Hi better\n"
                    "Error: 'Grün\\.mp3' was not taken: other files fit say_adam_Gr__n as well\n"
                    "Error: 'Grün\\.wav' was not taken: other files fit say_adam_Gr__n as well\n"
                    "Error: 'Hi\\.wav' was not taken: it fits say_adam_Hi, say_eve_Hi\n"
                    "Error: 'Zoo\\.wav' fits no text\n"));
}

TEST_F(Speech, ImportTellsWhatIsNoSound)
{
    fs::remove(sound.path());
    writeFile(folder.file("in/Moo!.wav"), "no sound");
    EXPECT_THAT(run({"import", folder.file("in")}),
                testing::MatchesRegex("status 1\nError: [^\n]*Moo!\\.wav[^\n]*\n"));
    EXPECT_EQ(audioFiles(), "");
}

TEST_F(Speech, ImportKeepsARecordingThatItReplaces)
{
    fs::create_directory(audio(""));
    writeFile(audio("say_adam_Moo_.ogg"), "my voice");
    writeTone(folder.file("in/Moo!.wav"));
    EXPECT_THAT(run({"import", folder.file("in")}), HasSubstr("status 0\n"));
    EXPECT_EQ(readFile(audio("originals/say_adam_Moo_.ogg")), "my voice");
}

TEST_F(Speech, ImportTellsThatAFolderIsEmpty)
{
    EXPECT_EQ(run({"import", folder.file("in")}),
              "status 0\nThere are no files in '" + folder.file("in") + "'\n");
}

TEST_F(Speech, ImportNeedsAFolderOfTheAuthors)
{
    EXPECT_EQ(run({"import", folder.file("nowhere")}),
              "status 1\nError: Can't open folder '" + folder.file("nowhere") + "'\n");
    fs::create_directory(audio(""));
    EXPECT_EQ(run({"import", folder.file("901-audio")}),
              "status 1\nError: '" + folder.file("901-audio") +
                  "' is the audio folder of the book itself\n");
}

// --- tidy ----------------------------------------------------------------------------------------

TEST_F(Speech, TidyTellsAndMovesWhatNoTextUses)
{
    run({"speak"});
    writeFile(audio("say_adam_Old.ogg"), "my voice");
    writeFile(audio("notes.txt"), "notes");
    writeFile(folder.file("book.oidpro"), "PRODUCT 901, \"Zoo\"\r\nSCRIPT\r\nsub cow\r\n"
                                          "say \"Moo!\"\r\nend sub\r\n");
    const std::string list = "901-audio/say_adam_Old.ogg (your own)\n"
                             "901-audio/say_eve_Gr__n.ogg\n";
    EXPECT_EQ(run({"tidy", "--dry-run"}), "status 0\n" + list);
    EXPECT_EQ(audioFiles(), "_welcome_message_text.ogg notes.txt say_adam_Moo_.ogg "
                            "say_adam_Old.ogg say_eve_Gr__n.ogg speech-index.json");
    EXPECT_EQ(run({"tidy"}), "status 0\n" + list);
    EXPECT_EQ(audioFiles(),
              "_welcome_message_text.ogg notes.txt say_adam_Moo_.ogg speech-index.json");
    EXPECT_EQ(readFile(folder.file("data/Trash/files/say_adam_Old.ogg")), "my voice");
    EXPECT_EQ(run({"tidy"}), "status 0\n");
}

TEST_F(Speech, TidyWithoutATrashRemovesNothing)
{
    fs::create_directory(audio(""));
    writeFile(audio("say_adam_Old.ogg"), "my voice");
    fs::remove(folder.file("data"));
    writeFile(folder.file("data"), "no folder");
    EXPECT_EQ(run({"tidy"}),
              "status 1\n"
              "901-audio/say_adam_Old.ogg (your own)\n"
              "Error: '901-audio/say_adam_Old.ogg' stays: it cannot be moved to the trash\n");
    EXPECT_EQ(readFile(audio("say_adam_Old.ogg")), "my voice");
}

// --- even-out ------------------------------------------------------------------------------------

TEST_F(Speech, EvenOutMakesAllEquallyLoudAndWhatWeSpokeStaysOurs)
{
    writeTone(folder.file("quiet.wav"), 0.01);
    writeFile(sound.path(),
              "#!/bin/sh\nfor last; do :; done\ncp '" + folder.file("quiet.wav") + "' \"$last\"\n");
    writeTone(folder.file("in/Moo!.wav"));
    fs::create_directory(audio(""));
    fs::copy_file(folder.file("in/Moo!.wav"), audio("say_adam_Moo_.ogg"));
    EXPECT_EQ(run({"speak"}), "status 0\n");

    EXPECT_THAT(
        run({"even-out"}),
        testing::MatchesRegex("status 0\n"
                              "say_adam_Moo_\\.ogg: -1[56]\\.. LUFS, before [^\n]*\n"
                              "say_eve_Gr__n\\.ogg: -1[56]\\.. LUFS, before [^\n]*\n"
                              "_welcome_message_text\\.ogg: -1[56]\\.. LUFS, before [^\n]*\n"));
    EXPECT_EQ(run({"list"}), "status 0\n"
                             "recorded     2    1.0 s  adam: Moo!\n"
                             "spoken       3    1.0 s  eve: Grün\n"
                             "spoken       -    1.0 s  adam: Zoo. Start.\n");
    EXPECT_EQ(audioFiles(), "_welcome_message_text.ogg originals say_adam_Moo_.ogg "
                            "say_eve_Gr__n.ogg speech-index.json");
    EXPECT_EQ(readFile(audio("originals/say_adam_Moo_.ogg")), readFile(folder.file("in/Moo!.wav")));
    EXPECT_FALSE(fs::exists(audio("originals/say_eve_Gr__n.ogg")));

    EXPECT_THAT(run({"even-out"}),
                testing::MatchesRegex("status 0\n"
                                      "say_adam_Moo_\\.ogg: [^\n]*, not changed\n"
                                      "say_eve_Gr__n\\.ogg: [^\n]*, not changed\n"
                                      "_welcome_message_text\\.ogg: [^\n]*, not changed\n"));
}

TEST_F(Speech, EvenOutTellsWhatIsNoSound)
{
    fs::remove(sound.path());
    fs::create_directory(audio(""));
    writeFile(audio("say_adam_Moo_.ogg"), "no sound");
    EXPECT_THAT(run({"even-out"}),
                testing::MatchesRegex("status 1\nError: [^\n]*say_adam_Moo_\\.ogg[^\n]*\n"));
    EXPECT_EQ(readFile(audio("say_adam_Moo_.ogg")), "no sound");
}

// --- The command ---------------------------------------------------------------------------------

TEST_F(Speech, WithoutAnActionOrWithTooMuchIsAUsageError)
{
    const auto error = [](const std::string& message) {
        return "status 2\nstderr: plinkett-cli: " + message + "\nTry 'plinkett-cli --help'.\n";
    };
    EXPECT_EQ(run({}), error("speech PROJECT needs list, speak, import FOLDER, tidy or even-out"));
    EXPECT_EQ(run({"sing"}), error("speech PROJECT does not know 'sing'"));
    EXPECT_EQ(run({"list", "more"}), error("unexpected argument 'more'"));
    EXPECT_EQ(run({"import"}), error("speech PROJECT import needs FOLDER"));
    EXPECT_EQ(run({"speak", "--json"}), error("speech PROJECT speak has no option --json"));
    EXPECT_EQ(run({"list", "--dry-run"}), error("speech PROJECT list has no option --dry-run"));
}

TEST_F(Speech, HelpNamesTheActions)
{
    EXPECT_EQ(
        resultOf(cli({"speech", "--help"})),
        "status 0\n"
        "Usage: plinkett-cli\n"
        "  speech PROJECT list|speak|import FOLDER|tidy|even-out [--json] [--dry-run]\n"
        "      Texts and their audio files: lists them; speaks what is missing or out of date; "
        "takes\n"
        "      recordings from a folder; moves files that no text uses to the trash; makes all\n"
        "      equally loud.\n"
        "      --json          list: as one JSON array\n"
        "      --dry-run       tidy: only tell which files it would move\n"
        "\n");
}
