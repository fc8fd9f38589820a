#include "gme/YamlTreeBuilder.h"

#include <algorithm>

namespace gme {

namespace {

// A game needs three levels; more only costs stack.
constexpr size_t kDeepestNesting = 32;
// Far beyond the largest game; keeps a file of nothing but dashes from filling the memory.
constexpr size_t kMostNodes = 2'000'000;

}  // namespace

void YamlTreeBuilder::OnDocumentStart(const YAML::Mark& mark)
{
    if (complete) {
        throw RefusedYaml(mark, "the file does not end with its mapping of names and values");
    }
}

// As a key, "null" and its like are names, which the parser does not hand over.
void YamlTreeBuilder::OnNull(const YAML::Mark& mark, YAML::anchor_t /*anchor*/)
{
    YamlNode node = nodeAt(mark, YamlNode::Kind::Plain);
    std::string spelling;
    for (const char* word : {"null", "Null", "NULL", "~"}) {
        spelling = standsAt(mark, word) ? word : spelling;
    }
    if (expectsKey()) {
        node.text = spelling;
    } else if (spelling.empty()) {
        node.line = lineBefore(mark);
    }
    add(mark, std::move(node));
}

void YamlTreeBuilder::OnAlias(const YAML::Mark& mark, YAML::anchor_t /*anchor*/)
{
    throw RefusedYaml(mark, "references to other values are not supported");
}

void YamlTreeBuilder::OnScalar(const YAML::Mark& mark, const std::string& tag,
                               YAML::anchor_t /*anchor*/, const std::string& value)
{
    const bool isPlain = tag == "?";
    YamlNode node = nodeAt(mark, isPlain ? YamlNode::Kind::Plain : YamlNode::Kind::Quoted);
    const auto entry = yaml.entries.find(mark.line + 1);
    node.text = entry == yaml.entries.end() ? value : entry->second;
    if (isPlain && !standsAt(mark, value)) {
        throw RefusedYaml(mark, "a text over several lines is not supported: " + quoted(node.text));
    }
    add(mark, std::move(node));
}

void YamlTreeBuilder::OnSequenceStart(const YAML::Mark& mark, const std::string& /*tag*/,
                                      YAML::anchor_t /*anchor*/, YAML::EmitterStyle::value style)
{
    checkListPlace(mark, style);
    open(mark, YamlNode::Kind::List);
}

void YamlTreeBuilder::OnSequenceEnd()
{
    close();
}

void YamlTreeBuilder::OnMapStart(const YAML::Mark& mark, const std::string& /*tag*/,
                                 YAML::anchor_t /*anchor*/, YAML::EmitterStyle::value /*style*/)
{
    open(mark, YamlNode::Kind::Mapping);
}

void YamlTreeBuilder::OnMapEnd()
{
    close();
}

// The compiler puts statements before the first sub here; the parser would only complain about the
// name that follows them.
void YamlTreeBuilder::checkListPlace(const YAML::Mark& mark, YAML::EmitterStyle::value style) const
{
    const bool isUnderRoot = openNodes.size() == 1 && openNodes.back().hasKey;
    if (isUnderRoot && openNodes.back().key == "scripts" && style != YAML::EmitterStyle::Flow) {
        throw RefusedYaml(mark, "scripts: the section begins with lines that belong to no script "
                                "(statements before the first sub)");
    }
}

void YamlTreeBuilder::open(const YAML::Mark& mark, YamlNode::Kind kind)
{
    if (expectsKey()) {
        throw RefusedYaml(mark, "a list or mapping cannot be a name");
    }
    if (openNodes.size() >= kDeepestNesting) {
        throw RefusedYaml(mark, "lists and mappings are nested too deeply");
    }
    OpenNode opened;
    opened.node = nodeAt(mark, kind);
    openNodes.push_back(std::move(opened));
}

void YamlTreeBuilder::close()
{
    YamlNode node = std::move(openNodes.back().node);
    openNodes.pop_back();
    add(YAML::Mark::null_mark(), std::move(node));
}

void YamlTreeBuilder::add(const YAML::Mark& mark, YamlNode node)
{
    if (++nodes > kMostNodes) {
        throw RefusedYaml(mark, "the file has more than 2 million entries");
    }
    if (openNodes.empty()) {
        root = std::move(node);
        complete = true;
        return;
    }
    if (expectsKey()) {
        setKey(mark, node);
        return;
    }
    OpenNode& parent = openNodes.back();
    node.key = std::move(parent.key);
    node.keyLine = parent.keyLine;
    parent.hasKey = false;
    parent.node.children.push_back(std::move(node));
}

void YamlTreeBuilder::setKey(const YAML::Mark& mark, const YamlNode& node)
{
    if (node.text == "<<") {
        throw RefusedYaml(mark, "the name << has a special meaning in YAML and is not supported");
    }
    OpenNode& parent = openNodes.back();
    parent.key = node.text;
    parent.keyLine = node.line;
    parent.hasKey = true;
}

bool YamlTreeBuilder::standsAt(const YAML::Mark& mark, std::string_view text) const
{
    const auto position = static_cast<size_t>(mark.pos);
    return position <= yaml.text.size() && yaml.text.compare(position, text.size(), text) == 0;
}

// The line of the text before a mark: where nothing stands, the parser marks what comes next.
int YamlTreeBuilder::lineBefore(const YAML::Mark& mark) const
{
    const std::string_view before(yaml.text.data(), static_cast<size_t>(mark.pos));
    const size_t end = before.find_last_not_of(" \n");
    const auto lineEnds =
        std::count(before.begin() + static_cast<std::ptrdiff_t>(end + 1), before.end(), '\n');
    return yaml.fileLine(mark.line + 1 - static_cast<int>(lineEnds));
}

bool YamlTreeBuilder::expectsKey() const
{
    return !openNodes.empty() && openNodes.back().node.kind == YamlNode::Kind::Mapping &&
           !openNodes.back().hasKey;
}

YamlNode YamlTreeBuilder::nodeAt(const YAML::Mark& mark, YamlNode::Kind kind) const
{
    YamlNode node;
    node.kind = kind;
    node.line = yaml.fileLine(mark.line + 1);
    return node;
}

}  // namespace gme
