#include "ttbasic/Numbers.h"

#include <cstdlib>
#include <limits>

#include "base/TextHelpers.h"

void increase(int& counter)
{
    if (counter < std::numeric_limits<int>::max()) {
        ++counter;
    }
}

std::string randomSummand()
{
    return itostr(std::rand() % 997);  // NOLINT: the same numbers in every build are wanted
}

void seedRandomSummands()
{
    std::srand(7787);  // NOLINT: see above
}
