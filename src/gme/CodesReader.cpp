// Codes given by name: the section "scriptcodes" with "replay" and "stop", as the YAML file and the
// codes file hold them.
#include "gme/DescriptionReader.h"

namespace gme {

namespace {

constexpr uint32_t kLargestCode = 65535;

std::optional<GivenCode> readCode(const YamlNode& node, const std::string& owner,
                                  Messages& messages)
{
    uint32_t code = 0;
    std::string problem;
    if (!readWholeNumber(node, kLargestCode, code, problem)) {
        messages.error(valuePlace(node), "code-number", owner + ": the code " + problem, node.key);
        return std::nullopt;
    }
    return GivenCode{static_cast<uint16_t>(code), node.keyPlace};
}

bool isSameCode(const YamlNode& one, const YamlNode& other)
{
    uint32_t first = 0;
    uint32_t second = 0;
    std::string ignored;
    return readWholeNumber(one, kLargestCode, first, ignored) &&
           readWholeNumber(other, kLargestCode, second, ignored) && first == second;
}

// An area that lies on two pictures is listed twice with the same code; only another one is odd.
void warnAboutLostCode(const YamlNode& earlier, const YamlNode& last, Messages& messages)
{
    if (!isSameCode(earlier, last)) {
        messages.warning(valuePlace(last), "code-replaced",
                         "area " + last.key + ": the code " + last.text + " replaces " +
                             earlier.text + " of line " + std::to_string(earlier.keyPlace.line),
                         last.key);
    }
}

}  // namespace

std::optional<GivenCode> readSpecialCode(const YamlNode* node, Messages& messages)
{
    if (node == nullptr || isNull(*node)) {
        return std::nullopt;
    }
    return readCode(*node, node->key, messages);
}

void readScriptCodes(const YamlNode& section, std::map<std::string, GivenCode>& names,
                     Messages& messages)
{
    if (section.kind != YamlNode::Kind::Mapping) {
        messages.error(section.keyPlace, "scriptcodes-form",
                       "scriptcodes: names with their codes are expected");
        return;
    }
    const auto lost = [&messages](const YamlNode& earlier, const YamlNode& last) {
        warnAboutLostCode(earlier, last, messages);
    };
    for (const auto& [name, node] : lastValues(section, lost)) {
        if (const auto code = readCode(*node, "area " + name, messages)) {
            names[name] = *code;
        }
    }
}

}  // namespace gme
