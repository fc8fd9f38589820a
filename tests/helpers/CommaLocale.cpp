#include "tests/helpers/CommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <stdexcept>

CommaLocale::CommaLocale() : previous(setlocale(LC_ALL, nullptr))
{
    const std::string build =
        "localedef -i de_DE -f UTF-8 " + folder.file("de_DE.UTF-8") + " >/dev/null 2>&1";
    if (system(build.c_str()) != 0) {
        throw std::runtime_error("cannot build a locale; is the package locales installed?");
    }
    setenv("LOCPATH", folder.path().c_str(), 1);
    if (setlocale(LC_ALL, "de_DE.UTF-8") == nullptr || *localeconv()->decimal_point != ',') {
        throw std::runtime_error("the locale has no comma");
    }
}

CommaLocale::~CommaLocale()
{
    setlocale(LC_ALL, previous.c_str());
    unsetenv("LOCPATH");
}
