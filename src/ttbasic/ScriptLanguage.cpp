#include "ttbasic/ScriptLanguage.h"

#include <algorithm>
#include <cstring>

#include "base/TextHelpers.h"

// Marks a text for the translations of the program, which the help of the editor shows.
#define QT_TRANSLATE_NOOP(context, text) text

namespace ScriptLanguage {

const std::vector<Statement>& statements()
{
    static const std::vector<Statement> all = {
        {StatementKind::sub, "`sub NAME` ... `end sub` (`endsub`)",
         QT_TRANSLATE_NOOP("ScriptLanguage", "what the pen does when the area NAME is touched"),
         "sub cow\n"
         "  say \"Moo!\"\n"
         "end sub\n"},
        {StatementKind::jump, "`goto NAME`",
         QT_TRANSLATE_NOOP("ScriptLanguage", "goes on with the sub NAME and does not come back"),
         "sub calf\n"
         "  goto cow\n"
         "end sub\n"
         "sub cow\n"
         "  say \"Moo!\"\n"
         "end sub\n"},
        {StatementKind::assignment, "`NAME = EXPRESSION`",
         QT_TRANSLATE_NOOP("ScriptLanguage", "gives a variable a value"),
         "sub cow\n"
         "  touched = touched + 1\n"
         "end sub\n"},
        {StatementKind::ifBlock, "`if EXPRESSION` ... `else` ... `end if` (`endif`)",
         QT_TRANSLATE_NOOP("ScriptLanguage", "does one or the other"),
         "sub cow\n"
         "  if touched == 0\n"
         "    touched = 1\n"
         "  else\n"
         "    say \"Moo!\"\n"
         "  end if\n"
         "end sub\n"},
        {StatementKind::select,
         "`select NAME` ... `case NUMBER` ... `default` ... `end select` (`endselect`)",
         QT_TRANSLATE_NOOP("ScriptLanguage", "chooses by the value of a variable"),
         "sub cow\n"
         "  select touched\n"
         "  case 0\n"
         "    say \"Moo!\"\n"
         "  case 1\n"
         "    say \"Moo again!\"\n"
         "  default\n"
         "    say \"No more milk.\"\n"
         "  end select\n"
         "end sub\n"},
        {StatementKind::voice, "`voice NAME [OPTION VALUE]...`",
         QT_TRANSLATE_NOOP("ScriptLanguage", "declares a voice"),
         "voice max lang de sex m age 40\n"},
        {StatementKind::say, "`say TEXT`, `say VOICE TEXT...`",
         QT_TRANSLATE_NOOP("ScriptLanguage", "speaks the text, or one of several"),
         "sub cow\n"
         "  say \"Moo!\"\n"
         "  say eve \"Good morning.\" \"Good night.\"\n"
         "end sub\n"},
    };
    return all;
}

const Statement* statementOf(StatementKind kind)
{
    const auto opened = [kind] {
        switch (kind) {
        case StatementKind::endSub:
            return StatementKind::sub;
        case StatementKind::elseBranch:
        case StatementKind::endIf:
            return StatementKind::ifBlock;
        case StatementKind::caseBranch:
        case StatementKind::defaultBranch:
        case StatementKind::endSelect:
            return StatementKind::select;
        default:
            return kind;
        }
    }();
    for (const Statement& statement : statements()) {
        if (statement.kind == opened) {
            return &statement;
        }
    }
    return nullptr;
}

const std::vector<Keyword>& keywords()
{
    static const std::vector<Keyword> all = {
        {"sub", StatementKind::sub},
        {"if", StatementKind::ifBlock},
        {"voice", StatementKind::voice},
        {"say", StatementKind::say},
        {"else", StatementKind::elseBranch},
        {"endif", StatementKind::endIf},
        {"select", StatementKind::select},
        {"case", StatementKind::caseBranch},
        {"default", StatementKind::defaultBranch},
        {"endselect", StatementKind::endSelect},
        {"endsub", StatementKind::endSub},
        {"goto", StatementKind::jump},
    };
    return all;
}

const std::vector<Keyword>& ends()
{
    static const std::vector<Keyword> all = {
        {"if", StatementKind::endIf},
        {"sub", StatementKind::endSub},
        {"select", StatementKind::endSelect},
    };
    return all;
}

const std::vector<VoiceOption>& voiceOptions()
{
    static const std::vector<VoiceOption> all = {
        {VoiceOptionKind::language, "lang",
         QT_TRANSLATE_NOOP("ScriptLanguage", "the language: `en`, `de`, `es`, ..."), "`en`"},
        {VoiceOptionKind::sex, "sex", QT_TRANSLATE_NOOP("ScriptLanguage", "`m` or `f`"), "`m`"},
        {VoiceOptionKind::age, "age", QT_TRANSLATE_NOOP("ScriptLanguage", "1 to 99"), "30"},
        {VoiceOptionKind::speed, "speed",
         QT_TRANSLATE_NOOP("ScriptLanguage", "a number; meant is 1 to 5, up to 99 is accepted"),
         "3"},
        {VoiceOptionKind::pitch, "pitch",
         QT_TRANSLATE_NOOP("ScriptLanguage", "a number; meant is 1 to 5, up to 99 is accepted"),
         "3"},
    };
    return all;
}

bool isLanguage(std::string_view name)
{
    const auto isBlank = [](unsigned char c) { return c <= ' ' || c == 0x7F; };
    return !name.empty() && name.front() != '-' && std::none_of(name.begin(), name.end(), isBlank);
}

const std::vector<Operators>& operators()
{
    static const std::vector<Operators> all = {
        {{"*", "/", "%"}, "multiply, divide, remainder"},
        {{"+", "-"}, "add, subtract"},
        {{"&", "|"}, "bitwise and, or"},
        {{"<", ">", "<=", ">=", "==", "!="}, "compare: 1 when it holds, else 0"},
    };
    return all;
}

const std::vector<const char*>& builtInVoices()
{
    static const std::vector<const char*> all = {"adam", "eve"};
    return all;
}

}  // namespace ScriptLanguage

namespace {

StatementKind find(const std::vector<ScriptLanguage::Keyword>& keywords, const std::string& word)
{
    for (const ScriptLanguage::Keyword& keyword : keywords) {
        if (word == keyword.word) {
            return keyword.kind;
        }
    }
    return StatementKind::unknown;
}

}  // namespace

StatementHead readStatement(const char* line)
{
    StatementHead head;
    const char* rest = skipWhite(line);
    head.begin = static_cast<std::size_t>(rest - line);
    head.word = toLower(parseString(rest));
    const char* end = rest;
    if (head.word == ScriptLanguage::kEnd) {
        head.kind = find(ScriptLanguage::ends(), toLower(parseString(rest)));
        end = head.kind != StatementKind::unknown ? rest : end;
    } else {
        head.kind = find(ScriptLanguage::keywords(), head.word);
    }
    head.end = static_cast<std::size_t>(end - line);
    if (head.kind == StatementKind::unknown && std::strchr(line, '=') != nullptr) {
        head.kind = StatementKind::assignment;
    }
    return head;
}

std::string audioNameOf(std::string_view voice, std::string_view text)
{
    std::string name = "say_";
    name.append(voice).append("_").append(text);
    return replaceNonAscii(std::move(name));
}
