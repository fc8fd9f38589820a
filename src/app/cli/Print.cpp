#include <optional>

#include "app/cli/Commands.h"
#include "oid/OpenProject.h"
#include "oid/PrintJob.h"

namespace {

int print(const Arguments& arguments)
{
    std::optional<int> chosen;
    if (arguments.has("--picture")) {
        chosen = wholeNumber(arguments.value("--picture"), 0);
        if (!chosen) {
            return usageError("N must be the number of a picture, not '" +
                              arguments.value("--picture") + "'");
        }
    }
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    const int last = static_cast<int>(project.pictures.size()) - 1;
    if (chosen && *chosen > last) {
        return usageError("there is no picture " + std::to_string(*chosen) + ", the last is " +
                          std::to_string(last));
    }
    const PrintJobResult result = makeImages(chosen.value_or(0), chosen.value_or(last), project);
    return result.firstFailed < 0 ? kFine : kFailed;
}

}  // namespace

Command printCommand()
{
    return {"print",
            "PROJECT",
            "Makes the print images of all pictures, beside the project.",
            {{"--picture", "N", "only this picture, counted from 0"}},
            print};
}
