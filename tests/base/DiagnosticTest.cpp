#include "base/Diagnostic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/helpers/CapturedMessages.h"

namespace {

using testing::ElementsAre;

Diagnostic anyDiagnostic()
{
    Diagnostic diagnostic;
    diagnostic.severity = Severity::warning;
    diagnostic.kind = "kind";
    diagnostic.text = "text";
    diagnostic.file = "file";
    diagnostic.line = 1;
    diagnostic.column = 2;
    diagnostic.length = 3;
    diagnostic.subject = "cow";
    diagnostic.page = 4;
    diagnostic.area = 5;
    return diagnostic;
}

TEST(Diagnostic, IsAValueThatDiffersWhenAnythingDiffers)
{
    const Diagnostic one = anyDiagnostic();
    EXPECT_TRUE(one == anyDiagnostic());
    const auto differs = [&](auto change) {
        Diagnostic other = one;
        change(other);
        return one != other;
    };
    EXPECT_TRUE(differs([](Diagnostic& d) { d.severity = Severity::error; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { d.kind += "x"; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { d.text += "x"; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { d.file += "x"; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { ++d.line; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { ++d.column; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { ++d.length; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { d.subject += "x"; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { ++d.page; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { ++d.area; }));
    EXPECT_TRUE(differs([](Diagnostic& d) { d.printed += "x"; }));
}

TEST(Diagnostic, CollectIntoKeepsTheOrder)
{
    std::vector<Diagnostic> list;
    const DiagnosticSink sink = collectInto(list);
    Diagnostic second = anyDiagnostic();
    second.line = 7;
    sink(anyDiagnostic());
    sink(second);
    EXPECT_THAT(list, ElementsAre(anyDiagnostic(), second));
}

TEST(Diagnostic, IsPrintedInItsFixedWordsWhereItHasThem)
{
    const CapturedMessages messages;
    Diagnostic diagnostic = anyDiagnostic();
    diagnostic.printed = "100 %s\n";
    printWith(CapturedMessages::print)(diagnostic);
    EXPECT_EQ(messages.text(), "100 %s\n");
}

TEST(Diagnostic, IsElsePrintedWithItsSeverityAndPlace)
{
    const CapturedMessages messages;
    Diagnostic diagnostic = anyDiagnostic();
    diagnostic.file = "a/b/900-Zoo.yaml";
    diagnostic.text = "this is 100 %s";
    printWith(CapturedMessages::print)(diagnostic);
    EXPECT_EQ(messages.text(), "Warning: 900-Zoo.yaml line 1: this is 100 %s\n");
}

TEST(Diagnostic, IsPrintedWithWhatIsKnownOfItsPlace)
{
    Diagnostic diagnostic;
    diagnostic.text = "text";
    EXPECT_EQ(consoleLine(diagnostic), "Error: text\n");
    diagnostic.line = 7;
    EXPECT_EQ(consoleLine(diagnostic), "Error: line 7: text\n");
    diagnostic.file = "Zoo.yaml";
    diagnostic.line = 0;
    EXPECT_EQ(consoleLine(diagnostic), "Error: Zoo.yaml: text\n");
}

TEST(Diagnostic, HasAWordForEachSeverity)
{
    EXPECT_STREQ(severityName(Severity::error), "Error");
    EXPECT_STREQ(severityName(Severity::warning), "Warning");
    EXPECT_STREQ(severityName(Severity::hint), "Hint");
}

}  // namespace
