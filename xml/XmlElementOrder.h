#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace vantrell
{

class XmlDocument;

/// The positions that the elements of a document had in document order when this was made: the first element
/// has
/// 1. A file that is written then and read again has the same elements at the same positions. Takes about a
/// bit and a half for each node, and a few bytes for each place where elements are not in the order in which
/// they were made. Any thread.
class XmlElementOrder
{
public:
    /// Walks the whole tree, which nobody may edit meanwhile. Throws std::bad_alloc without memory.
    static std::shared_ptr<const XmlElementOrder> of(const XmlDocument &document);

    /// How many elements there were.
    std::uint32_t size() const { return m_size; }
    /// The position of an element by its id in the tree; 0 when it was not in the tree.
    std::uint32_t positionOf(std::uint32_t id) const;
    /// The id of the element at the position; 0 when there is none.
    std::uint32_t at(std::uint32_t position) const;

private:
    /// Elements whose positions and ranks both count up by one. The rank of an element is the number of
    /// elements with smaller ids.
    struct Run {
        std::uint32_t rank;
        std::uint32_t position;
        std::uint32_t count;
    };
    struct Word {
        std::uint64_t bits = 0; ///< of the ids that are elements
        std::uint32_t before = 0;
    };

    std::uint32_t rankOf(std::uint32_t id) const;

    std::vector<Word> m_words;
    std::vector<Run> m_byRank;
    std::vector<Run> m_byPosition;
    std::uint32_t m_size = 0;
};

} // namespace vantrell
