#pragma once

#include <cstdint>

// The memory of the machine.
namespace Platform {

// Bytes that this process can still fill without driving the machine out of memory; the largest
// number when the system does not tell.
std::uint64_t availableMemory();

}  // namespace Platform
