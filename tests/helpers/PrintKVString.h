#pragma once

#include "base/KVString.h"

#include <ostream>

// How a failed expectation shows a KVString.
inline void PrintTo(const KVString& text, std::ostream* out)
{
    *out << '"' << text.c_str() << '"';
}
