#include "oid/PrintMessages.h"

#include <cstdarg>

#include "base/PlatformText.h"
#include "oid/PrintImage.h"

namespace {

PrintFunction forward = nullptr;
std::string lastText;

int keep(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    lastText = Platform::formatText(format, arguments);
    va_end(arguments);
    return forward("%s", lastText.c_str());
}

}  // namespace

LastMessage::LastMessage()
{
    forward = mi_printf;
    lastText.clear();
    mi_printf = keep;
}

LastMessage::~LastMessage()
{
    mi_printf = forward;
}

std::string LastMessage::line() const
{
    return lastText.substr(0, lastText.find('\n'));
}

SilentMessages::SilentMessages() : before(mi_printf)
{
    mi_printf = printNothing;
}

SilentMessages::~SilentMessages()
{
    mi_printf = before;
}
