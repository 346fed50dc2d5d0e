#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantrell
{

/// What edits did to a tree, in order: the nodes that were linked and unlinked. XmlDocument records and
/// reverts it. Nodes live as long as their tree, so a change takes 16 bytes whatever the node holds. It
/// belongs to one document and to the thread that edits it.
class XmlChanges
{
public:
    bool isEmpty() const { return m_changes.empty(); }

    /// Adds later changes, which become empty.
    void append(XmlChanges &&later)
    {
        m_changes.insert(m_changes.end(), later.m_changes.begin(), later.m_changes.end());
        later.m_changes.clear();
    }

private:
    friend class XmlTree;
    friend class XmlStepRecorder;

    struct Change {
        std::uint32_t node;
        std::uint32_t parent;
        std::uint32_t previous; ///< sibling before it; 0 for none
        bool isLinked;
    };

    std::vector<Change> m_changes;
};

} // namespace vantrell
