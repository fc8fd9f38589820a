#include "tests/helpers/Locales.h"

#include "tests/helpers/Environment.h"

#include <clocale>
#include <stdexcept>

GermanLocale::GermanLocale(const std::string& charset)
    : previous(setlocale(LC_ALL, nullptr)), previousFolder(qgetenv("LOCPATH"))
{
    const std::string name = germanLocaleName(charset);
    qputenv("LOCPATH", QByteArray(TEST_LOCALE_FOLDER));
    if (setlocale(LC_ALL, name.c_str()) == nullptr) {
        throw std::runtime_error("The locale " + name + " is missing: install the package " +
                                 "\"locales\" and configure again");
    }
}

GermanLocale::~GermanLocale()
{
    setlocale(LC_ALL, previous.c_str());
    if (previousFolder.isEmpty()) {
        qunsetenv("LOCPATH");
    } else {
        qputenv("LOCPATH", previousFolder);
    }
}
