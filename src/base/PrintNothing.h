#pragma once

// A print function (PrintFunction.h) for work of which nothing is to be heard.
inline int printNothing(const char* /*format*/, ...)
{
    return 0;
}
