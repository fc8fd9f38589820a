#pragma once

#include <clocale>
#include <string>

// While it lives, the locale is plain "C", which knows ASCII only.
class PlainLocale
{
public:
    PlainLocale() : previous(setlocale(LC_ALL, nullptr)) { setlocale(LC_ALL, "C"); }
    ~PlainLocale() { setlocale(LC_ALL, previous.c_str()); }

private:
    std::string previous;
};
