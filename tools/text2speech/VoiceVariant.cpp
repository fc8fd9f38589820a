#include "tools/text2speech/VoiceVariant.h"

#include <iterator>

namespace {

struct AgeGroup
{
    int oldest;  // years
    VoiceVariant female;
    VoiceVariant male;
};

constexpr AgeGroup kGroups[] = {
    {12, {"f3", 99}, {"m2", 99}},  // child
    {24, {"f5", 65}, {"m2", 68}},  // young
    {59, {"f2", 55}, {"m3", 50}},  // adult
    {99, {"f1", 30}, {"m1", 42}},  // old
};

}  // namespace

VoiceVariant variantFor(bool female, int age)
{
    const AgeGroup* group = std::begin(kGroups);
    while (group + 1 != std::end(kGroups) && age > group->oldest) {
        ++group;
    }
    return female ? group->female : group->male;
}
