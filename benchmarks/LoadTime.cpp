// Measures the loading of the library: the time of dlopen, in a new process each time, and the allocations of the
// initialisers.

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>

namespace
{

constexpr std::size_t Repetitions = 101;

std::size_t allocations = 0;
std::size_t smallest = ~std::size_t{0};
std::size_t largest = 0;

struct Load
{
    double microseconds = 0;
    std::size_t allocations = 0;
    std::size_t smallest = 0;
    std::size_t largest = 0;
};

Load LoadInNewProcess(char const* const library)
{
    Load load;
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) std::abort();
    if (fork() == 0)
    {
        allocations = 0;
        smallest = ~std::size_t{0};
        largest = 0;
        auto const start = std::chrono::steady_clock::now();
        if (dlopen(library, RTLD_NOW) == nullptr)
        {
            std::fprintf(stderr, "%s\n", dlerror());
            _exit(1);
        }
        std::chrono::duration<double, std::micro> const time = std::chrono::steady_clock::now() - start;
        load = {time.count(), allocations, smallest, largest};
        _exit(write(ends[1], &load, sizeof(load)) == sizeof(load) ? 0 : 1);
    }
    close(ends[1]);
    if (read(ends[0], &load, sizeof(load)) != sizeof(load)) std::exit(1);
    close(ends[0]);
    wait(nullptr);
    return load;
}

} // namespace

// Replaces operator new in the library too, because the first definition counts.
void* operator new(std::size_t const size)
{
    ++allocations;
    smallest = std::min(smallest, size);
    largest = std::max(largest, size);
    if (auto* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* const memory) noexcept
{
    std::free(memory);
}

void operator delete(void* const memory, std::size_t) noexcept
{
    std::free(memory);
}

int main(int argc, char** argv)
{
    if (argc != 2) return 2;

    largest = 0;
    std::map<int, char const*> names{{0, "any"}};
    auto const nodeSize = largest;

    std::array<Load, Repetitions> loads;
    for (auto& load : loads) load = LoadInNewProcess(argv[1]);
    std::nth_element(loads.begin(), loads.begin() + Repetitions / 2, loads.end(),
                     [](Load const& left, Load const& right) { return left.microseconds < right.microseconds; });
    auto const& median = loads[Repetitions / 2];
    bool const onlyNames = median.smallest == nodeSize && median.largest == nodeSize;
    std::printf("dlopen takes %.0f microseconds and %zu allocations, %s\n", median.microseconds, median.allocations,
                onlyNames ? "all of them entries of the wire's name maps"
                          : "NOT all of them entries of the wire's name maps");
    return names.size() == 1 ? 0 : 1;
}
