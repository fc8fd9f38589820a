#include "gme/CodesReader.h"
#include "gme/Description.h"

namespace gme {

namespace {

constexpr size_t kMostLines = 65535;  // of a script, and play lists of the welcome

class DescriptionReader
{
public:
    DescriptionReader(const YamlNode& root, Description& description, Messages& messages);

    void read();

private:
    const YamlNode* value(const std::string& name) const;
    void refuseUnsupported();
    void readProductId();
    void readText(const std::string& name, const std::string& fallback, SourceLine& text);
    void readWelcome();
    void readScripts();
    void readScript(const YamlNode& node);
    void readScriptLine(const YamlNode& node, const std::string& script, size_t number,
                        std::vector<SourceLine>& lines);
    void readCodes();

    Description& description;
    Messages& messages;
    YamlMapping values;
};

void warnAboutLostValue(const YamlNode& earlier, const YamlNode& last, Messages& messages)
{
    if (!isSameValue(earlier, last)) {
        messages.warning(last.keyPlace.line, last.key + " replaces the value of line " +
                                                 std::to_string(earlier.keyPlace.line));
    }
}

DescriptionReader::DescriptionReader(const YamlNode& root, Description& target,
                                     Messages& allMessages)
    : description(target), messages(allMessages)
{
    values = lastValues(root, [this](const YamlNode& earlier, const YamlNode& last) {
        warnAboutLostValue(earlier, last, messages);
    });
}

void DescriptionReader::read()
{
    refuseUnsupported();
    readProductId();
    readText("comment", "made with Plinkett", description.comment);
    readText("media-path", "%s", description.mediaPath);
    readText("gme-lang", "", description.language);
    readText("init", "", description.init);
    readWelcome();
    readScripts();
    readCodes();
}

// Null when it is absent or null.
const YamlNode* DescriptionReader::value(const std::string& name) const
{
    const auto found = values.find(name);
    return found == values.end() || isNull(*found->second) ? nullptr : found->second;
}

void DescriptionReader::refuseUnsupported()
{
    for (const char* name : {"games", "speak", "timer"}) {
        const auto found = values.find(name);
        if (found != values.end()) {
            messages.error(found->second->keyPlace.line,
                           std::string(name) + ": this section is not supported");
        }
    }
}

void DescriptionReader::readProductId()
{
    const YamlNode* node = value("product-id");
    std::string problem;
    if (node == nullptr) {
        messages.error(0, "product-id is missing");
    } else if (!readWholeNumber(*node, UINT32_MAX, description.productId, problem)) {
        messages.error(node->keyPlace.line, "product-id: " + problem);
    }
}

void DescriptionReader::readText(const std::string& name, const std::string& fallback,
                                 SourceLine& text)
{
    const YamlNode* node = value(name);
    if (node == nullptr) {
        text.text = fallback;
        return;
    }
    if (!isText(*node)) {
        messages.error(node->keyPlace.line, name + " must be a text");
        return;
    }
    text = {node->text, node->place.line};
}

void DescriptionReader::readWelcome()
{
    const YamlNode* node = value("welcome");
    if (node == nullptr) {
        return;
    }
    const std::vector<YamlNode> single = {node->isScalar() ? *node : YamlNode()};
    for (const YamlNode& entry : node->isScalar() ? single : node->children) {
        if (!isText(entry) || node->kind == YamlNode::Kind::Mapping) {
            messages.error(node->keyPlace.line, "welcome must be a list of audio names");
            return;
        }
        description.welcome.push_back({entry.text, entry.place.line});
    }
    if (description.welcome.size() > kMostLines) {
        messages.error(node->keyPlace.line, "welcome has more than 65535 play lists");
    }
}

void DescriptionReader::readScripts()
{
    const YamlNode* section = value("scripts");
    const auto place = values.find("scripts");
    const int line = place == values.end() ? 0 : place->second->keyPlace.line;
    if (section == nullptr ||
        (section->kind == YamlNode::Kind::Mapping && section->children.empty())) {
        messages.error(line, "scripts has no entry: the script of the project has no sub");
        return;
    }
    if (section->kind != YamlNode::Kind::Mapping) {
        messages.error(line, "scripts: names with their lines are expected");
        return;
    }
    const auto lost = [this](const YamlNode& earlier, const YamlNode& last) {
        messages.warning(last.keyPlace.line, "script " + last.key + " replaces the one of line " +
                                                 std::to_string(earlier.keyPlace.line) +
                                                 ", which is lost");
    };
    for (const auto& [name, node] : lastValues(*section, lost)) {
        readScript(*node);
    }
}

// A single text counts as a list of one line.
void DescriptionReader::readScript(const YamlNode& node)
{
    ScriptSource& script = description.scripts[node.key];
    script.line = node.keyPlace.line;
    if (isNull(node)) {
        messages.error(node.keyPlace.line,
                       "script " + node.key + " has no lines (is its sub closed?)");
        return;
    }
    if (node.kind != YamlNode::Kind::List) {
        readScriptLine(node, node.key, 1, script.lines);
        return;
    }
    if (node.children.size() > kMostLines) {
        messages.error(node.keyPlace.line, "script " + node.key + " has more than 65535 lines");
        return;
    }
    for (size_t i = 0; i < node.children.size(); ++i) {
        readScriptLine(node.children[i], node.key, i + 1, script.lines);
    }
}

void DescriptionReader::readScriptLine(const YamlNode& node, const std::string& script,
                                       size_t number, std::vector<SourceLine>& lines)
{
    const std::string owner = "script " + script + ", its line " + std::to_string(number) + ": ";
    if (isText(node)) {
        lines.push_back({node.text, node.place.line});
    } else if (isNull(node)) {
        messages.error(node.place.line, owner + "there is no text");
    } else if (node.isScalar()) {
        messages.error(node.place.line, owner + quoted(node.text) + " is no command");
    } else {
        messages.error(node.place.line,
                       owner + "a text is expected, not a list or a name with a colon");
    }
}

void DescriptionReader::readCodes()
{
    if (const YamlNode* section = value("scriptcodes")) {
        readScriptCodes(*section, description.codes.names, messages);
    }
    description.codes.replay = readSpecialCode(value("replay"), messages);
    description.codes.stop = readSpecialCode(value("stop"), messages);
}

}  // namespace

void readDescription(const YamlNode& root, Description& description, Messages& messages)
{
    if (root.kind != YamlNode::Kind::Mapping) {
        messages.error(root.place.line,
                       "the file is no description of a game: names with values are "
                       "expected");
        return;
    }
    DescriptionReader(root, description, messages).read();
}

}  // namespace gme
