#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace vantrell
{

/// Memory for the nodes of parsed trees.
///
/// A parse makes millions of small blocks that all die with their document. So what it puts into its
/// tree is cut from large chunks, without a header for each block; the library's free function passes
/// over such blocks, and the chunks go back when their arena dies. Everything else, edits included,
/// stays with the C library's allocator. The chunks are not asked to be huge pages: on virtual machines
/// those are the pages that the host has to bring back, which took twice the time of the parse. Where
/// the system grants no address range for the chunks, and in sanitizer builds, arenas hand out nothing
/// and all memory is ordinary.
namespace TreeMemory
{

/// Gives the XML library this allocator and initialises its parser. Any thread, any number of times;
/// must come before the first use of the library.
void install();

/// The chunks of one document. Not copyable; destroyed after the document whose nodes it holds.
class Arena
{
public:
    Arena() = default;
    ~Arena();
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    /// A block of \a size bytes, aligned for any node; null when the arena has no memory.
    void *allocate(std::size_t size);

private:
    std::vector<char *> m_chunks;
    char *m_next = nullptr;
    char *m_end = nullptr;
};

/// While it lives, the XML library's allocations of this thread come from the arena.
class Scope
{
public:
    explicit Scope(Arena *arena);
    ~Scope();
    Scope(const Scope &) = delete;
    Scope &operator=(const Scope &) = delete;

private:
    Arena *m_previous;
};

} // namespace TreeMemory
} // namespace vantrell
