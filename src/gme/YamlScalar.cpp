#include "gme/Yaml.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace gme {

namespace {

template <size_t count>
bool isOneOf(const std::string& text, const char* const (&words)[count])
{
    return std::find(std::begin(words), std::end(words), text) != std::end(words);
}

std::string_view digitsAt(std::string_view text, std::string_view digits = "0123456789")
{
    return text.substr(0, std::min(text.find_first_not_of(digits), text.size()));
}

void skipSign(std::string_view& text)
{
    if (!text.empty() && (text[0] == '+' || text[0] == '-')) {
        text.remove_prefix(1);
    }
}

bool isDigits(std::string_view text, std::string_view digits)
{
    return !text.empty() && digitsAt(text, digits).size() == text.size();
}

// Behind the digits and the fraction: nothing, or an exponent.
bool isExponent(std::string_view text)
{
    if (text.empty()) {
        return true;
    }
    if (text[0] != 'e' && text[0] != 'E') {
        return false;
    }
    text.remove_prefix(1);
    skipSign(text);
    return isDigits(text, "0123456789");
}

}  // namespace

bool looksLikeNumber(const std::string& text)
{
    std::string_view rest = text;
    if (rest.substr(0, 2) == "0x") {
        return isDigits(rest.substr(2), "0123456789abcdefABCDEF");
    }
    if (rest.substr(0, 2) == "0o") {
        return isDigits(rest.substr(2), "01234567");
    }
    skipSign(rest);
    const size_t whole = digitsAt(rest).size();
    if (whole == 0) {
        return false;
    }
    rest.remove_prefix(whole);
    if (!rest.empty() && rest[0] == '.') {
        rest.remove_prefix(1);
        rest.remove_prefix(digitsAt(rest).size());
    }
    return isExponent(rest);
}

bool isTruthWord(const std::string& text)
{
    static constexpr const char* words[] = {
        "true",  "True",  "TRUE",  "yes", "Yes", "YES", "on",  "On",  "ON",  "y", "Y",
        "false", "False", "FALSE", "no",  "No",  "NO",  "off", "Off", "OFF", "n", "N"};
    return isOneOf(text, words);
}

bool isNullWord(const std::string& text)
{
    static constexpr const char* words[] = {"null", "Null", "NULL", "~"};
    return isOneOf(text, words);
}

ScalarType scalarType(const YamlNode& node)
{
    if (node.kind != YamlNode::Kind::Plain) {
        return ScalarType::Text;
    }
    if (node.text.empty()) {
        return ScalarType::Null;
    }
    if (isTruthWord(node.text)) {
        return ScalarType::Truth;
    }
    return looksLikeNumber(node.text) ? ScalarType::Number : ScalarType::Text;
}

bool isNull(const YamlNode& node)
{
    return scalarType(node) == ScalarType::Null;
}

bool isText(const YamlNode& node)
{
    return node.isScalar() && scalarType(node) == ScalarType::Text;
}

bool readWholeNumber(const YamlNode& node, uint32_t largest, uint32_t& number, std::string& problem)
{
    const bool isNumber = scalarType(node) == ScalarType::Number;
    const std::string_view text = node.text;
    const bool isNegative = isNumber && text[0] == '-';
    if (!isNumber || !isDigits(text.substr(isNegative ? 1 : 0), "0123456789")) {
        problem = quoted(node.isScalar() ? node.text : "[...]") + " is no whole number";
        return false;
    }
    uint64_t value = 0;
    for (const char digit : text.substr(isNegative ? 1 : 0)) {
        value =
            std::min<uint64_t>(value * 10 + static_cast<uint64_t>(digit - '0'), UINT32_MAX + 1ULL);
    }
    if (value > largest || (isNegative && value != 0)) {
        problem = quoted(node.text) + " is out of range: 0 to " + std::to_string(largest);
        return false;
    }
    number = static_cast<uint32_t>(value);
    return true;
}

}  // namespace gme
