#include "oid/OidRawCodes.h"

namespace {

// Entry n is the raw code of OID n.
constexpr std::uint16_t kRawCodes[oid_raw_codes::kCount] = {
#include "oid/OidRawCodes.inc"
};

}  // namespace

std::uint32_t oid_raw_codes::getRawCode(int oid)
{
    return kRawCodes[oid];
}

std::uint32_t oid_raw_codes::rawCodeOrZero(int oid)
{
    return hasRawCode(oid) ? getRawCode(oid) : 0;
}
