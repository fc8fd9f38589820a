#include "ttbasic/Completion.h"

#include <algorithm>
#include <unordered_set>

#include "base/QuotedWords.h"
#include "base/TextHelpers.h"
#include "ttbasic/ExpressionParser.h"
#include "ttbasic/SourceLines.h"

namespace {

using Kind = Suggestion::Kind;

bool isInTextOrComment(const std::string& line)
{
    std::string copy = line;
    if (CutComments(copy.data()) != nullptr) {
        return true;
    }
    return std::count(line.begin(), line.end(), '"') % 2 != 0;
}

// Where the last operand of an expression begins; the end when the caret stands behind an operator
// or a blank.
std::size_t lastOperand(std::string_view expression)
{
    const std::vector<ExpressionToken> tokens = expression_parser().placedTokens(expression);
    if (tokens.empty() || tokens.back().end != expression.size()) {
        return expression.size();
    }
    const expression_parser parser;
    const std::string& last = tokens.back().text;
    const bool isOperand = !parser.isParenthesis(last) && !parser.isOperator(last.substr(0, 1));
    return isOperand ? tokens.back().begin : expression.size();
}

// What a word of so many behind the keyword is.
Wanted wantedBehind(StatementKind kind, std::size_t index)
{
    switch (kind) {
    case StatementKind::sub:
        return index == 0 ? Wanted::areaOfSub : Wanted::nothing;
    case StatementKind::jump:
        return index == 0 ? Wanted::subOfGoto : Wanted::nothing;
    case StatementKind::say:
        return index == 0 ? Wanted::voiceOfSay : Wanted::nothing;
    case StatementKind::voice:
        return index % 2 == 1 ? Wanted::optionOfVoice : Wanted::nothing;
    default:
        return Wanted::nothing;
    }
}

char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Collects what begins with the word in any case, but is not the word. A script may have ten
// thousand names, so only the few that fit are kept and put in order.
class Suggestions
{
public:
    explicit Suggestions(std::string_view writtenWord) : word(writtenWord) {}

    // The text outlives this.
    void offer(std::string_view text)
    {
        if (text != word && fits(text)) {
            offered.push_back(text);
        }
    }

    // What was offered is of this kind, unless it is there already.
    void add(Kind kind)
    {
        std::sort(offered.begin(), offered.end());
        offered.erase(std::unique(offered.begin(), offered.end()), offered.end());
        const std::size_t known = all.size();
        for (const std::string_view text : offered) {
            const auto end = all.begin() + static_cast<std::ptrdiff_t>(known);
            if (std::none_of(all.begin(), end, [&](const auto& one) { return one.text == text; })) {
                all.push_back({kind, std::string(text)});
            }
        }
        offered.clear();
    }

    std::vector<Suggestion> take() { return std::move(all); }

private:
    bool fits(std::string_view text) const
    {
        return text.size() >= word.size() &&
               std::equal(word.begin(), word.end(), text.begin(),
                          [](char one, char other) { return lowered(one) == lowered(other); });
    }

    std::string_view word;
    std::vector<std::string_view> offered;
    std::vector<Suggestion> all;
};

void offerKeywords(Suggestions& found)
{
    static const std::vector<std::string> pairs = [] {
        std::vector<std::string> all;
        for (const ScriptLanguage::Keyword& end : ScriptLanguage::ends()) {
            all.push_back(std::string(ScriptLanguage::kEnd) + " " + end.word);
        }
        return all;
    }();
    for (const ScriptLanguage::Keyword& keyword : ScriptLanguage::keywords()) {
        found.offer(keyword.word);
    }
    for (const std::string& pair : pairs) {
        found.offer(pair);
    }
}

// What stands on the line itself is being written, and no suggestion.
void offerSubs(Suggestions& found, const ScriptOutline& outline, int line)
{
    for (const ScriptOutline::Sub& sub : outline.subs) {
        if (sub.line != line) {
            found.offer(sub.name.text);
        }
    }
}

void offerAreasWithoutSub(Suggestions& found, const std::vector<std::string>& areas,
                          const ScriptOutline& outline, int line)
{
    std::unordered_set<std::string_view> subs;
    for (const ScriptOutline::Sub& sub : outline.subs) {
        if (sub.line != line) {
            subs.insert(sub.name.text);
        }
    }
    for (const std::string& area : areas) {
        if (subs.count(area) == 0) {
            found.offer(area);
        }
    }
}

bool hasCapitals(std::string_view name)
{
    return std::any_of(name.begin(), name.end(), [](char c) { return lowered(c) != c; });
}

// A variable that is set with capitals can never be read.
void offerVariables(Suggestions& found, const ScriptOutline& outline, int line, bool toBeRead)
{
    for (const ScriptOutline::Variable& variable : outline.variables) {
        if (variable.word.place.line != line && !(toBeRead && hasCapitals(variable.name))) {
            found.offer(variable.name);
        }
    }
}

// That the line can choose: those above it.
void offerVoices(Suggestions& found, const ScriptOutline& outline, int line)
{
    for (const char* voice : ScriptLanguage::builtInVoices()) {
        found.offer(voice);
    }
    for (const ScriptOutline::Voice& voice : outline.voices) {
        if (voice.name.place.line < line) {
            found.offer(voice.name.text);
        }
    }
}

}  // namespace

WrittenWord writtenWord(std::string_view lineToCaret)
{
    const std::string line(lineToCaret);
    if (isInTextOrComment(line)) {
        return {};
    }
    const StatementHead head = readStatement(line.c_str());
    const auto from = [&](Wanted wanted, std::size_t begin) {
        return WrittenWord{wanted, begin, lineToCaret.substr(begin)};
    };
    const auto inExpression = [&](std::size_t begin) {
        return from(Wanted::variable, begin + lastOperand(lineToCaret.substr(begin)));
    };
    if (head.kind == StatementKind::assignment) {
        return inExpression(line.find('=') + 1);
    }
    if (head.end == line.size()) {
        return from(Wanted::statement, head.begin);
    }
    if (head.kind == StatementKind::ifBlock || head.kind == StatementKind::select) {
        return inExpression(head.end);
    }
    if (head.word == ScriptLanguage::kEnd && head.kind == StatementKind::unknown) {
        return from(Wanted::end, line.find_last_of(" \t") + 1);
    }
    const bool isNewWord = isSpace(line.back());
    const std::vector<QuotedWord> words = quotedWordsOf(lineToCaret.substr(head.end));
    const std::size_t index = words.size() - (isNewWord || words.empty() ? 0 : 1);
    const std::size_t begin = isNewWord ? line.size() : head.end + words.back().begin;
    if (line.find('"', begin) != std::string::npos) {
        return {};
    }
    return from(wantedBehind(head.kind, index), begin);
}

std::vector<Suggestion> suggestionsFor(const WrittenWord& word, const ScriptOutline& outline,
                                       const std::vector<std::string>& areas, int line)
{
    Suggestions found(word.text);
    switch (word.wanted) {
    case Wanted::nothing:
        break;
    case Wanted::statement:
        offerKeywords(found);
        found.add(Kind::keyword);
        offerVariables(found, outline, line, false);
        found.add(Kind::variable);
        break;
    case Wanted::end:
        for (const ScriptLanguage::Keyword& end : ScriptLanguage::ends()) {
            found.offer(end.word);
        }
        found.add(Kind::keyword);
        break;
    case Wanted::areaOfSub:
        offerAreasWithoutSub(found, areas, outline, line);
        found.add(Kind::area);
        break;
    case Wanted::subOfGoto:
        offerSubs(found, outline, line);
        found.add(Kind::sub);
        break;
    case Wanted::voiceOfSay:
        offerVoices(found, outline, line);
        found.add(Kind::voice);
        break;
    case Wanted::optionOfVoice:
        for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
            found.offer(option.word);
        }
        found.add(Kind::option);
        break;
    case Wanted::variable:
        offerVariables(found, outline, line, true);
        found.add(Kind::variable);
        break;
    }
    return found.take();
}
