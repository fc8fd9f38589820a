// Every folder cases/<subject>/<case> holds a script.txt. It compiles when expected-code.txt is
// there, which then holds the code (with "\n" as line end and {R} for random numbers), and must
// fail when it is not. expected-messages.txt holds the messages, if there are any. A file "debug"
// asks for debug mode.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/helpers/TemporaryFolder.h"
#include "tests/ttbasic/Compile.h"

namespace fs = std::filesystem;

namespace {

fs::path casesFolder()
{
    return fs::path(PLINKETT_SOURCE_DIR) / "tests/ttbasic/cases";
}

std::vector<std::string> caseNames()
{
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(casesFolder())) {
        if (entry.path().filename() == "script.txt") {
            names.push_back(fs::relative(entry.path().parent_path(), casesFolder()).string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string testName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

class Case : public testing::TestWithParam<std::string>
{
protected:
    bool has(const char* file) const { return fs::exists(folder / file); }
    std::string content(const char* file) const
    {
        return has(file) ? readFile((folder / file).string()) : "";
    }

    const fs::path folder = casesFolder() / GetParam();
};

TEST_P(Case, CompilesAsExpected)
{
    const Compiled compiled = compile(content("script.txt"), has("debug"));
    EXPECT_EQ(compiled.messages, content("expected-messages.txt"));
    EXPECT_EQ(compiled.ok, has("expected-code.txt"));
    if (compiled.ok) {
        const std::string code = withRandomNumbers(content("expected-code.txt"));
        EXPECT_EQ(compiled.code(), withWindowsLineEnds(code));
    }
}

INSTANTIATE_TEST_SUITE_P(Scripts, Case, testing::ValuesIn(caseNames()), testName);

}  // namespace
