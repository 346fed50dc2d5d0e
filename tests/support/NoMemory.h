#pragma once

// Replaces operator new: for one source file of a program.

#include <atomic>
#include <cstdlib>
#include <new>

namespace vantrell
{

/// While it lives, so many allocations by `new` fail in threads that begin meanwhile.
class NoMemory
{
public:
    explicit NoMemory(int failures) { s_left = failures; }
    ~NoMemory() { s_left = 0; }
    NoMemory(const NoMemory &) = delete;
    NoMemory &operator=(const NoMemory &) = delete;

    static bool fails()
    {
        if (s_left.load() <= 0) {
            s_wasThere = true;
            return false;
        }
        return !s_wasThere && s_left.fetch_sub(1) > 0;
    }

private:
    static inline std::atomic<int> s_left = 0;
    static inline thread_local bool s_wasThere = false; // this thread, before
};

} // namespace vantrell

void *operator new(std::size_t size)
{
    void *const memory = vantrell::NoMemory::fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return vantrell::NoMemory::fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
