#pragma once

#include <functional>

// Memory that is refused once, on any thread. Only what our own code takes by "new", with
// the templates that it uses; what happens outside of these functions gets all that it wants.
namespace failingMemory {

// How often the work takes memory.
int allocationsOf(const std::function<void()>& work);

enum class End {
    done,    // the work did without the memory, or told its caller in its own way
    refused  // std::bad_alloc came out of it
};
// Does the work; the allocation of that number (from 1 on) fails, and all behind it are granted.
End refuse(int number, const std::function<void()>& work);

}  // namespace failingMemory
