#include "ttbasic/ScriptOutline.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "base/QuotedWords.h"
#include "base/TextHelpers.h"
#include "ttbasic/ExpressionParser.h"
#include "ttbasic/SourceLines.h"

namespace {

using Outline = ScriptOutline;
constexpr int kNone = Outline::kNone;

// Reads a script line by line as the compiler does.
class OutlineReader
{
public:
    OutlineReader(Outline& outlineToFill, std::string& script);
    void read();

private:
    void readLine(char* text);
    void readStatementOf(const char* text);

    void readSub();
    void readEndSub();
    void readJump();
    void readSelect();
    void readCase(bool isDefault);
    void readElse();
    void readEnd();
    void readVoice();
    void readSay();
    void readAssignment();
    void readExpression(std::size_t begin);
    void readVariables(std::size_t begin, std::size_t end, Outline::Access access);

    // Bytes of the line; without white space around them for a place of a statement.
    Outline::Word wordOf(std::size_t begin, std::size_t end) const;
    Outline::Word wordOf(const QuotedWord& word, bool withQuotes = true) const;
    Outline::Place keywordPlace() const { return statement().keyword; }
    // The word behind the keyword; an empty one at the keyword when there is none.
    Outline::Word firstArgument() const;
    std::vector<QuotedWord> arguments() const;
    std::string_view rest() const { return line.substr(head.end); }

    Outline::Statement& statement() { return outline.statements.back(); }
    const Outline::Statement& statement() const { return outline.statements.back(); }
    int statementIndex() const { return static_cast<int>(outline.statements.size()) - 1; }

    // The blocks that are open, innermost at the back.
    bool isOpen(StatementKind kind) const;
    StatementKind innermost() const;
    void open(StatementKind kind);
    void close();
    void closeBranch();
    void forgetBlocks();
    void placeStatement();

    Outline& outline;
    std::string& source;
    int lineNumber = 0;
    std::string_view line;
    StatementHead head;
    std::vector<int> openBlocks;
    int currentSub = kNone;
    int lastSelect = kNone;  // in statements; the compiler never leaves it
    std::set<std::string, std::less<>> declaredVoices;
};

bool isBranch(StatementKind kind)
{
    return kind == StatementKind::caseBranch || kind == StatementKind::defaultBranch;
}

bool isConditional(StatementKind kind)
{
    return kind == StatementKind::ifBlock || isBranch(kind);
}

// What stands in a select is not indented, what stands in its branches is.
bool isIndenting(StatementKind kind)
{
    return kind != StatementKind::select;
}

OutlineReader::OutlineReader(Outline& outlineToFill, std::string& script)
    : outline(outlineToFill), source(script)
{
    for (const char* voice : ScriptLanguage::builtInVoices()) {
        declaredVoices.insert(voice);
    }
}

void OutlineReader::read()
{
    LineSplitter lines(source.data());
    while (char* text = lines.next()) {
        ++lineNumber;
        readLine(text);
    }
    outline.lineCount = lineNumber;
}

void OutlineReader::readLine(char* text)
{
    const std::size_t length = std::strlen(text);
    if (const char* marker = CutComments(text)) {
        const auto begin = static_cast<std::size_t>(marker - text);
        outline.comments.push_back(
            {lineNumber, static_cast<int>(begin) + 1, static_cast<int>(length - begin)});
    }
    readStatementOf(text);
}

void OutlineReader::readStatementOf(const char* text)
{
    line = text;
    head = readStatement(text);
    if (head.word.empty()) {
        return;
    }
    const auto isWhite = [](char c) { return isSpace(c); };
    const auto end = std::find_if_not(line.rbegin(), line.rend(), isWhite).base() - line.begin();
    outline.statements.push_back({head.kind, wordOf(head.begin, head.end).place,
                                  wordOf(head.begin, end).place, kNone, kNone, 0});
    switch (head.kind) {
    case StatementKind::sub:
        return readSub();
    case StatementKind::endSub:
        return readEndSub();
    case StatementKind::elseBranch:
        return readElse();
    case StatementKind::endIf:
    case StatementKind::endSelect:
        return readEnd();
    case StatementKind::caseBranch:
        return readCase(false);
    case StatementKind::defaultBranch:
        return readCase(true);
    default:
        break;
    }
    placeStatement();
    switch (head.kind) {
    case StatementKind::ifBlock:
        readExpression(head.end);
        return open(StatementKind::ifBlock);
    case StatementKind::select:
        return readSelect();
    case StatementKind::jump:
        return outline.gotos.push_back({firstArgument(), statementIndex()});
    case StatementKind::voice:
        return readVoice();
    case StatementKind::say:
        return readSay();
    case StatementKind::assignment:
        return readAssignment();
    default:
        return;
    }
}

// A sub that begins inside another one: that one has no end.
void OutlineReader::readSub()
{
    forgetBlocks();
    currentSub = static_cast<int>(outline.subs.size());
    placeStatement();
    outline.subs.push_back({firstArgument(), statementIndex(), kNone, lineNumber, 0});
    open(StatementKind::sub);
}

void OutlineReader::readEndSub()
{
    while (!openBlocks.empty() && innermost() != StatementKind::sub) {
        openBlocks.pop_back();  // without an end
    }
    close();
    placeStatement();
    if (currentSub != kNone) {
        outline.subs[currentSub].end = statementIndex();
        outline.subs[currentSub].endLine = lineNumber;
    }
    currentSub = kNone;
}

void OutlineReader::readSelect()
{
    const Outline::Word word = firstArgument();
    const auto begin = static_cast<std::size_t>(word.place.column) - 1;
    if (!word.text.empty()) {
        readVariables(begin, begin + word.text.size(), Outline::Access::selected);
    }
    lastSelect = statementIndex();
    open(StatementKind::select);
}

void OutlineReader::readCase(bool isDefault)
{
    if (isOpen(StatementKind::select)) {
        while (innermost() != StatementKind::select) {
            closeBranch();
        }
    }
    placeStatement();
    const Outline::Word number = isDefault ? Outline::Word() : firstArgument();
    const int block = openBlocks.empty() ? kNone : openBlocks.back();
    const bool isInSelect = block != kNone && innermost() == StatementKind::select;
    outline.cases.push_back({statementIndex(), isDefault, number,
                             toInt(std::string(number.text).c_str()), isInSelect ? block : kNone,
                             lastSelect});
    open(head.kind);
}

void OutlineReader::readElse()
{
    // Like the compiler's, it turns round the innermost condition, that of a `case` included.
    const auto found = std::find_if(openBlocks.rbegin(), openBlocks.rend(), [this](int block) {
        return isConditional(outline.blocks[block].kind);
    });
    if (found == openBlocks.rend()) {
        return placeStatement();
    }
    Outline::Block& block = outline.blocks[*found];
    if (block.elseBranch == kNone) {
        block.elseBranch = statementIndex();
    }
    const Outline::Statement& beginning = outline.statements[block.begin];
    statement().sub = beginning.sub;
    statement().block = beginning.block;
    statement().depth = beginning.depth;
}

// As for the compiler, it does not matter which of the two ends it is. A branch takes its select
// along.
void OutlineReader::readEnd()
{
    if (!openBlocks.empty() && innermost() != StatementKind::sub) {
        const bool wasBranch = isBranch(innermost());
        close();
        if (wasBranch && !openBlocks.empty() && innermost() == StatementKind::select) {
            close();
        }
    }
    placeStatement();
}

void OutlineReader::readVoice()
{
    const std::vector<QuotedWord> words = arguments();
    if (words.empty()) {
        return;
    }
    Outline::Voice voice{wordOf(words[0], false), statementIndex(), {}};
    for (std::size_t i = 1; i < words.size(); i += 2) {
        Outline::VoiceOption option{wordOf(words[i], false), {}};
        if (i + 1 < words.size()) {
            option.value = wordOf(words[i + 1], false);
        }
        voice.options.push_back(option);
    }
    declaredVoices.emplace(voice.name.text);
    outline.voices.push_back(std::move(voice));
}

void OutlineReader::readSay()
{
    const std::vector<QuotedWord> words = arguments();
    std::string voice = ScriptLanguage::builtInVoices().front();
    std::size_t firstText = 0;
    if (words.size() >= 2) {
        const Outline::Word word = wordOf(words[0], false);
        voice = toLower(std::string(word.text));
        outline.voiceUses.push_back(
            {word, voice, declaredVoices.count(voice) != 0, statementIndex()});
        firstText = 1;
    }
    for (std::size_t i = firstText; i < words.size(); ++i) {
        const std::string_view text = words[i].contentIn(rest());
        outline.texts.push_back(
            {wordOf(words[i]), text, voice, audioNameOf(voice, text), statementIndex()});
    }
}

void OutlineReader::readAssignment()
{
    const std::size_t equals = line.find('=');
    const std::size_t end = std::min(head.end, equals);
    if (head.begin < end) {
        const Outline::Word word = wordOf(head.begin, end);
        outline.variables.push_back(
            {word, std::string(word.text), Outline::Access::set, statementIndex()});
    }
    readExpression(equals + 1);
}

// From the place on to the end of the line.
void OutlineReader::readExpression(std::size_t begin)
{
    const auto firstToken = static_cast<int>(outline.tokens.size());
    readVariables(begin, line.size(), Outline::Access::read);
    const auto behind = static_cast<int>(outline.tokens.size());
    Outline::Place place{lineNumber, 0, 0};
    if (behind > firstToken) {
        const Outline::Place& last = outline.tokens.back().word.place;
        place.column = outline.tokens[firstToken].word.place.column;
        place.length = last.column + last.length - place.column;
    }
    outline.expressions.push_back({statementIndex(), place, firstToken, behind - firstToken});
}

Outline::TokenKind kindOf(const std::string& token)
{
    const expression_parser parser;
    if (parser.isParenthesis(token)) {
        return Outline::TokenKind::parenthesis;
    }
    if (parser.isOperator(token.substr(0, 1))) {
        return Outline::TokenKind::op;
    }
    return isNumber(token) ? Outline::TokenKind::number : Outline::TokenKind::name;
}

// The names in an expression; its tokens are kept, too, but not those of a select.
void OutlineReader::readVariables(std::size_t begin, std::size_t end, Outline::Access access)
{
    for (ExpressionToken& token :
         expression_parser().placedTokens(line.substr(begin, end - begin))) {
        const Outline::Word word = wordOf(begin + token.begin, begin + token.end);
        const Outline::TokenKind kind = kindOf(token.text);
        if (kind == Outline::TokenKind::name) {
            outline.variables.push_back({word, toLower(token.text), access, statementIndex()});
        }
        if (access == Outline::Access::read) {
            outline.tokens.push_back({kind, word, std::move(token.text)});
        }
    }
}

Outline::Word OutlineReader::wordOf(std::size_t begin, std::size_t end) const
{
    return {{lineNumber, static_cast<int>(begin) + 1, static_cast<int>(end - begin)},
            line.substr(begin, end - begin)};
}

Outline::Word OutlineReader::wordOf(const QuotedWord& word, bool withQuotes) const
{
    const std::size_t cut = word.isQuoted && !withQuotes ? 1 : 0;
    return wordOf(head.end + word.begin + cut, head.end + word.end - cut);
}

Outline::Word OutlineReader::firstArgument() const
{
    const auto isWhite = [](char c) { return isSpace(c); };
    const auto begin = std::find_if_not(line.begin() + head.end, line.end(), isWhite);
    const auto end = std::find_if(begin, line.end(), isWhite);
    if (begin == end) {
        return {keywordPlace(), {}};
    }
    return wordOf(begin - line.begin(), end - line.begin());
}

std::vector<QuotedWord> OutlineReader::arguments() const
{
    return quotedWordsOf(rest());
}

bool OutlineReader::isOpen(StatementKind kind) const
{
    return std::any_of(openBlocks.begin(), openBlocks.end(),
                       [&](int block) { return outline.blocks[block].kind == kind; });
}

StatementKind OutlineReader::innermost() const
{
    return outline.blocks[openBlocks.back()].kind;
}

void OutlineReader::open(StatementKind kind)
{
    const int parent = openBlocks.empty() ? kNone : openBlocks.back();
    openBlocks.push_back(static_cast<int>(outline.blocks.size()));
    outline.blocks.push_back({kind, parent, statementIndex(), kNone, kNone});
}

// The innermost block ends with this statement.
void OutlineReader::close()
{
    if (!openBlocks.empty()) {
        outline.blocks[openBlocks.back()].end = statementIndex();
        openBlocks.pop_back();
    }
}

// A `case` ends the branch before it, but no block inside that.
void OutlineReader::closeBranch()
{
    if (isBranch(innermost())) {
        close();
    } else {
        openBlocks.pop_back();
    }
}

void OutlineReader::forgetBlocks()
{
    openBlocks.clear();
}

void OutlineReader::placeStatement()
{
    Outline::Statement& placed = statement();
    placed.sub = currentSub;
    placed.block = openBlocks.empty() ? kNone : openBlocks.back();
    placed.depth =
        static_cast<int>(std::count_if(openBlocks.begin(), openBlocks.end(), [this](int block) {
            return isIndenting(outline.blocks[block].kind);
        }));
}

}  // namespace

const ScriptOutline::Statement* ScriptOutline::statementOn(int line) const
{
    const auto found = std::lower_bound(
        statements.begin(), statements.end(), line,
        [](const Statement& statement, int wanted) { return statement.place.line < wanted; });
    return found != statements.end() && found->place.line == line ? &*found : nullptr;
}

std::vector<int> ScriptOutline::postfixOf(const Expression& expression) const
{
    std::vector<std::string> words;
    words.reserve(static_cast<std::size_t>(expression.tokenCount));
    for (int i = 0; i < expression.tokenCount; ++i) {
        words.push_back(tokens[expression.firstToken + i].text);
    }
    std::vector<std::size_t> order;
    if (!expression_parser().postfixOrder(words, order)) {
        return {};
    }
    std::vector<int> indices;
    indices.reserve(order.size());
    for (const std::size_t index : order) {
        indices.push_back(expression.firstToken + static_cast<int>(index));
    }
    return indices;
}

ScriptOutline outlineOf(std::string text)
{
    ScriptOutline outline;
    const auto source = std::make_shared<std::string>(std::move(text));
    OutlineReader(outline, *source).read();
    outline.source = source;
    return outline;
}
