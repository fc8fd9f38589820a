#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The script language in data: what a line can be, how it is written, what it means. The compiler,
// the colours of the editor, its help and the tables of docs/manual/en/script.md have their words
// from here.

// What a line of a script is.
enum class StatementKind {
    sub,
    endSub,
    ifBlock,
    elseBranch,
    endIf,
    select,
    caseBranch,
    defaultBranch,
    endSelect,
    jump,
    voice,
    say,
    assignment,  // no keyword, but an "="
    unknown      // nothing that the compiler understands
};

// How a line begins.
struct StatementHead
{
    StatementKind kind = StatementKind::unknown;
    // The first word in small letters; empty for a line of white space only.
    std::string word;
    // The first byte of the keyword and the one behind it ("end  if" is one keyword); of a line
    // without keyword, those of its first word.
    std::size_t begin = 0;
    std::size_t end = 0;
};

// Reads the beginning of a line without comment.
StatementHead readStatement(const char* line);

// Which voice option it is.
enum class VoiceOptionKind { language, sex, age, speed, pitch };

namespace ScriptLanguage {

// A statement as the author looks it up.
struct Statement
{
    StatementKind kind;
    const char* syntax;   // "`sub NAME` ... `end sub` (`endsub`)"
    const char* meaning;  // "what the pen does when the area NAME is touched"
    const char* example;  // a script that compiles
};

// A keyword in small letters and the statement that it begins.
struct Keyword
{
    const char* word;
    StatementKind kind;
};

// An option behind a voice's name.
struct VoiceOption
{
    VoiceOptionKind kind;
    const char* word;
    const char* values;     // "1 to 99"
    const char* byDefault;  // what holds without it
};

// Operators that bind alike.
struct Operators
{
    std::vector<const char*> words;
    const char* meaning;
};

// In the order in which an author learns them; what closes a block stands with what opens it.
const std::vector<Statement>& statements();
// The one that a line of this kind belongs to, `if` for an `else`; null for one without keyword.
const Statement* statementOf(StatementKind kind);
// All words that a line can begin with, but kEnd.
const std::vector<Keyword>& keywords();
// The word that needs a second one, and which ones there are.
constexpr const char* kEnd = "end";
const std::vector<Keyword>& ends();
const std::vector<VoiceOption>& voiceOptions();
// Whether texts of a voice with this language are spoken. Not what the speech program would take
// for an option, or for more than one word: a leading dash, blanks, control characters.
bool isLanguage(std::string_view name);
// From those that bind tightest to the loosest.
const std::vector<Operators>& operators();

// The first voices of every script; the first one says what names no voice.
const std::vector<const char*>& builtInVoices();

// A variable holds 0 up to this.
constexpr int kLargestNumber = 65535;
// The range of a voice's age, speed and pitch.
constexpr int kSmallestVoiceNumber = 1;
constexpr int kLargestVoiceNumber = 99;
// Names of variables that begin with this belong to the compiler.
constexpr char kReservedStart = '_';
// Each of them begins a comment where it stands outside double quotes.
constexpr char kCommentMarkers[] = {'\'', '#'};

}  // namespace ScriptLanguage

// The name of the audio file for a text and the name of the voice that speaks it, without folder
// and extension.
std::string audioNameOf(std::string_view voice, std::string_view text);
