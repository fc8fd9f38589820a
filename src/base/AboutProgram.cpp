#include "base/AboutProgram.h"

#include <QtGlobal>

std::string programVersion()
{
    return PLINKETT_VERSION;
}

std::string programLicence()
{
    return "MIT";
}

std::string qtVersion()
{
    return qVersion();
}

// docs/dependencies.md has them all, with their versions.
const std::vector<UsedLibrary>& usedLibraries()
{
    static const std::vector<UsedLibrary> libraries = {
        {"libebur128", "Expat"},     {"libisal", "BSD-3-clause"},
        {"libqpdf", "Apache-2.0"},   {"libSDL2", "zlib/libpng and zlib-libpng-like-permissive"},
        {"libsndfile", "LGPL-2.1+"}, {"libtiff", "libtiff (permissive, like MIT)"},
        {"libyaml", "Expat"},        {"Qt", "LGPL-3 or GPL-2"},
    };
    return libraries;
}

std::string versionText(const std::string& program)
{
    std::string text = program + " " + programVersion() + "\nQt " + qtVersion() +
                       "\nLicence: " + programLicence() + "\nLibraries and their licences:\n";
    for (const UsedLibrary& library : usedLibraries()) {
        text += "  " + library.name + ": " + library.licence + "\n";
    }
    return text;
}
