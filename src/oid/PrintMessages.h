#pragma once

#include <string>

#include "base/PrintFunction.h"

// What is said through mi_printf while one of these lives. They are not used at the same time.

// Keeps the last message; all are printed as before.
class LastMessage
{
public:
    LastMessage();
    ~LastMessage();
    LastMessage(const LastMessage&) = delete;
    LastMessage& operator=(const LastMessage&) = delete;

    // Its first line, without the line end.
    std::string line() const;
};

// Nothing of it is heard.
class SilentMessages
{
public:
    SilentMessages();
    ~SilentMessages();
    SilentMessages(const SilentMessages&) = delete;
    SilentMessages& operator=(const SilentMessages&) = delete;

private:
    PrintFunction before;
};
