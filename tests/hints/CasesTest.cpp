// Every folder cases/<hint> shows one hint: the book in "with" has it, the one in "without", which
// is much like it, has not. expected.txt holds what is said about the first, a line for each
// finding, and below a finding with a quick fix what this changes. Where expected-script.txt is
// there, it holds the script after all the fixes.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "hints/FindHints.h"
#include "oid/OpenProject.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

fs::path casesFolder()
{
    return fs::path(PLINKETT_SOURCE_DIR) / "tests/hints/cases";
}

std::vector<std::string> hintNames()
{
    std::vector<std::string> names;
    for (const hints::Hint& hint : hints::allHints()) {
        names.emplace_back(hint.name);
    }
    return names;
}

// What the fix changes: "  Give it a free number: cow 1002".
struct ChangeInWords
{
    std::string operator()(const hints::TextEdits& edits) const
    {
        std::string text;
        for (const hints::TextEdit& edit : edits) {
            text += " " + std::to_string(edit.line) + ":" + std::to_string(edit.column) + "+" +
                    std::to_string(edit.length);
        }
        return text;
    }
    std::string operator()(const hints::AreaNumber& number) const
    {
        return " " + number.name + " " + std::to_string(number.oid);
    }
    std::string operator()(const hints::PrintResolution& resolution) const
    {
        return " page " + std::to_string(resolution.page) + " " + std::to_string(resolution.dpi);
    }
};

// A book with what this one hint says about it.
struct Advised
{
    Advised(const fs::path& folder, const std::string& hint)
    {
        EXPECT_TRUE(Oid::openProject(project, (folder / "book.oidpro").string()));
        compileScript(project.compiler, false);
        hints::PagePictures pictures;
        for (const hints::Finding& finding : hints::findHints(project, pictures)) {
            if (finding.hint->name == hint) {
                add(finding);
            }
        }
    }

    std::string fixedScript() const { return hints::edited(project.compiler.source, edits); }

    Oid::OidProject project;
    std::string lines;
    hints::TextEdits edits;

private:
    void add(const hints::Finding& finding)
    {
        lines += consoleLine(finding.diagnostic);
        if (!finding.fix) {
            return;
        }
        lines += std::string("  ") + finding.fix->words + ":" +
                 std::visit(ChangeInWords(), finding.fix->change) + "\n";
        if (const auto* const text = std::get_if<hints::TextEdits>(&finding.fix->change)) {
            edits.insert(edits.end(), text->begin(), text->end());
        }
    }
};

std::string testName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

class HintCase : public testing::TestWithParam<std::string>
{
protected:
    std::string content(const char* file) const
    {
        EXPECT_TRUE(fs::exists(folder / file)) << file;
        return readFile((folder / file).string());
    }

    const fs::path folder = casesFolder() / GetParam();
};

TEST_P(HintCase, IsFoundInTheBookThatHasIt)
{
    const Advised book(folder / "with", GetParam());
    EXPECT_EQ(book.lines, content("expected.txt"));
    EXPECT_NE(book.lines, "");
}

TEST_P(HintCase, IsNotFoundInTheBookThatHasNot)
{
    EXPECT_EQ(Advised(folder / "without", GetParam()).lines, "");
}

TEST_P(HintCase, ItsQuickFixesChangeTheScript)
{
    const Advised book(folder / "with", GetParam());
    EXPECT_EQ(!book.edits.empty(), fs::exists(folder / "expected-script.txt"));
    if (!book.edits.empty()) {
        EXPECT_EQ(book.fixedScript(), content("expected-script.txt"));
    }
}

INSTANTIATE_TEST_SUITE_P(Hints, HintCase, testing::ValuesIn(hintNames()), testName);

}  // namespace

TEST(HintCases, AreThoseOfTheHints)
{
    std::vector<std::string> folders;
    for (const auto& entry : fs::directory_iterator(casesFolder())) {
        folders.push_back(entry.path().filename().string());
    }
    std::sort(folders.begin(), folders.end());
    std::vector<std::string> names = hintNames();
    std::sort(names.begin(), names.end());
    EXPECT_EQ(folders, names);
}
