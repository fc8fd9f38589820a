#include "base/Diagnostic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST(Diagnostic, HasAWordForEachSeverity)
{
    EXPECT_STREQ(severityName(Severity::error), "Error");
    EXPECT_STREQ(severityName(Severity::warning), "Warning");
    EXPECT_STREQ(severityName(Severity::hint), "Hint");
}

}  // namespace
