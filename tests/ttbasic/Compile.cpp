#include "tests/ttbasic/Compile.h"

#include <cstdlib>

#include <gtest/gtest.h>

#include "base/TextHelpers.h"
#include "tests/helpers/CapturedMessages.h"
#include "ttbasic/ttbasic.h"

std::string Compiled::registers() const
{
    std::string text;
    for (const std::string& name : script.variables) {
        text += (text.empty() ? "" : " ") + name;
    }
    return text;
}

Compiled compile(const std::string& source, bool debugMode)
{
    CapturedMessages messages;
    ttbasic::redirectPrintfTo(CapturedMessages::print);
    Compiled compiled;
    compiled.script.source = source;
    compiled.ok = compileScript(compiled.script, debugMode);
    compiled.messages = messages.text();
    ttbasic::redirectPrintfTo(nullptr);
    return compiled;
}

std::vector<Diagnostic> diagnosticsOf(const std::string& source)
{
    std::vector<Diagnostic> found;
    ttbasic script;
    script.reportTo(collectInto(found));
    script.source = source;
    const bool ok = compileScript(script, false);
    EXPECT_EQ(ok, found.empty()) << source;
    return found;
}

std::string errorsOf(const std::string& source)
{
    const Compiled compiled = compile(source);
    EXPECT_FALSE(compiled.ok) << source;
    return compiled.messages;
}

std::string scripts(const std::string& lines)
{
    return withWindowsLineEnds(withRandomNumbers("scripts:\n" + lines));
}

std::string withRandomNumbers(std::string text)
{
    std::srand(7787);
    for (size_t at = text.find("{R}"); at != std::string::npos; at = text.find("{R}", at)) {
        text.replace(at, 3, std::to_string(std::rand() % 997));
    }
    return text;
}

std::string withWindowsLineEnds(const std::string& text)
{
    std::string result = text;
    strReplace(result, "\n", "\r\n");
    return result;
}
