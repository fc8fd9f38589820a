#include "gme/YamlProblem.h"

#include <algorithm>
#include <utility>

namespace gme {

namespace {

// A game needs three levels; more only costs stack.
constexpr size_t kDeepestNesting = 32;
// Far beyond the largest game; keeps a file of nothing but dashes from filling the memory.
constexpr size_t kMostNodes = 2'000'000;

// Puts the parser's events together. Keeps every entry of a mapping, also those with equal keys.
class YamlReader
{
public:
    explicit YamlReader(const std::string& text);
    ~YamlReader();
    YamlReader(const YamlReader&) = delete;
    YamlReader& operator=(const YamlReader&) = delete;

    bool read(YamlNode& root, Messages& messages);

private:
    YamlNode readDocument();
    void readValue(YamlNode& node);
    void readScalar(YamlNode& node);
    void readList(YamlNode& node);
    void readMapping(YamlNode& node);
    void readKey(YamlNode& value);
    void next();
    void refuseUnsupported();
    void refuseLinesBeforeScripts(const std::string& key);
    [[noreturn]] void refuse(const std::string& reason);
    Place place() { return lines.placeOf(event.start_mark, event.end_mark); }
    void report(const YamlProblem& problem, Messages& messages);

    yaml_parser_t parser{};
    yaml_event_t event{};
    YamlLines lines;
    LongQuote lastQuote;
    std::string section;  // the last name at the top level
    size_t depth = 0;
    size_t nodes = 0;
};

YamlReader::YamlReader(const std::string& text) : lines(text)
{
    if (yaml_parser_initialize(&parser) == 0) {
        throw std::bad_alloc();
    }
    yaml_parser_set_encoding(&parser, YAML_UTF8_ENCODING);
    const void* bytes = text.data();
    yaml_parser_set_input_string(&parser, static_cast<const yaml_char_t*>(bytes), text.size());
}

YamlReader::~YamlReader()
{
    yaml_event_delete(&event);
    yaml_parser_delete(&parser);
}

bool YamlReader::read(YamlNode& root, Messages& messages)
{
    try {
        root = readDocument();
        return true;
    } catch (const YamlProblem& problem) {
        report(problem, messages);
        return false;
    }
}

YamlNode YamlReader::readDocument()
{
    next();  // the stream
    next();
    if (event.type == YAML_STREAM_END_EVENT) {
        throw YamlProblem({}, "the file is empty");
    }
    YamlNode root;
    next();
    readValue(root);
    next();  // the end of the document
    next();  // and of the stream
    return root;
}

// Of the event at hand; the last one that belongs to the value is at hand afterwards.
void YamlReader::readValue(YamlNode& node)
{
    if (++nodes > kMostNodes) {
        refuse("the file has more than 2 million entries");
    }
    node.place = place();
    if (event.type == YAML_SCALAR_EVENT) {
        readScalar(node);
        if (node.kind == YamlNode::Kind::Plain && isNullWord(node.text)) {
            node.text.clear();
        }
        return;
    }
    if (++depth > kDeepestNesting) {
        refuse("lists and mappings are nested too deeply");
    }
    event.type == YAML_SEQUENCE_START_EVENT ? readList(node) : readMapping(node);
    --depth;
}

void YamlReader::readScalar(YamlNode& node)
{
    const auto& scalar = event.data.scalar;
    const void* bytes = scalar.value;
    node.text.assign(static_cast<const char*>(bytes), scalar.length);
    if (scalar.style != YAML_PLAIN_SCALAR_STYLE) {
        node.kind = YamlNode::Kind::Quoted;
        lastQuote = {event.start_mark, event.end_mark};
    }
}

void YamlReader::readList(YamlNode& node)
{
    node.kind = YamlNode::Kind::List;
    for (next(); event.type != YAML_SEQUENCE_END_EVENT; next()) {
        readValue(node.children.emplace_back());
    }
}

void YamlReader::readMapping(YamlNode& node)
{
    node.kind = YamlNode::Kind::Mapping;
    for (next(); event.type != YAML_MAPPING_END_EVENT; next()) {
        YamlNode& value = node.children.emplace_back();
        readKey(value);
        next();
        refuseLinesBeforeScripts(value.key);
        readValue(value);
    }
}

void YamlReader::readKey(YamlNode& value)
{
    if (event.type != YAML_SCALAR_EVENT) {
        refuse("a list or mapping cannot be a name");
    }
    YamlNode key;
    readScalar(key);
    if (key.text == "<<") {
        refuse("the name << has a special meaning in YAML and is not supported");
    }
    if (key.text.empty() && key.kind == YamlNode::Kind::Plain) {
        throw YamlProblem(place(), "a name is empty", true);
    }
    value.keyPlace = place();
    value.key = std::move(key.text);
    section = depth == 1 ? value.key : section;
}

// The compiler puts statements before the first sub here; the parser would only complain about the
// name that follows them.
void YamlReader::refuseLinesBeforeScripts(const std::string& key)
{
    if (depth == 1 && key == "scripts" && event.type == YAML_SEQUENCE_START_EVENT &&
        event.data.sequence_start.style != YAML_FLOW_SEQUENCE_STYLE) {
        refuse("scripts: the section begins with lines that belong to no script (statements before "
               "the first sub)");
    }
}

void YamlReader::next()
{
    yaml_event_delete(&event);
    if (yaml_parser_parse(&parser, &event) == 0) {
        throw problemOf(parser, lines, lastQuote);
    }
    refuseUnsupported();
}

// Forms that no game needs; references could also make a small file endless.
void YamlReader::refuseUnsupported()
{
    const auto& data = event.data;
    const auto isMarked = [](const auto& value) {
        return value.anchor != nullptr || value.tag != nullptr;
    };
    if ((event.type == YAML_DOCUMENT_START_EVENT && data.document_start.implicit == 0) ||
        (event.type == YAML_DOCUMENT_END_EVENT && data.document_end.implicit == 0)) {
        throw YamlProblem(place(), "document markers are not supported", true);
    }
    if (event.type == YAML_ALIAS_EVENT ||
        (event.type == YAML_SCALAR_EVENT && isMarked(data.scalar)) ||
        (event.type == YAML_SEQUENCE_START_EVENT && isMarked(data.sequence_start)) ||
        (event.type == YAML_MAPPING_START_EVENT && isMarked(data.mapping_start))) {
        const Place where = lines.placeOf(event.start_mark);
        const auto column = static_cast<size_t>(where.column) - 1;
        throw unsupportedForm(lines.line(event.start_mark.line)[column], where);
    }
}

void YamlReader::refuse(const std::string& reason)
{
    throw YamlProblem(place(), reason);
}

void YamlReader::report(const YamlProblem& problem, Messages& messages)
{
    std::string text = problem.what();
    if (problem.showsLine) {
        std::string_view line = lines.line(static_cast<size_t>(problem.place.line) - 1);
        if (!section.empty() && line.substr(0, 1) == " ") {
            text = section + ": " + text;
        }
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        text += line.empty() ? std::string() : ": " + quoted(std::string(line));
    }
    messages.error(problem.place, "yaml-syntax", text);
}

}  // namespace

bool readYaml(std::string bytes, YamlNode& root, Messages& messages)
{
    return makeText(bytes, messages) && YamlReader(bytes).read(root, messages);
}

Place valuePlace(const YamlNode& node)
{
    return node.place.line == node.keyPlace.line ? node.place : node.keyPlace;
}

bool isSameValue(const YamlNode& one, const YamlNode& other)
{
    if (one.kind != other.kind || one.text != other.text ||
        one.children.size() != other.children.size()) {
        return false;
    }
    for (size_t i = 0; i < one.children.size(); ++i) {
        if (one.children[i].key != other.children[i].key ||
            !isSameValue(one.children[i], other.children[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace gme
