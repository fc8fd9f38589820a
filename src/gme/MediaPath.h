#pragma once

#include <string>
#include <vector>

namespace gme {

// Where the audio file of a name lies: "950-audio/%s".
class MediaPath
{
public:
    // yamlFolder is the folder that relative paths start from.
    explicit MediaPath(const std::string& yamlFolder) : folder(yamlFolder) {}

    // False unless "%s" occurs exactly once; "%%" stands for one percent sign.
    bool setTemplate(const std::string& text);
    // The five places where the file of a name may lie, as the template has them.
    std::vector<std::string> candidates(const std::string& name) const;
    // Native path of a candidate.
    std::string fullPath(const std::string& candidate) const;

private:
    std::string folder;
    std::string beforeName;
    std::string behindName;
};

}  // namespace gme
