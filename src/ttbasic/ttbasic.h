#pragma once

#include <cstdio>
#include <deque>
#include <initializer_list>
#include <list>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/Diagnostic.h"
#include "base/PlatformRandom.h"
#include "base/PrintFunction.h"

// The compiler of the script language: it turns the author's script into the "scripts:" section of
// the game description and collects what has to be spoken.
//
//   ttbasic script;
//   script.source = "sub cow\nsay \"Moo\"\nend sub\n";
//   if (compileScript(script, false)) { text = script.yaml(900, "Farm"); }
//
// parse throws StackUnderflow; compileScript reports it as an error of the script.
class ttbasic
{
public:
    // A synthetic voice that can say texts.
    struct VOICE
    {
        std::string language = "en";
        bool female = false;
        int age = 30;
        int speed = 3;
        int pitch = 3;
    };

    // A text that has to be spoken, without its quotes, and the name of the voice that speaks it.
    struct TALKTEXT
    {
        std::string voice;
        std::string text;
    };

    // A select statement: the register that it looks at, and for each case value the line that
    // declared it.
    struct SELECTCASE
    {
        std::string name;
        std::map<int, int> cases;
    };

    // A part of a line, as in Diagnostic; column 0 where it is not known.
    struct Place
    {
        int line = 0;
        int column = 0;
        int length = 0;
    };

    // The name of a sub where it is defined or jumped to.
    struct Mention
    {
        std::string name;
        Place place;
    };

    // A command of the game description and the statement that it comes from (its beginning).
    struct Command
    {
        std::string_view text;
        Place place;
    };

    // What stands under one name in the game description: a sub's first commands, or a step of
    // them.
    struct Step
    {
        std::string_view name;
        Place place;  // of a sub's name, or of the statement that made the step
        std::vector<Command> commands;
    };

    // An expression needs an operand that is not there.
    struct StackUnderflow : std::runtime_error
    {
        StackUnderflow() : std::runtime_error("Stack underflow") {}
    };

    // --- For those who have a script -------------------------------------------------------------
    ttbasic();
    // A fresh compiler without source; the voices adam and eve are there.
    void clear();
    // Append to the source. Reading an open file always succeeds; a file that cannot be opened is
    // reported and gives false.
    bool read(FILE* file);
    bool read(const std::string& fileName);
    // Compiles the source. All errors are listed; false when there were any. With debugMode the pen
    // says the number of each line before it carries the line out. Throws StackUnderflow.
    bool parse(bool debugMode);
    // The game description up to (not including) the table of codes. Each call draws a random
    // number; the first one adds the welcome message to talkTexts.
    std::string yaml(int productId, const std::string& productName);
    // The same piece by piece: what the registers are in the beginning ("$a := 0  $b := 0"),
    // drawing a random number, and what "scripts:" holds, in its order, which points into the code.
    // Commands in front of the first sub come first, without a name.
    std::string initialValues();
    std::vector<Step> steps() const;
    // The names of all subs, which are the areas that the script reacts to, in ascending order.
    std::vector<std::string> usedOidNames() const;

    // The words of the language in small letters: those that a line can begin with, and those that
    // stand behind the name of a voice.
    static std::vector<std::string> keywords();
    static std::vector<std::string> voiceOptions();

    // The errors of this object go to the sink from now on; an empty one, which a new object has,
    // stands for the shared print function.
    void reportTo(DiagnosticSink sink);
    // The function that all compilers without a sink print their errors with; null is standard
    // output.
    static void redirectPrintfTo(PrintFunction function);
    static PrintFunction myprintf;

    // --- Lines and errors ------------------------------------------------------------------------
    // Compiles one line without comments.
    bool parseCommand(const char* line);
    // Reports an error of the current line. Always false, so that a statement can end with it.
    bool error(const std::string& message);
    // What each line of code of the current block begins with.
    void updateIfPrefix();

    // --- Statements: true, or the result of error ------------------------------------------------
    bool doAssign(const std::string& left, const std::string& right);
    bool doIf(const std::string& condition);
    bool doElse();
    bool doEndif();
    bool doEndselect();
    bool doSelect(const std::string& word);
    bool doCase(int value);
    bool doDefaultCase();
    bool doSub(const std::string& name);
    bool doEndSub();
    bool doGoto(const std::string& name);
    bool doVoice(const std::string& rest);
    bool doSay(const std::string& rest);

    // --- Expressions on a stack of registers -----------------------------------------------------
    // Leaves the value in one more register on the stack.
    bool parseExpression(const std::string& text);
    void asmPush(const std::string& value);
    // The name of the top register. Throws StackUnderflow.
    std::string asmPeek() const;
    // As asmPeek, and takes the register from the stack.
    std::string asmPop();

    // --- Emitters --------------------------------------------------------------------------------
    void asmCmd(const std::string& command);
    // Applies an operator of the game description to a register.
    void asmOperator(const std::string& target, const std::string& op, const std::string& operand);
    void asmGoto(const std::string& name);
    void asmLabel(const std::string& name);
    void asmSay(const std::string& names);
    // What stands in front of each generated command in order to find errors: nothing.
    static std::string asmDbg();
    // Records the welcome message (once) and returns its audio name.
    std::string prepareWelcomeMessage(const std::string& text);
    // What would be recorded.
    TALKTEXT welcomeMessage(const std::string& text) const;
    static constexpr char kWelcomeName[] = "_welcome_message_text";

    // --- Data ------------------------------------------------------------------------------------
    std::string source;
    std::string lastError;
    std::deque<SELECTCASE> selects;  // innermost at the back; never popped
    int lineNumber = 0;              // of the line being compiled, from 1
    std::string ifPrefix;
    std::list<std::string> conditions;  // of the open blocks, outermost first
    std::deque<std::string> stack;      // of registers, top at the back
    std::string code;                   // the "scripts:" section so far
    bool debug = false;
    int labelCounter = 0;    // of the last generated label "asm" + number
    std::string currentSub;  // empty outside subs
    int ifDepth = 0;
    std::map<std::string, int> labels;  // every sub and how often it is defined
    std::set<std::string> variables;    // every register, with its "$"
    std::map<int, std::string> gotos;   // the target of the goto on each line
    std::vector<Mention> definitions;   // of subs, in the order of the lines
    std::vector<Mention> jumps;         // likewise
    std::string currentVoice;
    std::map<std::string, VOICE> voices;
    std::map<std::string, TALKTEXT> talkTexts;  // by audio name
    size_t codeLimit = size_t(1) << 30;         // bytes; a script with more code is an error

private:
    friend bool compileScript(ttbasic& script, bool debugMode);

    // The door through which all errors leave; kind and subject as in Diagnostic.
    bool error(const char* kind, const Place& place, const std::string& message,
               const std::string& subject = {});
    Place placeOf(std::size_t begin, std::size_t end) const;
    Place wholeStatement() const;
    Place argument(std::size_t index) const;
    Place firstArgument(const std::string& name) const;
    Place wholeExpression() const;
    Place faultyToken(const std::string& expression) const;

    bool compileLine(char* line);
    void announceLine();
    bool checkGotos();
    bool checkLabels();

    static std::string conditionOfDefault(const SELECTCASE& select);

    // What a command line begins with when no block is open.
    static constexpr const char* kCommandStart = "        - ";
    // The pieces of one line; they are joined only in the code itself.
    using Pieces = std::initializer_list<std::string_view>;
    void emitLine(Pieces pieces);
    void emitCommand(Pieces pieces);
    bool isTooLarge() const;
    std::string nextLabel();
    std::string randomSummand();
    // Adds one; a counter at the end of its range stays there.
    static void increase(int& counter);
    void emitFallThrough(std::string_view condition, const std::string& label);
    void emitToken(const std::string& token);
    void applyOperator(const std::string& op);
    void compareRegisters(const std::string& target, const std::string& op,
                          const std::string& operand);

    bool chooseVoice(std::vector<std::string>& words, std::string& voice);
    std::string welcomeVoice() const;

    std::string yamlRegisters();
    std::string yamlVoices() const;
    std::string yamlTalkTexts() const;

    // Where the code of each statement begins, and the statement.
    struct Origin
    {
        std::size_t offset;
        Place place;
    };
    std::vector<Origin> origins;
    // The line being compiled, without its comment, and what of it is the keyword ("end if").
    std::string statement;
    Place keyword;
    std::size_t arguments = 0;  // where they begin in the statement
    // Where the expression being compiled begins, which goes up to the statement's end; npos for
    // one that the compiler made up.
    std::size_t expression = std::string::npos;

    DiagnosticSink sink;
    // Of the game; parse seeds them anew.
    Platform::RandomNumbers random;
};

// Compiles the script as parse does; an expression without enough operands counts as an error of
// its line and ends the compilation. For everyone who builds a game.
bool compileScript(ttbasic& script, bool debugMode);

// As the inside of a text in single quotes wants it: each "'" twice.
std::string escapeYamlString(const std::string& text);
