#pragma once

// For use inside xml/ only.

#include "xml/XmlNode.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vantrell
{

class XmlChanges;
class XmlDocument;

/// The index of a name in its tree.
using XmlNameId = std::uint32_t;
/// The position of a text within its tree; 0 is none, which differs from an empty one.
using XmlTextId = std::uint32_t;
/// The index of a node in its tree; 0 means no node.
using XmlNodeId = std::uint32_t;

/// The nodes, names and texts of one document: compact, and never moved or freed before the tree is
/// destroyed. A node takes 24 bytes, in chunks of nodes, and refers to others by their ids. Each name is kept
/// once. Several threads may read while none edits. Throws std::bad_alloc without memory.
class XmlTree
{
public:
    enum class Kind : std::uint8_t {
        Document,
        Element,
        Attribute,
        Namespace, ///< a declaration, in front of the attributes; the name is the prefix
        Text,
        CData,
        Comment,
        Instruction,
        Doctype, ///< its text is the whole declaration as written
    };

    struct Node {
        XmlNodeId parent;
        XmlNodeId next;
        XmlNodeId previous; ///< of the first child: the last one, so that appending needs no search
        union {
            XmlNodeId firstChild; ///< of elements and of the document
            XmlTextId text;       ///< of all others
        };
        XmlNodeId firstAttribute; ///< of elements: namespace declarations, then attributes
        XmlNameId name : 28;
        std::uint32_t kindNumber : 4;

        Kind kind() const { return Kind(kindNumber); }
        bool isElement() const { return kind() == Kind::Element; }
        bool isText() const { return kind() == Kind::Text || kind() == Kind::CData; }
        bool hasChildren() const { return isElement() || kind() == Kind::Document; }
    };

    /// A name as written, and its namespace.
    struct Name {
        std::string qualified; ///< UTF-8, prefix included
        std::uint32_t localAt; ///< offset of its local part
        std::uint32_t uri;     ///< index of the namespace; 0 for none
        QString text;          ///< the same as `qualified`
    };

    static constexpr XmlNodeId documentId = 1;
    static constexpr XmlNameId noName = 0;

    explicit XmlTree(XmlDocument *owner);
    XmlTree(const XmlTree &) = delete;
    XmlTree &operator=(const XmlTree &) = delete;

    XmlDocument *owner() const { return m_owner; }

    Node &node(XmlNodeId id) { return m_nodes[id >> nodeBits][id & (nodesPerChunk - 1)]; }
    const Node &node(XmlNodeId id) const { return m_nodes[id >> nodeBits][id & (nodesPerChunk - 1)]; }
    XmlNode handle(XmlNodeId id) const { return id ? XmlNode(this, id) : XmlNode(); }

    // Names

    static std::size_t hashOf(std::string_view qualified);
    /// The name's id; noName when the tree does not have it.
    XmlNameId find(std::string_view qualified, std::uint32_t uri, std::size_t hash) const;
    /// The name's number, which it gets now if it has none.
    XmlNameId intern(std::string_view prefix, std::string_view local, std::string_view uri)
    {
        return internInNamespace(prefix, local, internUri(uri));
    }
    XmlNameId internInNamespace(std::string_view prefix, std::string_view local, std::uint32_t uriNumber);
    /// The number of a namespace, which it gets now if it has none; 0 for an empty URI.
    std::uint32_t internUri(std::string_view uri);
    const Name &name(XmlNameId id) const { return m_names[id]; }
    /// The URI of a name's namespace; empty for none.
    const std::string &uri(std::uint32_t number) const { return m_uris[number]; }
    std::string_view prefix(XmlNameId id) const;

    // Texts

    XmlTextId addText(std::string_view text)
    {
        openText();
        extendText(text);
        return closeText();
    }
    /// A text that comes in parts: open it, extend it, then close or drop it. No other text may be added
    /// meanwhile.
    void openText()
    {
        m_openSize = 0;
        if (m_textUsed + headerSize > m_regionSize)
            makeRegion(0);
    }
    void extendText(std::string_view part)
    {
        if (part.empty())
            return;
        if (part.size() > m_regionSize - (m_textUsed + headerSize + m_openSize))
            makeRegion(part.size());
        std::memcpy(m_region + m_textUsed + headerSize + m_openSize, part.data(), part.size());
        m_openSize += part.size();
    }
    std::string_view openedText() const { return {m_region + m_textUsed + headerSize, m_openSize}; }
    XmlTextId closeText()
    {
        const auto size = std::uint32_t(m_openSize);
        std::memcpy(m_region + m_textUsed, &size, headerSize);
        const auto id = XmlTextId(m_firstUnit + m_textUsed / textUnit);
        m_textUsed += (headerSize + m_openSize + textUnit - 1) / textUnit * textUnit;
        return id;
    }
    /// UTF-8; empty for none.
    std::string_view text(XmlTextId id) const
    {
        if (id == 0)
            return {};
        const char *const at = m_texts[id >> textBits] + std::size_t(id % (1u << textBits)) * textUnit;
        std::uint32_t size;
        std::memcpy(&size, at, headerSize);
        return {at + headerSize, size};
    }

    // Structure

    XmlNodeId make(Kind kind, XmlNameId name = noName)
    {
        if ((m_nodeCount & (nodesPerChunk - 1)) == 0)
            makeChunk();
        const XmlNodeId id = m_nodeCount++;
        Node &made = node(id);
        made.parent = made.next = made.previous = made.firstChild = made.firstAttribute = 0;
        made.name = name;
        made.kindNumber = std::uint32_t(kind);
        return id;
    }
    XmlNodeId makeText(Kind kind, std::string_view text);
    void append(XmlNodeId parent, XmlNodeId child);
    /// Previous 0 means in front.
    void insertAfter(XmlNodeId parent, XmlNodeId previous, XmlNodeId child);
    void appendAttribute(XmlNodeId element, XmlNodeId attribute);
    /// Removes an element's attributes, not its namespace declarations.
    void removeAttributes(XmlNodeId element);
    /// Unlinks a child, not an attribute, from its parent.
    void unlink(XmlNodeId child);
    XmlNodeId previousSibling(XmlNodeId id) const;
    XmlNodeId lastChild(XmlNodeId id) const;
    /// The next node in document order: a child, a sibling, or a sibling of an ancestor; 0 at the end of \a
    /// top.
    XmlNodeId following(XmlNodeId id, XmlNodeId top) const;

    // History

    /// From now on linked and unlinked nodes, except attributes, are added to `changes`; null ends that.
    /// Edits of nodes outside the document are recorded too. A copy is not: it is not linked to anything.
    XmlChanges *setRecorder(XmlChanges *changes) { return std::exchange(m_recorder, changes); }
    /// Undoes the changes, the last one first, and returns those that redo them. What it does is not
    /// recorded. Without memory nothing happens.
    XmlChanges revert(const XmlChanges &changes);
    /// Takes the last changes back for a look at the tree as it was before, and makes them again. Nothing of
    /// it is recorded; needs no memory.
    void stepBack(const XmlChanges &changes) noexcept;
    void stepForward(const XmlChanges &changes) noexcept;

    /// A deep copy, in this tree and without a parent, of an element of this or another tree. Namespaces used
    /// in it and declared on an ancestor are declared on the copy.
    XmlNodeId copy(const XmlTree &from, XmlNodeId element);

    /// Namespaces used in the element or below and declared on an ancestor: one name with each prefix, in
    /// order of first use.
    std::vector<XmlNameId> inheritedNamespaces(XmlNodeId element) const;

    // Order

    /// Adds an element in document order while the tree is built.
    XmlNodeId makeListed(XmlNameId name)
    {
        const XmlNodeId id = make(Kind::Element, name);
        if (name >= m_elements.size())
            m_elements.resize(std::size_t(name) + 1);
        m_elements[name].push_back(id);
        return id;
    }
    /// Marks the tree as built: until an element is moved, added or removed, the ids of the elements are in
    /// document order, as are those of all other nodes except white space added late.
    void setInOrder(bool textToo);
    bool isInOrder() const { return m_orderedEnd > 0; }
    bool isTextInOrder() const { return m_orderedEnd > 0 && m_isTextInOrder; }
    /// The id past the last element below the node, while isInOrder().
    XmlNodeId endOfElementsIn(XmlNodeId id) const;
    /// Calls \a found with the id of each element of that name in [begin, end), in order.
    template <typename Found>
    void findElements(XmlNameId name, XmlNodeId begin, XmlNodeId end, Found found) const
    {
        if (name >= m_elements.size())
            return;
        const std::vector<XmlNodeId> &ids = m_elements[name];
        for (auto at = std::lower_bound(ids.begin(), ids.end(), begin); at != ids.end() && *at < end; ++at)
            found(*at);
    }
    /// The first of them, or 0.
    XmlNodeId firstElementNamed(XmlNameId name, XmlNodeId begin, XmlNodeId end) const
    {
        if (name >= m_elements.size())
            return 0;
        const std::vector<XmlNodeId> &ids = m_elements[name];
        const auto at = std::lower_bound(ids.begin(), ids.end(), begin);
        return at != ids.end() && *at < end ? *at : 0;
    }
    /// The id past the last node that was ever made.
    XmlNodeId endOfNodes() const { return m_nodeCount; }
    /// The id past the last node that was parsed, while isInOrder().
    XmlNodeId orderedEnd() const { return m_orderedEnd; }

    // The XML declaration

    QByteArray version = QByteArrayLiteral("1.0");
    QByteArray encoding;   ///< as declared, or empty
    int isStandalone = -1; ///< -1: not declared

private:
    static constexpr unsigned nodeBits = 14;
    static constexpr std::size_t nodesPerChunk = std::size_t(1) << nodeBits;
    static constexpr unsigned textBits = 18; ///< of a text's position within a chunk, in units
    static constexpr std::size_t textUnit = 4;
    static constexpr std::size_t textChunkSize = textUnit << textBits;
    static constexpr std::size_t headerSize = sizeof(std::uint32_t); ///< the length in front of a text

    void noteChange(const Node &changed);
    void record(XmlNodeId node, XmlNodeId parent, XmlNodeId previous, bool isLinked);
    void makeChunk();
    void makeRegion(std::size_t wanted);
    void growNameTable();
    XmlNameId copyName(const XmlTree &from, XmlNameId id);
    XmlNodeId copyShallow(const XmlTree &from, XmlNodeId id, const std::vector<XmlNameId> &declared);
    void copyChildren(const XmlTree &from, XmlNodeId original, XmlNodeId made);

    XmlDocument *m_owner;
    XmlChanges *m_recorder = nullptr;
    std::vector<std::unique_ptr<Node[]>> m_nodes;
    XmlNodeId m_nodeCount = 0;
    XmlNodeId m_orderedEnd = 0; // 0 when not in order
    bool m_isTextInOrder = false;
    std::vector<std::vector<XmlNodeId>> m_elements; // ids by name, ascending; empty when no longer in order
    std::vector<std::unique_ptr<char[]>> m_textMemory;
    std::vector<char *> m_texts;  // by the upper part of a text's position
    char *m_region = nullptr;     // what new texts are put into: a chunk, or several in a row
    std::size_t m_regionSize = 0; // bytes
    std::size_t m_firstUnit = 0;  // the position of its first byte
    std::size_t m_textUsed = 0;   // bytes of it
    std::size_t m_openSize = 0;   // of the open text
    std::deque<Name> m_names;
    std::vector<std::string> m_uris;
    std::unordered_map<std::string, std::uint32_t> m_uriNumbers; // from 1 on
    std::vector<XmlNameId> m_nameTable; // open addressing, size a power of two; noName means free
};

} // namespace vantrell
