#pragma once

#include <string>
#include <vector>

// Pages as an author types them: "0,2-3" as 0, 2, 3. Empty when it is something else.
std::vector<int> pagesIn(const std::string& text);
