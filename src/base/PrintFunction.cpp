#include "base/PrintFunction.h"

#include <cstdarg>
#include <cstdio>

static PrintFunction processDefault = printToStandardOutput;

void setDefaultPrintf(PrintFunction function)
{
    processDefault = function != nullptr ? function : printToStandardOutput;
}

PrintFunction defaultPrintf()
{
    return processDefault;
}

int printToStandardOutput(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int length = vprintf(format, arguments);
    va_end(arguments);
    return length;
}

int printNothing(const char* /*format*/, ...)
{
    return 0;
}
