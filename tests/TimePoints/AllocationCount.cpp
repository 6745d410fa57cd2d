#include "tests/TimePoints/AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

// In a file of its own: where the compiler sees through only one of the two operators, it warns of a mismatch.

namespace
{

std::atomic<std::size_t> count = 0;

} // namespace

std::size_t AllocationCount() noexcept
{
    return count;
}

void* operator new(std::size_t size)
{
    ++count;
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc{};
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
