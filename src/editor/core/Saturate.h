#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace KVTextEditor {

// The nearest 32-bit number: positions and counts end at the limits instead of wrapping around.
inline std::int32_t saturate(std::int64_t value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

inline std::int32_t saturating_add(std::int32_t left, std::int32_t right)
{
    return saturate(std::int64_t{left} + right);
}

}  // namespace KVTextEditor
