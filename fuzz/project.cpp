// Any file as a project file: it is loaded, and what saving makes of it is loaded as the same
// project.
#include "fuzz/Fuzzing.h"

#include "oid/OpenProject.h"

#include <algorithm>

namespace {

std::string savedAgain(const std::string& path, const std::string& name)
{
    Oid::OidProject project;
    project.print = printNothing;
    fuzzing::require(Oid::openProject(project, path, [](const Diagnostic&) {}), "it can be opened");
    const std::string copy = fuzzing::folder() + "/" + name;
    fuzzing::require(project.save(copy), "it can be saved");
    return copy;
}

// Saving changes "%%" in the script, and that once more each time, and a product name that holds a
// quote, or a line break behind one, which are not escaped.
bool isKnownToChange(const std::string& saved)
{
    const std::string product = saved.substr(0, saved.find("\r\n"));
    const bool isPlain =
        std::count(product.begin(), product.end(), '"') == 2 && product.back() == '"';
    return saved.find("%%") != std::string::npos || !isPlain;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    const std::string first = savedAgain(fuzzing::fileWith(data, size, "a.oidpro"), "b.oidpro");
    const std::string saved = fuzzing::bytesOf(first);
    if (isKnownToChange(saved)) {
        return 0;
    }
    const std::string second = savedAgain(first, "c.oidpro");
    fuzzing::requireEqual(saved, fuzzing::bytesOf(second), "what was saved is loaded as it was");
    return 0;
}
