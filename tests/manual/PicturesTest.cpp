// The pictures of the manual show the program as it is.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "tests/helpers/TemporaryFolder.h"
#include "tests/manual/ManualPages.h"
#include "tests/manual/Pictures.h"

namespace fs = std::filesystem;

namespace {

class ManualPictures : public testing::TestWithParam<std::string>
{};

std::set<std::string> listed()
{
    std::set<std::string> files;
    for (const Picture& picture : picturesOfManual()) {
        files.insert(picture.file);
    }
    return files;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(, ManualPictures, testing::ValuesIn(manualLanguages()),
                         [](const auto& test) { return test.param; });

TEST_P(ManualPictures, AreYoungerThanTheirForms)
{
    std::istringstream taken(readFile(takenFile(GetParam())));
    std::map<std::string, std::string> states;
    for (std::string file, state; taken >> file >> state;) {
        states[file] = state;
    }
    for (const Picture& picture : picturesOfManual()) {
        EXPECT_EQ(states[picture.file], stateOfForms(picture))
            << picture.file << ": run tools/dev/take-pictures and look at them";
    }
}

TEST_P(ManualPictures, AreThoseOfTheListAndAllAreShown)
{
    std::set<std::string> files;
    for (const auto& entry : fs::directory_iterator(manualFolder(GetParam()) + "/images")) {
        if (entry.path().extension() == ".png") {
            files.insert(entry.path().filename().string());
        }
    }
    EXPECT_EQ(files, listed());
    std::set<std::string> shown;
    for (const ManualPage& page : manualPages(GetParam())) {
        for (const Link& link : page.links) {
            if (link.isPicture) {
                shown.insert(fs::path(link.target).filename().string());
            }
        }
    }
    EXPECT_EQ(shown, listed());
}

TEST_P(ManualPictures, NoTwoAreTheSame)
{
    std::map<std::string, std::string> names;  // by what they show
    for (const Picture& picture : picturesOfManual()) {
        const std::string file = manualFolder(GetParam()) + "/images/" + picture.file;
        const auto [other, isNew] = names.emplace(readFile(file), picture.file);
        EXPECT_TRUE(isNew) << picture.file << " is " << other->second;
    }
}
