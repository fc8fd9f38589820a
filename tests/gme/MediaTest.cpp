// Finding audio files, and the form in which the game file holds them.
#include "gme/Media.h"
#include "tests/gme/GameFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

std::string candidatesText(const std::string& path)
{
    return path + ", " + path + ".wav, " + path + ".ogg, " + path + ".flac and " + path + ".mp3";
}

std::string missing(const std::string& name, const std::string& path,
                    const std::string& user = "script a")
{
    return "Error: 900-case.yaml: no audio file for " + name + " of " + user +
           ": there is none of " + candidatesText(path) + "\n";
}

// The first candidate for the name "x", or nothing when the template is refused.
std::string firstCandidate(const std::string& text)
{
    gme::MediaPath path;
    return path.setTemplate(text) ? path.candidates("x")[0] : std::string();
}

}  // namespace

TEST(MediaPath, HoldsTheNameOnce)
{
    EXPECT_EQ(firstCandidate("950-audio/%s"), "950-audio/x");
    EXPECT_EQ(firstCandidate("%s"), "x");
    EXPECT_EQ(firstCandidate("50%%/%s.v%%2"), "50%/x.v%2");
    for (const char* text : {"", "audio", "%s%s", "%d", "%", "%s%", "% s", "%S"}) {
        EXPECT_EQ(firstCandidate(text), "") << text;
    }
}

TEST(MediaPath, OtherTemplatesAreReported)
{
    EXPECT_EQ(assemble(yamlWith("media-path: \"a/%s/%s\"\n")).messages,
              "Error: 900-case.yaml line 2: media-path must hold %s once, and %% for a percent "
              "sign: \"a/%s/%s\"\n");
}

TEST(MediaPath, ARelativePathStartsAtTheYamlFileAndAnAbsoluteOneDoesNot)
{
    EXPECT_EQ(gme::mediaFilePath("books/zoo", "audio/x"), "books/zoo/audio/x");
    const std::string absolute = fs::absolute("audio").u8string();
    EXPECT_EQ(gme::mediaFilePath("books/zoo", absolute), absolute);
}

TEST(Media, AnAbsoluteMediaPathWorks)
{
    const GameFolder folder;
    const TemporaryFolder elsewhere;
    writeFile(elsewhere.file("hello.ogg"), "OggS");
    EXPECT_EQ(folder
                  .assemble("product-id: 1\n"
                            "media-path: '" +
                            elsewhere.path() +
                            "/%s'\n"
                            "scripts:\n"
                            "  a: P(hello)\n")
                  .messages,
              "");
}

TEST(Media, AFileMayLieUnderItsNameOrWithOneOfFourExtensions)
{
    const GameFolder folder;
    for (const char* name : {"a", "b.wav", "c.ogg", "d.flac", "e.mp3"}) {
        folder.add(name, "sound");
    }
    EXPECT_TRUE(folder.assemble(yamlWithLine("P(a) P(b) P(c) P(d) P(e)")).ok);
}

TEST(Media, AllMissingFilesAreReportedInTheOrderOfTheirNames)
{
    EXPECT_EQ(assemble(yamlWith("welcome: c\n") + "  b: P(roar) P(b) P(Z) P(b)\n").messages,
              missing("Z", "Z", "script b") + missing("b", "b", "script b") +
                  missing("c", "c", "welcome"));
}

TEST(Media, TwoCandidatesAreOneTooMany)
{
    const GameFolder folder;
    folder.add("roar.wav", "RIFF");
    folder.add("roar", "x");
    EXPECT_EQ(
        folder.assemble(yamlWithLine("P(roar)")).messages,
        "Error: 900-case.yaml: more than one audio file for roar of script a: roar, roar.wav and "
        "roar.ogg\n");
}

TEST(Media, AFolderIsNoAudioFile)
{
    const GameFolder folder;
    fs::create_directory(folder.file("hello"));
    EXPECT_EQ(folder.assemble(yamlWithLine("P(hello)")).messages, missing("hello", "hello"));
}

TEST(Media, ANameThatIsTooLongForAFileIsMissing)
{
    const std::string name(300, 'x');
    EXPECT_EQ(assemble(yamlWithLine("P(" + name + ")")).messages, missing(name, name));
}

TEST(Media, AGameOfMoreThan4GibibytesIsRefusedBeforeItIsWritten)
{
    const GameFolder folder;
    folder.add("long.wav", "");
    fs::resize_file(folder.file("long.wav"), (4ULL << 30) - 100);

    const Assembled result = folder.assemble(yamlWithLine("P(long)"));

    EXPECT_EQ(result.messages, "Error: 900-case.gme: the game file would be larger than 4 GiB\n");
    EXPECT_EQ(folder.listing(), "900-case.yaml long.wav moo.ogg roar.ogg");
}

TEST(Media, MoreThan65536FilesAreTooMany)
{
    std::string lists = "product-id: 900\nwelcome:\n";
    for (int i = 0; i < 33000; ++i) {
        lists += "- a" + std::to_string(i) + ", b" + std::to_string(i) + "\n";
    }
    EXPECT_EQ(assemble(lists + "scripts:\n  a: C\n").messages,
              "Error: 900-case.yaml: the game has more than 65536 audio files\n");
}

TEST(Cypher, ChangesEveryByteButFour)
{
    unsigned char bytes[] = {0x00, 0xFF, 0xAD, 0x52, 'O', 'g', 0x01, 0xAC};
    gme::applyCypher(bytes, sizeof bytes);
    const unsigned char expected[] = {0x00, 0xFF, 0xAD, 0x52, 0xE2, 0xCA, 0xAC, 0x01};
    EXPECT_TRUE(std::equal(std::begin(bytes), std::end(bytes), std::begin(expected)));
}

TEST(Cypher, DecryptsWhatItEncrypted)
{
    std::vector<unsigned char> all(256);
    for (size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<unsigned char>(i);
    }
    std::vector<unsigned char> twice = all;
    gme::applyCypher(twice.data(), twice.size());
    EXPECT_NE(twice, all);
    gme::applyCypher(twice.data(), twice.size());
    EXPECT_EQ(twice, all);
}
