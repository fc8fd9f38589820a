#pragma once

#include <optional>

// Keys that hold a state.
namespace Platform {

// Whether the Insert key is toggled on; nothing where the system keeps no such state.
std::optional<bool> insertKeyToggled();

}  // namespace Platform
