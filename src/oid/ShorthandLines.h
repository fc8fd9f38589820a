#pragma once

#include <string_view>

namespace Oid {

// The comment lines that Save writes at the end of every picture. They tell the author of two
// shorthands, and the reader that a picture without areas is a page that was saved.
inline constexpr std::string_view kShorthandLines[] = {"# BOX    name x y w h",
                                                       "# CIRCLE name xm ym R"};

}  // namespace Oid
