#pragma once

#include <QByteArray>

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
