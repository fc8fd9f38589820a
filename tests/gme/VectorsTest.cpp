// Whole games: a folder of tests/gme/vectors holds a YAML file and all that must come of it.
#include "tests/gme/GameFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

fs::path vectorsFolder()
{
    return fs::path(PLINKETT_SOURCE_DIR) / "tests/gme/vectors";
}

// Names of the folders that begin with the letter.
std::vector<std::string> vectorsWith(char letter)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(vectorsFolder())) {
        const std::string name = entry.path().filename().string();
        if (entry.is_directory() && name[0] == letter && name[1] >= '0' && name[1] <= '9') {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string testName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

// A copy of one vector, and of the audio that the vectors share, to work in.
class Vector : public testing::TestWithParam<std::string>
{
protected:
    Vector()
    {
        for (const std::string& name : {GetParam(), std::string("audio")}) {
            fs::copy(vectorsFolder() / name, copy.file(name), fs::copy_options::recursive);
        }
        for (const fs::directory_entry& entry : fs::directory_iterator(copy.file(GetParam()))) {
            const std::string name = entry.path().filename().string();
            const bool isYaml = entry.path().extension() == ".yaml";
            if (isYaml && name.find(".codes.") == std::string::npos) {
                yaml = entry.path();
            }
        }
    }

    std::string expected(const std::string& name) const
    {
        return readIfThere(copy.file(GetParam() + "/" + name));
    }
    std::string codesFile() const
    {
        return (yaml.parent_path() / (yaml.stem().string() + ".codes.yaml")).string();
    }

    TemporaryFolder copy;
    fs::path yaml;
};

class AcceptedVector : public Vector
{};

class RefusedVector : public Vector
{};

}  // namespace

TEST_P(AcceptedVector, GivesTheExpectedFilesAndMessages)
{
    const Assembled result = assembleFile(yaml.string());

    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.messages, expected("expected.txt"));
    EXPECT_EQ(result.codes, withoutComments(expected("expected.codes.yaml")));
    EXPECT_TRUE(result.game == expected("expected.gme")) << "the bytes of the game file differ";
}

TEST_P(RefusedVector, IsRefusedWithTheExpectedMessagesAndNothingIsWritten)
{
    const std::string codesBefore = readIfThere(codesFile());

    const Assembled result = assembleFile(yaml.string());

    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.messages, expected("expected.txt"));
    EXPECT_EQ(readIfThere(codesFile()), codesBefore);
    EXPECT_FALSE(fs::exists(yaml.parent_path() / (yaml.stem().string() + ".gme")));
}

TEST(KeptCodesFile, StaysByteForByteWhenItsContentIsStillRight)
{
    const GameFolder folder;
    const std::string odd = "stop: 6002\nreplay: 6001\nscriptcodes:\n    \"a\":   6003   # label\n";
    folder.add("900-case.codes.yaml", odd);

    EXPECT_TRUE(folder.assemble(yamlWith("")).ok);

    EXPECT_EQ(readFile(folder.file("900-case.codes.yaml")), odd);
}

INSTANTIATE_TEST_SUITE_P(Vectors, AcceptedVector, testing::ValuesIn(vectorsWith('v')), testName);
INSTANTIATE_TEST_SUITE_P(Vectors, RefusedVector, testing::ValuesIn(vectorsWith('e')), testName);
