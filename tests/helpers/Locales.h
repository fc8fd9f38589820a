#pragma once

#include <QByteArray>

#include <clocale>
#include <string>

// While it lives, the process speaks German: numbers have a decimal comma, and text is in the given
// code ("ISO-8859-1", "ISO-8859-15" or "UTF-8").
class GermanLocale
{
public:
    explicit GermanLocale(const std::string& charset);
    ~GermanLocale();
    GermanLocale(const GermanLocale&) = delete;
    GermanLocale& operator=(const GermanLocale&) = delete;

private:
    std::string previous;
    QByteArray previousFolder;
};

// While it lives, the locale is plain "C", which knows ASCII only.
class PlainLocale
{
public:
    PlainLocale() : previous(setlocale(LC_ALL, nullptr)) { setlocale(LC_ALL, "C"); }
    ~PlainLocale() { setlocale(LC_ALL, previous.c_str()); }

private:
    std::string previous;
};
