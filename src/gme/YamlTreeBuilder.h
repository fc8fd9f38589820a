#pragma once

#include "gme/YamlTree.h"

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

#include <string_view>

namespace gme {

// Ends the parse: our own words about a form that the parser would take.
class RefusedYaml : public YAML::ParserException
{
public:
    using YAML::ParserException::ParserException;
};

// Puts the parser's events together. Keeps every entry of a mapping, also those with equal keys.
class YamlTreeBuilder : public YAML::EventHandler
{
public:
    explicit YamlTreeBuilder(const PreparedYaml& source) : yaml(source) {}

    bool isComplete() const { return complete; }
    YamlNode take() { return std::move(root); }

    void OnDocumentStart(const YAML::Mark& mark) override;
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark& mark, YAML::anchor_t anchor) override;
    void OnAlias(const YAML::Mark& mark, YAML::anchor_t anchor) override;
    void OnScalar(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                  const std::string& value) override;
    void OnSequenceStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                         YAML::EmitterStyle::value style) override;
    void OnSequenceEnd() override;
    void OnMapStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                    YAML::EmitterStyle::value style) override;
    void OnMapEnd() override;

private:
    // A list or mapping that is still open.
    struct OpenNode
    {
        YamlNode node;
        bool hasKey = false;  // read, its value is next
        int keyLine = 0;
        std::string key;
    };

    void open(const YAML::Mark& mark, YamlNode::Kind kind);
    void close();
    void add(const YAML::Mark& mark, YamlNode node);
    void setKey(const YAML::Mark& mark, const YamlNode& node);
    void checkListPlace(const YAML::Mark& mark, YAML::EmitterStyle::value style) const;
    bool standsAt(const YAML::Mark& mark, std::string_view text) const;
    int lineBefore(const YAML::Mark& mark) const;
    bool expectsKey() const;
    YamlNode nodeAt(const YAML::Mark& mark, YamlNode::Kind kind) const;

    const PreparedYaml& yaml;
    std::vector<OpenNode> openNodes;
    YamlNode root;
    size_t nodes = 0;
    bool complete = false;
};

}  // namespace gme
