#include "gme/YamlTree.h"

#include "gme/YamlTreeBuilder.h"

#include <sstream>

namespace gme {

namespace {

// The parser's own words beside the line that they are about.
std::string parserMessage(const YAML::Exception& problem, const PreparedYaml& yaml)
{
    if (problem.mark.is_null()) {
        return "not valid YAML (" + problem.msg + ")";
    }
    return "not valid YAML (" + problem.msg + "): " + quoted(yaml.fileText(problem.mark.line + 1));
}

int fileLineOf(const YAML::Mark& mark, const PreparedYaml& yaml)
{
    return mark.is_null() ? 0 : yaml.fileLine(mark.line + 1);
}

bool parse(const PreparedYaml& yaml, YamlTreeBuilder& builder, Messages& messages)
{
    std::istringstream stream(yaml.text);
    try {
        YAML::Parser parser(stream);
        while (parser.HandleNextDocument(builder)) {}
        return true;
    } catch (const RefusedYaml& refused) {
        messages.error(fileLineOf(refused.mark, yaml), refused.msg);
    } catch (const YAML::Exception& problem) {
        messages.error(fileLineOf(problem.mark, yaml), parserMessage(problem, yaml));
    }
    return false;
}

}  // namespace

bool readYamlTree(const PreparedYaml& yaml, YamlNode& root, Messages& messages)
{
    YamlTreeBuilder builder(yaml);
    if (!parse(yaml, builder, messages)) {
        return false;
    }
    if (!builder.isComplete()) {
        messages.error(0, "the file is empty");
        return false;
    }
    root = builder.take();
    return true;
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
