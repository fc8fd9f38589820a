#include "ttbasic/Completion.h"

#include <algorithm>
#include <set>

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

// A text that begins with the word in any case, but is not the word.
bool completes(const std::string& text, std::string_view word)
{
    return text != word && toLower(text.substr(0, word.size())) == toLower(std::string(word));
}

class Suggestions
{
public:
    explicit Suggestions(std::string_view writtenWord) : word(writtenWord) {}

    void add(Kind kind, const std::set<std::string>& texts)
    {
        for (const std::string& text : texts) {
            if (completes(text, word) && known.insert(text).second) {
                all.push_back({kind, text});
            }
        }
    }

    std::vector<Suggestion> take() { return std::move(all); }

private:
    std::string_view word;
    std::set<std::string> known;
    std::vector<Suggestion> all;
};

std::set<std::string> keywords()
{
    std::set<std::string> words;
    for (const ScriptLanguage::Keyword& keyword : ScriptLanguage::keywords()) {
        words.insert(keyword.word);
    }
    for (const ScriptLanguage::Keyword& end : ScriptLanguage::ends()) {
        words.insert(std::string(ScriptLanguage::kEnd) + " " + end.word);
    }
    return words;
}

std::set<std::string> ends()
{
    std::set<std::string> words;
    for (const ScriptLanguage::Keyword& end : ScriptLanguage::ends()) {
        words.insert(end.word);
    }
    return words;
}

std::set<std::string> options()
{
    std::set<std::string> words;
    for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
        words.insert(option.word);
    }
    return words;
}

// Those of other lines: what is being written is no suggestion for itself.
std::set<std::string> subs(const ScriptOutline& outline, int line)
{
    std::set<std::string> names;
    for (const ScriptOutline::Sub& sub : outline.subs) {
        if (sub.line != line) {
            names.emplace(sub.name.text);
        }
    }
    return names;
}

// A variable that is set with capitals can never be read.
std::set<std::string> readable(std::set<std::string> names)
{
    for (auto name = names.begin(); name != names.end();) {
        name = toLower(*name) == *name ? std::next(name) : names.erase(name);
    }
    return names;
}

std::set<std::string> variables(const ScriptOutline& outline, int line)
{
    std::set<std::string> names;
    for (const ScriptOutline::Variable& variable : outline.variables) {
        if (variable.word.place.line != line) {
            names.insert(variable.name);
        }
    }
    return names;
}

// That a line can choose: those above it.
std::set<std::string> voices(const ScriptOutline& outline, int line)
{
    std::set<std::string> names(ScriptLanguage::builtInVoices().begin(),
                                ScriptLanguage::builtInVoices().end());
    for (const ScriptOutline::Voice& voice : outline.voices) {
        if (voice.name.place.line < line) {
            names.emplace(voice.name.text);
        }
    }
    return names;
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
        found.add(Kind::keyword, keywords());
        found.add(Kind::variable, variables(outline, line));
        break;
    case Wanted::end:
        found.add(Kind::keyword, ends());
        break;
    case Wanted::areaOfSub: {
        const std::set<std::string> present = subs(outline, line);
        std::set<std::string> without;
        for (const std::string& area : areas) {
            if (present.count(area) == 0) {
                without.insert(area);
            }
        }
        found.add(Kind::area, without);
        break;
    }
    case Wanted::subOfGoto:
        found.add(Kind::sub, subs(outline, line));
        break;
    case Wanted::voiceOfSay:
        found.add(Kind::voice, voices(outline, line));
        break;
    case Wanted::optionOfVoice:
        found.add(Kind::option, options());
        break;
    case Wanted::variable:
        found.add(Kind::variable, readable(variables(outline, line)));
        break;
    }
    return found.take();
}
