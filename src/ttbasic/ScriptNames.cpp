#include "ttbasic/ScriptNames.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

bool standsBefore(const NameUse& a, const NameUse& b)
{
    return std::tie(a.word.place.line, a.word.place.column) <
           std::tie(b.word.place.line, b.word.place.column);
}

bool touches(const ScriptOutline::Place& place, int line, int column)
{
    return place.line == line && place.column <= column && column <= place.column + place.length;
}

}  // namespace

std::vector<NameUse> namesIn(const ScriptOutline& outline)
{
    std::vector<NameUse> all;
    const auto add = [&all](NameKind kind, const ScriptOutline::Word& word, std::string name,
                            bool isDefinition) {
        if (!word.text.empty()) {
            all.push_back({kind, word, std::move(name), isDefinition});
        }
    };
    for (const ScriptOutline::Sub& sub : outline.subs) {
        add(NameKind::sub, sub.name, std::string(sub.name.text), true);
    }
    for (const ScriptOutline::Goto& jump : outline.gotos) {
        add(NameKind::sub, jump.target, std::string(jump.target.text), false);
    }
    for (const ScriptOutline::Variable& variable : outline.variables) {
        add(NameKind::variable, variable.word, variable.name,
            variable.access == ScriptOutline::Access::set);
    }
    for (const ScriptOutline::Voice& voice : outline.voices) {
        add(NameKind::voice, voice.name, std::string(voice.name.text), true);
    }
    for (const ScriptOutline::VoiceUse& use : outline.voiceUses) {
        add(NameKind::voice, use.word, use.name, false);
    }
    std::sort(all.begin(), all.end(), standsBefore);
    return all;
}

std::vector<NameUse> usesOf(const ScriptOutline& outline, NameKind kind, const std::string& name)
{
    std::vector<NameUse> uses = namesIn(outline);
    const auto isOther = [&](const NameUse& use) { return use.kind != kind || use.name != name; };
    uses.erase(std::remove_if(uses.begin(), uses.end(), isOther), uses.end());
    return uses;
}

std::optional<NameUse> nameAt(const ScriptOutline& outline, int line, int column)
{
    std::optional<NameUse> found;
    for (NameUse& use : namesIn(outline)) {
        if (touches(use.word.place, line, column)) {
            found = std::move(use);  // of two that touch, the one that begins here
        }
    }
    return found;
}
