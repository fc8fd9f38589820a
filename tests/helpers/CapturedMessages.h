#pragma once

#include "base/PrintFunction.h"

#include <string>

// Collects what is printed through print(): one text for the process, empty at the start of each
// CapturedMessages.
//
//   CapturedMessages messages;
//   project.redirectPrintf(messages.print);
//   ...
//   EXPECT_EQ(messages.text(), "...");
class CapturedMessages
{
public:
    CapturedMessages();

    static int print(const char* format, ...);
    const std::string& text() const;
    // The text so far; the collection starts anew.
    std::string take();
};
