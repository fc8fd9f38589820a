#pragma once

#include <cstdint>
#include <optional>

// The machine: its memory, its keyboard and its screen.
namespace Platform {

// Bytes that this process can still fill without driving the machine out of memory; the largest
// number when the system does not tell.
std::uint64_t availableMemory();

// Gives memory that has been freed back to the system, as far as the system allows that. For the
// end of work that needed much of it.
void releaseFreeMemory();

// Whether the Insert key is toggled on; nothing where the system keeps no such state.
std::optional<bool> insertKeyToggled();

// The plugin with which Qt draws where nothing is to be shown on a screen.
const char* screenlessPlugin();

}  // namespace Platform
