#include "gme/Codes.h"

namespace gme {

namespace {

// Appends the digits of a number to value, which wraps. False when there is another character.
bool readDigits(std::string_view digits, unsigned base, uint32_t& value)
{
    for (const char c : digits) {
        const std::string_view all = "0123456789abcdef";
        const size_t digit = all.find(c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c);
        if (digit >= base) {
            return false;
        }
        value = value * base + static_cast<uint32_t>(digit);
    }
    return !digits.empty();
}

bool readNumber(std::string_view text, uint32_t& value)
{
    const std::string_view prefix = text.substr(0, 2);
    if (prefix == "0x" || prefix == "0X") {
        return readDigits(text.substr(2), 16, value);
    }
    if (prefix == "0o" || prefix == "0O") {
        return readDigits(text.substr(2), 8, value);
    }
    return readDigits(text, 10, value);
}

void mergeOne(const std::string& owner, const std::string& name, const GivenCode& merged,
              const GivenCode& fromFile, Messages& messages)
{
    if (merged.code != fromFile.code) {
        messages.error(merged.place, "code-conflict",
                       owner + ": the code is " + std::to_string(merged.code) + " here and " +
                           std::to_string(fromFile.code) + " in the codes file",
                       name);
    }
}

void mergeSpecial(const char* owner, std::optional<GivenCode>& merged,
                  const std::optional<GivenCode>& fromFile, Messages& messages)
{
    if (merged && fromFile) {
        mergeOne(owner, owner, *merged, *fromFile, messages);
    } else if (fromFile) {
        merged = fromFile;
    }
}

// True when all names are numbers; reports names of both kinds.
bool areNamesNumbers(const Description& description, Messages& messages)
{
    const std::string* number = nullptr;
    const std::string* other = nullptr;
    for (const auto& entry : description.scripts) {
        (numericName(entry.first) ? number : other) = &entry.first;
    }
    if (number != nullptr && other != nullptr) {
        messages.error(description.scripts.at(*number).place, "names-mixed",
                       "the names of scripts are partly numbers (" + *number +
                           ") and partly not (" + *other + ")",
                       *number);
    }
    return other == nullptr;
}

class CodeAssignment
{
public:
    CodeAssignment(const Description& source, const GivenCodes& givenCodes, Messages& allMessages)
        : description(source),
          given(givenCodes),
          messages(allMessages),
          sequence(source.productId, givenCodes)
    {}

    Codes assign();

private:
    uint16_t specialCode(const std::optional<GivenCode>& code);
    void assignScripts();
    void reportMissing(size_t count);

    const Description& description;
    const GivenCodes& given;
    Messages& messages;
    CodeSequence sequence;
    Codes codes;
    size_t missing = 0;
};

Codes CodeAssignment::assign()
{
    const bool isNumeric = areNamesNumbers(description, messages);
    codes.replay = specialCode(given.replay);
    codes.stop = specialCode(given.stop);
    if (isNumeric) {
        for (const auto& entry : description.scripts) {
            codes.scripts[entry.first] = numericName(entry.first).value_or(0);
        }
    } else {
        assignScripts();
    }
    if (missing > 0) {
        reportMissing(missing);
    }
    return codes;
}

// Intended: a number is taken out of the sequence also when the code is given.
uint16_t CodeAssignment::specialCode(const std::optional<GivenCode>& code)
{
    const std::optional<uint16_t> chosen = sequence.take();
    if (code) {
        return code->code;
    }
    missing += chosen ? 0 : 1;
    return chosen.value_or(0);
}

void CodeAssignment::assignScripts()
{
    for (const auto& entry : description.scripts) {
        const auto known = given.names.find(entry.first);
        if (known != given.names.end()) {
            codes.scripts[entry.first] = known->second.code;
            continue;
        }
        const std::optional<uint16_t> chosen = sequence.take();
        missing += chosen ? 0 : 1;
        codes.scripts[entry.first] = chosen.value_or(0);
    }
}

void CodeAssignment::reportMissing(size_t count)
{
    messages.error({}, "codes-used-up",
                   "the game has too many steps: the codes 1000 to 14999 are used up, and " +
                       std::to_string(count) + (count == 1 ? " is" : " are") + " missing");
}

}  // namespace

// Intended: the product of id and factor wraps at 32 bits. The format fixes all three numbers, and
// codes of games that have been built depend on them.
CodeSequence::CodeSequence(uint32_t productId, const GivenCodes& given)
    : start(productId * 8035U % 13001U)
{
    for (const auto& entry : given.names) {
        used.set(entry.second.code);
    }
    for (const auto& special : {given.replay, given.stop}) {
        if (special) {
            used.set(special->code);
        }
    }
}

std::optional<uint16_t> CodeSequence::take()
{
    while (steps < kCount) {
        const uint32_t code = kFirst + (start + steps) % kCount;
        ++steps;
        if (!used.test(code)) {
            return static_cast<uint16_t>(code);
        }
    }
    return std::nullopt;
}

std::optional<uint16_t> numericName(const std::string& name)
{
    std::string_view text = name;
    while (text.size() >= 2 && text.front() == '(' && text.back() == ')') {
        text = text.substr(1, text.size() - 2);
    }
    const bool isNegative = !text.empty() && text.front() == '-';
    uint32_t value = 0;
    if (!readNumber(text.substr(isNegative ? 1 : 0), value)) {
        return std::nullopt;
    }
    return static_cast<uint16_t>(isNegative ? 0 - value : value);
}

GivenCodes mergeCodes(const GivenCodes& yaml, const GivenCodes& codesFile, Messages& messages)
{
    GivenCodes merged = yaml;
    for (const auto& [name, code] : codesFile.names) {
        const auto [place, isNew] = merged.names.emplace(name, code);
        if (!isNew) {
            mergeOne("area " + name, name, place->second, code, messages);
        }
    }
    mergeSpecial("replay", merged.replay, codesFile.replay, messages);
    mergeSpecial("stop", merged.stop, codesFile.stop, messages);
    return merged;
}

Codes assignCodes(const Description& description, const GivenCodes& given, Messages& messages)
{
    return CodeAssignment(description, given, messages).assign();
}

}  // namespace gme
