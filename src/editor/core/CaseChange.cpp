#include "editor/core/CaseChange.h"

#include <algorithm>
#include <iterator>

#include "editor/core/CaseTables.h"

namespace KVTextEditor {

namespace {

template <std::size_t SIZE>
char16_t mapped(const CaseRun (&runs)[SIZE], char16_t c)
{
    const auto endsBefore = [](const CaseRun& run, char16_t wanted) { return run.last < wanted; };
    const CaseRun* run = std::lower_bound(std::begin(runs), std::end(runs), c, endsBefore);
    if (run == std::end(runs) || c < run->first || (c - run->first) % run->step != 0) {
        return c;
    }
    return static_cast<char16_t>(c + run->difference);
}

}  // namespace

char16_t transform_to_upper(char16_t c)
{
    return mapped(kToUpper, c);
}

char16_t transform_to_lower(char16_t c)
{
    return mapped(kToLower, c);
}

}  // namespace KVTextEditor
