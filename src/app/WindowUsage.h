#pragma once

#include <optional>
#include <string>

// What the program prints instead of opening its window, for the first word behind its name: the
// help, the version, the manual page. Nothing for other words.
std::optional<std::string> answerWithoutWindow(const std::string& word);
