#include "pdf/PenCodes.h"

#include "base/PlatformFiles.h"
#include "gme/Assembler.h"
#include "gme/CodesFile.h"
#include "oid/OidProject.h"

PenCodes penCodesOf(const Oid::OidProject& project)
{
    const std::string path = gme::codesFileFor(Platform::nativePath(project.pathYaml()));
    gme::CodesFile file(path);
    // What is wrong with the file, the next build tells.
    gme::Messages messages(path, [](const Diagnostic&) {});
    PenCodes codes;
    if (file.read(messages)) {
        codes.replay = file.codes().replay ? file.codes().replay->code : 0;
        codes.stop = file.codes().stop ? file.codes().stop->code : 0;
    }
    return codes;
}
