// Qt knows the width of the system's wchar_t; what is not valid becomes U+FFFD.
#include "base/TextHelpers.h"

#include <QString>

std::string toUtf8(const wchar_t* text)
{
    return text != nullptr ? QString::fromWCharArray(text).toStdString() : std::string();
}

std::wstring fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.c_str()).toStdWString();
}
