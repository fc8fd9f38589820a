#pragma once

#include <cstdint>

// The raw code of an OID is the 16-bit number that its dot pattern encodes and the pen reads. The
// mapping is fixed data; no two OIDs share a raw code.
namespace oid_raw_codes {

constexpr int kCount = 16384;  // OIDs 0 to 16383 have a raw code

// There is no range check: callers pass 0 to kCount - 1.
std::uint32_t getRawCode(int oid);

// For numbers that an author typed or a file brought: is there a dot pattern at all?
constexpr bool hasRawCode(int oid)
{
    return oid >= 0 && oid < kCount;
}
// getRawCode for any number; 0 where there is none.
std::uint32_t rawCodeOrZero(int oid);

}  // namespace oid_raw_codes
