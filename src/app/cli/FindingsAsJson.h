#pragma once

#include <string>
#include <vector>

#include "base/Diagnostic.h"
#include "hints/Hint.h"

// An array with an object for each message and then each hint: "severity" ("error", "warning" or
// "hint"), "kind", "text", "file", "subject", "line", "column", "length", "page", "area", all as in
// Diagnostic, and "fix", which is null where there is none.
std::string findingsAsJson(const std::vector<Diagnostic>& messages,
                           const std::vector<hints::Finding>& hints);
