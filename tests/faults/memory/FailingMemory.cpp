#include "tests/faults/memory/FailingMemory.h"

#include <atomic>
#include <cstdlib>
#include <new>

extern "C" const char __executable_start;  // of the linker
extern "C" const char etext;

namespace {

std::atomic<bool> isWatched{false};
std::atomic<int> allocations{0};
std::atomic<int> refused{0};  // the number of the one that fails; 0: none

// Qt is built without regard to exceptions: its locks stay locked.
bool isOurs(const void* caller)
{
    return caller >= &__executable_start && caller < &etext;
}

void* take(std::size_t bytes, const void* caller) noexcept
{
    if (isWatched && isOurs(caller) && ++allocations == refused) {
        return nullptr;
    }
    return std::malloc(bytes > 0 ? bytes : 1);
}

void* takeOrThrow(std::size_t bytes, const void* caller)
{
    void* const memory = take(bytes, caller);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

class Watch
{
public:
    explicit Watch(int number)
    {
        allocations = 0;
        refused = number;
        isWatched = true;
    }
    ~Watch() { isWatched = false; }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
};

}  // namespace

void* operator new(std::size_t bytes)
{
    return takeOrThrow(bytes, __builtin_return_address(0));
}
void* operator new[](std::size_t bytes)
{
    return takeOrThrow(bytes, __builtin_return_address(0));
}
void* operator new(std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept
{
    return take(bytes, __builtin_return_address(0));
}
void* operator new[](std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept
{
    return take(bytes, __builtin_return_address(0));
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*bytes*/) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*bytes*/) noexcept
{
    std::free(memory);
}

namespace failingMemory {

int allocationsOf(const std::function<void()>& work)
{
    const Watch watch(0);
    work();
    return allocations;
}

End refuse(int number, const std::function<void()>& work)
{
    const Watch watch(number);
    try {
        work();
        return End::done;
    } catch (const std::bad_alloc&) {
        return End::refused;
    }
}

}  // namespace failingMemory
