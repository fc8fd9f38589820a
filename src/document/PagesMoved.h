#pragma once

#include <vector>

// Which picture each page has in the file that Save would write, where that is another one than in
// the file that is there.
struct PagesMoved
{
    bool empty() const { return pictures.empty(); }

    int saved = 0;              // pages of the file that is there
    std::vector<int> pictures;  // for each page the page of that file, or a higher number
};
