#include "publish/YamlFile.h"

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"
#include "oid/ProjectFolder.h"

namespace {

// As "%-*s" and "%*d" fill up: longer texts are not cut.
std::string leftAligned(const std::string& text, size_t width)
{
    return text.size() < width ? text + std::string(width - text.size(), ' ') : text;
}

std::string rightAligned(const std::string& text, size_t width)
{
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

// Intended: every area has its line, also a second one of the same name and one without a sub.
std::string scriptCodes(const Oid::OidProject& project)
{
    std::string text = "scriptcodes:\r\n";
    for (const Oid::PICTURE& picture : project.pictures) {
        for (const Oid::POLY& area : picture.polys) {
            const auto entry = project.oids.find(area.name);
            const int oid = entry != project.oids.end() ? entry->second.oid : 0;
            text += "    " + leftAligned(area.name + ":", 16) + " " + rightAligned(itostr(oid), 8) +
                    "\r\n";
        }
    }
    return text;
}

bool writeFile(const std::string& path, const std::string& text)
{
    Platform::FileReplacement replacement(path);
    FILE* file = replacement.file();
    return file != nullptr && std::fwrite(text.data(), 1, text.size(), file) == text.size() &&
           replacement.commit();
}

}  // namespace

std::string description(const Oid::OidProject& project, ttbasic& script)
{
    return "\xEF\xBB\xBF" + script.yaml(project.productId, project.productName) +
           scriptCodes(project);
}

bool makeYAML(Oid::OidProject& project)
{
    return Oid::staysInFolder(project, project.pathYaml(), project.print) &&
           makeYAML(project, project.pathYaml());
}

bool makeYAML(Oid::OidProject& project, const std::string& path)
{
    if (!writeFile(path, description(project, project.compiler))) {
        project.print("Error: Can't open file '%s'\n", Platform::nativePath(path).c_str());
        return false;
    }
    return true;
}
