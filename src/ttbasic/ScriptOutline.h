#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ttbasic/ScriptLanguage.h"
#include "ttbasic/ttbasic.h"

// What a script is made of, found without compiling it and also for a script with mistakes. Lines,
// statements, words and names are cut as the compiler cuts them; where a script is wrong, the
// outline goes on with what the author will have meant.
//
// A value: copies share the text that the words point into, and it may go to other threads.
struct ScriptOutline
{
    // Lines and columns count from 1, columns and lengths in bytes, as in Diagnostic.
    using Place = ttbasic::Place;

    // An index that leads nowhere.
    static constexpr int kNone = -1;

    // A word as it is written.
    struct Word
    {
        Place place;
        std::string_view text;
    };

    // A line that is more than white space and comment, in order; at most one on a line.
    struct Statement
    {
        StatementKind kind;
        Place keyword;  // "end if"; of an assignment, its first word
        Place place;    // all of it, without the comment
        int sub;        // in subs: the one it stands in, first and last line included
        int block;      // in blocks: the innermost one around it; a block's first and last line and
                        // its `else`, `case` and `default` stand in the block around it
        int depth;      // how far it is indented, in steps
    };

    struct Sub
    {
        Word name;  // empty for a `sub` without a name, at the keyword
        int begin;  // in statements
        int end;    // in statements: its `end sub`, kNone without one
        int line;
        int endLine;  // of its `end sub`, 0 without one
    };

    // A sub, an `if`, a `select`, and each `case` and `default` as a block inside its `select`.
    struct Block
    {
        StatementKind kind;
        int parent;      // in blocks
        int begin;       // in statements
        int end;         // in statements: what ends it (of a `case` also the next one), or kNone
        int elseBranch;  // in statements: the first `else` of an `if` or a `case`, or kNone
    };

    struct Case
    {
        int statement;
        bool isDefault;
        Word number;  // nothing for `default`
        int value;
        // The block of the `select` that the author's indentation would show, and the statement of
        // the one that the compiler takes; kNone without any.
        int block;
        int select;
    };

    struct Goto
    {
        Word target;  // empty for a `goto` without a name, at the keyword
        int statement;
    };

    enum class Access { read, set, selected };

    // A name where a variable is read or set. What a `select` names is read by its cases only.
    struct Variable
    {
        Word word;
        // As the compiler names the register, without "$": what is read is lowered, what is set is
        // not, so `Count = 1` and `x = Count` are about two variables.
        std::string name;
        Access access;
        int statement;
    };

    enum class TokenKind { name, number, op, parenthesis };

    struct Token
    {
        TokenKind kind;
        Word word;
        std::string text;  // without blanks inside: "<=" for "< ="
    };

    // The condition of an `if`, or what stands on the right of an assignment.
    struct Expression
    {
        int statement;
        Place place;     // column 0 when it is empty
        int firstToken;  // in tokens
        int tokenCount;
    };

    struct VoiceOption
    {
        Word word;
        Word value;  // empty when it is missing
    };

    struct Voice
    {
        Word name;  // without its quotes; declared as it is written
        int statement;
        std::vector<VoiceOption> options;
    };

    // The first word of a `say` that names the voice.
    struct VoiceUse
    {
        Word word;
        std::string name;  // in small letters, as the compiler looks it up
        bool isDeclared;   // further up, or built in
        int statement;
    };

    struct Text
    {
        Word word;              // with its quotes
        std::string_view text;  // what is spoken, without them
        std::string voice;
        std::string audioName;  // of the file, without folder and extension
        int statement;
    };

    std::vector<Statement> statements;
    std::vector<Sub> subs;
    std::vector<Block> blocks;
    std::vector<Case> cases;
    std::vector<Goto> gotos;
    std::vector<Variable> variables;
    std::vector<Expression> expressions;
    std::vector<Token> tokens;
    std::vector<Voice> voices;
    std::vector<VoiceUse> voiceUses;
    std::vector<Text> texts;
    std::vector<Place> comments;  // with their marker
    int lineCount = 0;

    // The statement on the line, or null.
    const Statement* statementOn(int line) const;
    // The tokens of an expression in postfix order, as indices into tokens; empty for one that
    // the compiler cannot put in order.
    std::vector<int> postfixOf(const Expression& expression) const;

    // What the words point into: the script, with zero bytes for line ends and comment markers.
    std::shared_ptr<const std::string> source;
};

ScriptOutline outlineOf(std::string text);
