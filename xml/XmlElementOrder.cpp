#include "xml/XmlElementOrder.h"

#include "xml/XmlDocument.h"
#include "xml/XmlTree.h"

#include <algorithm>
#include <bit>

namespace vantrell
{

namespace
{

constexpr std::uint32_t bitsPerWord = 64;

/// Calls `found` with the ids of all elements in document order.
template <typename Found>
void walkElements(const XmlTree &tree, Found found)
{
    for (XmlNodeId id = XmlTree::documentId; id; id = tree.following(id, XmlTree::documentId)) {
        if (tree.node(id).isElement())
            found(id);
    }
}

/// The index of the set bit with that number, counted from 0; there must be one.
std::uint32_t indexOfBit(std::uint64_t bits, std::uint32_t number)
{
    for (; number > 0; --number)
        bits &= bits - 1;
    return std::uint32_t(std::countr_zero(bits));
}

} // namespace

std::shared_ptr<const XmlElementOrder> XmlElementOrder::of(const XmlDocument &document)
{
    const XmlTree &tree = *document.node().tree();
    const auto order = std::make_shared<XmlElementOrder>();
    order->m_words.resize(tree.endOfNodes() / bitsPerWord + 1);
    bool isAscending = true;
    XmlNodeId last = 0;
    walkElements(tree, [&](XmlNodeId id) {
        order->m_words[id / bitsPerWord].bits |= std::uint64_t(1) << id % bitsPerWord;
        isAscending = isAscending && id > last;
        last = id;
        ++order->m_size;
    });
    std::uint32_t before = 0;
    for (Word &word : order->m_words) {
        word.before = before;
        before += std::uint32_t(std::popcount(word.bits));
    }
    std::vector<Run> &runs = order->m_byPosition;
    if (isAscending) {
        runs.push_back({0, 1, order->m_size});
    } else {
        std::uint32_t position = 1;
        walkElements(tree, [&](XmlNodeId id) {
            const std::uint32_t rank = order->rankOf(id);
            if (!runs.empty() && runs.back().rank + runs.back().count == rank)
                ++runs.back().count;
            else
                runs.push_back({rank, position, 1});
            ++position;
        });
    }
    order->m_byRank = runs;
    std::sort(order->m_byRank.begin(), order->m_byRank.end(),
              [](const Run &a, const Run &b) { return a.rank < b.rank; });
    return order;
}

std::uint32_t XmlElementOrder::rankOf(std::uint32_t id) const
{
    const Word &word = m_words[id / bitsPerWord];
    const std::uint64_t below = (std::uint64_t(1) << id % bitsPerWord) - 1;
    return word.before + std::uint32_t(std::popcount(word.bits & below));
}

std::uint32_t XmlElementOrder::positionOf(std::uint32_t id) const
{
    const bool isElement =
        id / bitsPerWord < m_words.size() && (m_words[id / bitsPerWord].bits >> id % bitsPerWord & 1);
    if (!isElement)
        return 0;
    const std::uint32_t rank = rankOf(id);
    const auto run =
        std::prev(std::upper_bound(m_byRank.begin(), m_byRank.end(), rank,
                                   [](std::uint32_t value, const Run &each) { return value < each.rank; }));
    return run->position + (rank - run->rank);
}

std::uint32_t XmlElementOrder::at(std::uint32_t position) const
{
    if (position == 0 || position > m_size)
        return 0;
    const auto run = std::prev(
        std::upper_bound(m_byPosition.begin(), m_byPosition.end(), position,
                         [](std::uint32_t value, const Run &each) { return value < each.position; }));
    const std::uint32_t rank = run->rank + (position - run->position);
    const auto word = std::prev(
        std::upper_bound(m_words.begin(), m_words.end(), rank,
                         [](std::uint32_t value, const Word &each) { return value < each.before; }));
    const auto index = std::uint32_t(word - m_words.begin());
    return index * bitsPerWord + indexOfBit(word->bits, rank - word->before);
}

} // namespace vantrell
