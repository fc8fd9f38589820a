#include "gme/DescriptionReader.h"

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
    // Leaves the text as it is when the file does not hold it.
    void readText(const std::string& name, SourceLine& text);
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
    readText("comment", description.comment);
    readText("media-path", description.mediaPath);
    readText("gme-lang", description.language);
    readText("init", description.init);
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
            messages.error(found->second->keyPlace, "section-unsupported",
                           std::string(name) + ": this section is not supported");
        }
    }
}

void DescriptionReader::readProductId()
{
    const YamlNode* node = value("product-id");
    std::string problem;
    if (node == nullptr) {
        messages.error({}, "product-id", "product-id is missing");
    } else if (!readWholeNumber(*node, UINT32_MAX, description.productId, problem)) {
        messages.error(valuePlace(*node), "product-id", "product-id: " + problem);
    }
}

void DescriptionReader::readText(const std::string& name, SourceLine& text)
{
    const YamlNode* node = value(name);
    if (node == nullptr) {
        return;
    }
    if (!isText(*node)) {
        messages.error(valuePlace(*node), "text-expected", name + " must be a text");
        return;
    }
    text = {node->text, node->place};
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
            messages.error(valuePlace(*node), "text-expected",
                           "welcome must be a list of audio names");
            return;
        }
        description.welcome.push_back({entry.text, entry.place});
    }
    checkWelcome(description.welcome, node->keyPlace, messages);
}

void DescriptionReader::readScripts()
{
    const YamlNode* section = value("scripts");
    const auto place = values.find("scripts");
    const Place name = place == values.end() ? Place() : place->second->keyPlace;
    if (section == nullptr ||
        (section->kind == YamlNode::Kind::Mapping && section->children.empty())) {
        checkScripts({}, name, messages);
        return;
    }
    if (section->kind != YamlNode::Kind::Mapping) {
        messages.error(name, "scripts-form", "scripts: names with their lines are expected");
        return;
    }
    const auto lost = [this](const YamlNode& earlier, const YamlNode& last) {
        messages.warning(last.keyPlace, "script-replaced",
                         "script " + last.key + " replaces the one of line " +
                             std::to_string(earlier.keyPlace.line) + ", which is lost",
                         last.key);
    };
    for (const auto& [key, node] : lastValues(*section, lost)) {
        readScript(*node);
    }
}

// A single text counts as a list of one line.
void DescriptionReader::readScript(const YamlNode& node)
{
    ScriptSource& script = description.scripts[node.key];
    script.place = node.keyPlace;
    script.isOpen = isNull(node);
    if (node.kind == YamlNode::Kind::List) {
        for (size_t i = 0; i < node.children.size(); ++i) {
            readScriptLine(node.children[i], node.key, i + 1, script.lines);
        }
    } else if (!script.isOpen) {
        readScriptLine(node, node.key, 1, script.lines);
    }
    checkScript(node.key, script, messages);
}

void DescriptionReader::readScriptLine(const YamlNode& node, const std::string& script,
                                       size_t number, std::vector<SourceLine>& lines)
{
    const std::string owner = "script " + script + ", its line " + std::to_string(number) + ": ";
    if (isText(node)) {
        lines.push_back({node.text, node.place});
    } else if (isNull(node)) {
        messages.error(node.place, "line-form", owner + "there is no text", script);
    } else if (node.isScalar()) {
        messages.error(node.place, "line-form", owner + quoted(node.text) + " is no command",
                       script);
    } else {
        messages.error(node.place, "line-form",
                       owner + "a text is expected, not a list or a name with a colon", script);
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

std::optional<Description> readDescription(const std::string& bytes, const std::string& file,
                                           const DiagnosticSink& sink)
{
    Messages messages(file, sink);
    YamlNode root;
    if (!readYaml(bytes, root, messages)) {
        return std::nullopt;
    }
    if (root.kind != YamlNode::Kind::Mapping) {
        messages.error(root.place, "description-form",
                       "the file is no description of a game: names with values are expected");
        return std::nullopt;
    }
    Description description;
    description.file = file;
    DescriptionReader(root, description, messages).read();
    return messages.hasErrors() ? std::nullopt : std::make_optional(std::move(description));
}

void checkScripts(const std::map<std::string, ScriptSource>& scripts, Place place,
                  Messages& messages)
{
    if (scripts.empty()) {
        messages.error(place, "scripts-missing",
                       "scripts has no entry: the script of the project has no sub");
    }
}

void checkScript(const std::string& name, const ScriptSource& script, Messages& messages)
{
    if (script.isOpen) {
        messages.error(script.place, "script-open",
                       "script " + name + " has no lines (is its sub closed?)", name);
    }
    if (script.lines.size() > kMostLines) {
        messages.error(script.place, "script-long", "script " + name + " has more than 65535 lines",
                       name);
    }
}

void checkWelcome(const std::vector<SourceLine>& lists, Place place, Messages& messages)
{
    if (lists.size() > kMostLines) {
        messages.error(place, "welcome-long", "welcome has more than 65535 play lists");
    }
}

void warnAboutLostValue(const YamlNode& earlier, const YamlNode& last, Messages& messages)
{
    if (!isSameValue(earlier, last)) {
        messages.warning(last.keyPlace, "value-replaced",
                         last.key + " replaces the value of line " +
                             std::to_string(earlier.keyPlace.line));
    }
}

}  // namespace gme
