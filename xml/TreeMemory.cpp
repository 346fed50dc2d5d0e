#include "xml/TreeMemory.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlmemory.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>

#if defined(__linux__) && !defined(VANTRELL_SANITIZED)
#define VANTRELL_TREE_ARENAS 1
#include <sys/mman.h>
#endif

namespace vantrell::TreeMemory
{

namespace
{

constexpr std::size_t chunkSize = std::size_t(8) << 20;
constexpr std::size_t alignment = alignof(void *);

// Millions of nodes are cut without their last two members, the line number and a field for stylesheet
// processors. Nothing here reads them, and the parser, which keeps no line numbers here, only clears
// them together with the new node, before the next block is handed out. A copy of a node takes whatever
// stands there along.
constexpr std::size_t cutNodeSize = offsetof(xmlNode, line);
constexpr std::size_t slack = sizeof(xmlNode) - cutNodeSize; // behind the last node of a chunk
static_assert(cutNodeSize % alignment == 0);

thread_local Arena *currentArena = nullptr;

/// The address range that all chunks are cut from: so that "is this block an arena's" is two
/// comparisons. It is reserved, not committed; pages come with use and go with their chunk.
class ChunkRange
{
public:
    static ChunkRange &instance()
    {
        static ChunkRange &range = *new ChunkRange; // blocks are freed until the very end of the process
        return range;
    }

    bool contains(const void *block) const
    {
        const auto address = reinterpret_cast<std::uintptr_t>(block);
        return address - m_begin < m_size;
    }

    /// Bytes from the block to the end of its chunk.
    static std::size_t bytesToChunkEnd(const void *block)
    {
        return chunkSize - (reinterpret_cast<std::uintptr_t>(block) & (chunkSize - 1));
    }

    char *take()
    {
#ifdef VANTRELL_TREE_ARENAS
        const std::lock_guard lock(m_mutex);
        if (!m_free.empty()) {
            char *chunk = m_free.back();
            m_free.pop_back();
            return chunk;
        }
        if (m_used + chunkSize > m_size)
            return nullptr;
        char *chunk = reinterpret_cast<char *>(m_begin + m_used);
        m_used += chunkSize;
        return chunk;
#else
        return nullptr;
#endif
    }

    void giveBack(const std::vector<char *> &chunks)
    {
#ifdef VANTRELL_TREE_ARENAS
        for (char *chunk : chunks)
            madvise(chunk, chunkSize, MADV_DONTNEED);
#endif
        const std::lock_guard lock(m_mutex);
        m_free.insert(m_free.end(), chunks.begin(), chunks.end());
    }

private:
    ChunkRange()
    {
#ifdef VANTRELL_TREE_ARENAS
        // As much as the system lets us reserve: a tree takes about five times its file.
        for (std::size_t size = std::size_t(1) << 40; size >= std::size_t(1) << 32; size >>= 2) {
            void *range = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
            if (range == MAP_FAILED)
                continue;
            const auto begin = reinterpret_cast<std::uintptr_t>(range);
            const auto aligned = (begin + chunkSize - 1) & ~(chunkSize - 1);
            m_size = (size - (aligned - begin)) & ~(chunkSize - 1);
            m_begin = aligned;
            return;
        }
#endif
    }

    std::uintptr_t m_begin = 0;
    std::size_t m_size = 0;
    std::mutex m_mutex; // guards the two below
    std::size_t m_used = 0;
    std::vector<char *> m_free;
};

/// For blocks that hold text.
void *treeMallocAtomic(std::size_t size)
{
    if (currentArena) {
        if (void *block = currentArena->allocate(size))
            return block;
    }
    return std::malloc(size);
}

/// For structures. What a parse puts into its tree through this and has the size of a node is one.
void *treeMalloc(std::size_t size)
{
    if (currentArena && size == sizeof(xmlNode)) {
        if (void *block = currentArena->allocate(cutNodeSize))
            return block;
    }
    return treeMallocAtomic(size);
}

void treeFree(void *block)
{
    if (!ChunkRange::instance().contains(block))
        std::free(block);
}

void *treeRealloc(void *block, std::size_t size)
{
    ChunkRange &range = ChunkRange::instance();
    if (!range.contains(block) && !(currentArena && !block))
        return std::realloc(block, size);
    void *larger = treeMallocAtomic(size);
    if (larger && block) {
        // How long the old block was is not kept; what follows it in its chunk may be copied along.
        std::memmove(larger, block, std::min(size, ChunkRange::bytesToChunkEnd(block)));
    }
    return larger;
}

char *treeStrdup(const char *text)
{
    const std::size_t size = std::strlen(text) + 1;
    auto *copy = static_cast<char *>(treeMallocAtomic(size));
    if (copy)
        std::memcpy(copy, text, size);
    return copy;
}

} // namespace

void install()
{
    static std::once_flag once;
    std::call_once(once, [] {
        xmlGcMemSetup(treeFree, treeMalloc, treeMallocAtomic, treeRealloc, treeStrdup);
        xmlInitParser();
    });
}

Arena::~Arena()
{
    if (!m_chunks.empty())
        ChunkRange::instance().giveBack(m_chunks);
}

void *Arena::allocate(std::size_t size)
{
    if (size > chunkSize / 16)
        return nullptr;
    size = (size + alignment - 1) & ~(alignment - 1);
    if (size > std::size_t(m_end - m_next)) {
        char *chunk = ChunkRange::instance().take();
        if (!chunk)
            return nullptr;
        m_chunks.push_back(chunk);
        m_next = chunk;
        m_end = chunk + chunkSize - slack;
    }
    void *block = m_next;
    m_next += size;
    return block;
}

Scope::Scope(Arena *arena)
    : m_previous(currentArena)
{
    currentArena = arena;
}

Scope::~Scope()
{
    currentArena = m_previous;
}

} // namespace vantrell::TreeMemory
