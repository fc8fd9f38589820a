#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The machine: its name, its memory, its keyboard and its screen.
namespace Platform {

// The name of this machine as Qt's lock files hold it: on Windows the short one in capitals, which
// is not the one of its network.
std::string machineName();

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
