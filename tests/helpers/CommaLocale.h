#pragma once

#include <string>

#include "tests/helpers/TemporaryFolder.h"

// While it lives, the process has a locale that writes numbers with a comma, as a Qt program on a
// German machine has. The locale is built for the purpose, so that no machine lacks it.
class CommaLocale
{
public:
    // Throws when the locale cannot be built or does not write a comma.
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    TemporaryFolder folder;
    std::string previous;
};
