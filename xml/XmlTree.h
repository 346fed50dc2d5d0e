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
#include <vector>

namespace vantrell
{

class XmlDocument;

/// The number of a name within its tree.
using XmlNameId = std::uint32_t;
/// The position of a text within its tree; 0 is none, which differs from an empty one.
using XmlTextId = std::uint32_t;
/// The number of a node within its tree; 0 is none.
using XmlNodeId = std::uint32_t;

/// The nodes, names and texts of one document: compact, and never moved or freed before the tree dies. A
/// node is 24 bytes in chunks that hold nothing else, and refers to others by their numbers. Each name is
/// kept once. Several threads may read while none edits. What needs memory and gets none throws
/// std::bad_alloc.
class XmlTree
{
public:
    enum class Kind : std::uint8_t {
        Document,
        Element,
        Attribute,
        Namespace, ///< the declaration of one, in front of the attributes; the name is its prefix
        Text,
        CData,
        Comment,
        Instruction,
        Doctype, ///< its text is the whole declaration as it is written
    };

    struct Node {
        XmlNodeId parent;
        XmlNodeId next;
        XmlNodeId previous; ///< of the first one: the last one, so that appending takes no search
        union {
            XmlNodeId firstChild; ///< of elements and the document
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

    /// A name as it is written, and the namespace that it is in.
    struct Name {
        std::string qualified; ///< UTF-8, prefix included
        std::uint32_t localAt; ///< where its local part begins
        std::uint32_t uri;     ///< number of the namespace; 0 for none
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
    /// The name's number; noName when the tree has none such.
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
    /// A text that comes in parts: open, extend, and close or leave it. No other text may be added meanwhile.
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
    /// For texts; previous 0 is in front.
    void insertAfter(XmlNodeId parent, XmlNodeId previous, XmlNodeId child);
    void appendAttribute(XmlNodeId element, XmlNodeId attribute);
    /// Takes all attributes off an element, not its namespace declarations.
    void removeAttributes(XmlNodeId element);
    /// Takes a child, not an attribute, out of its parent.
    void unlink(XmlNodeId child);
    XmlNodeId previousSibling(XmlNodeId id) const;
    XmlNodeId lastChild(XmlNodeId id) const;
    /// The next one in document order: below, behind, or behind one above; 0 when it leaves \a top.
    XmlNodeId following(XmlNodeId id, XmlNodeId top) const;

    /// A deep copy, here and without a parent, of an element of this or another tree. Namespaces that it
    /// uses and that are declared above it are declared on the copy.
    XmlNodeId copy(const XmlTree &from, XmlNodeId element);

    /// Namespaces that the element or what it holds uses, and that are declared above it: names that have
    /// them, one for each prefix, in the order of their first use.
    std::vector<XmlNameId> inheritedNamespaces(XmlNodeId element) const;

    // Order

    /// An element that is made in document order while the tree is built.
    XmlNodeId makeListed(XmlNameId name)
    {
        const XmlNodeId id = make(Kind::Element, name);
        if (name >= m_elements.size())
            m_elements.resize(std::size_t(name) + 1);
        m_elements[name].push_back(id);
        return id;
    }
    /// From now on, until an element is moved, added or taken out, the elements of the document are numbered
    /// in document order, and so is all else but white space that was added late.
    void setInOrder(bool textToo);
    bool isInOrder() const { return m_orderedEnd > 0; }
    bool isTextInOrder() const { return m_orderedEnd > 0 && m_isTextInOrder; }
    /// The number behind those of all elements that the node holds, while isInOrder().
    XmlNodeId endOfElementsIn(XmlNodeId id) const;
    /// Calls \a found with the number of each element of that name from \a begin to before \a end, in order.
    template <typename Found>
    void findElements(XmlNameId name, XmlNodeId begin, XmlNodeId end, Found found) const
    {
        if (name >= m_elements.size())
            return;
        const std::vector<XmlNodeId> &ids = m_elements[name];
        for (auto at = std::lower_bound(ids.begin(), ids.end(), begin); at != ids.end() && *at < end; ++at)
            found(*at);
    }
    /// The first of them; 0 for none.
    XmlNodeId firstElementNamed(XmlNameId name, XmlNodeId begin, XmlNodeId end) const
    {
        if (name >= m_elements.size())
            return 0;
        const std::vector<XmlNodeId> &ids = m_elements[name];
        const auto at = std::lower_bound(ids.begin(), ids.end(), begin);
        return at != ids.end() && *at < end ? *at : 0;
    }
    /// The number behind those of all that was parsed, while isInOrder().
    XmlNodeId orderedEnd() const { return m_orderedEnd; }

    // What the declaration of the document said

    QByteArray version = QByteArrayLiteral("1.0");
    QByteArray encoding;   ///< as it was declared; empty when none was
    int isStandalone = -1; ///< -1: nothing was said

private:
    static constexpr unsigned nodeBits = 14;
    static constexpr std::size_t nodesPerChunk = std::size_t(1) << nodeBits;
    static constexpr unsigned textBits = 18; ///< of a text's position within a chunk, in units
    static constexpr std::size_t textUnit = 4;
    static constexpr std::size_t textChunkSize = textUnit << textBits;
    static constexpr std::size_t headerSize = sizeof(std::uint32_t); ///< a text's length, in front of it

    void noteChange(const Node &changed);
    void makeChunk();
    void makeRegion(std::size_t wanted);
    void growNameTable();
    XmlNameId copyName(const XmlTree &from, XmlNameId id);
    XmlNodeId copyShallow(const XmlTree &from, XmlNodeId id, const std::vector<XmlNameId> &declared);
    void copyChildren(const XmlTree &from, XmlNodeId original, XmlNodeId made);

    XmlDocument *m_owner;
    std::vector<std::unique_ptr<Node[]>> m_nodes;
    XmlNodeId m_nodeCount = 0;
    XmlNodeId m_orderedEnd = 0; // 0: not in order
    bool m_isTextInOrder = false;
    std::vector<std::vector<XmlNodeId>> m_elements; // by name, ascending; empty when no longer in order
    std::vector<std::unique_ptr<char[]>> m_textMemory;
    std::vector<char *> m_texts;  // by the upper part of a text's position
    char *m_region = nullptr;     // what new texts are put into: a chunk, or several in a row
    std::size_t m_regionSize = 0; // bytes
    std::size_t m_firstUnit = 0;  // the position of its first byte
    std::size_t m_textUsed = 0;   // bytes of it
    std::size_t m_openSize = 0;   // of the open text
    std::deque<Name> m_names;
    std::vector<std::string> m_uris;
    std::unordered_map<std::string, std::uint32_t> m_uriNumbers; // 1 and up
    std::vector<XmlNameId> m_nameTable; // open addressing, a power of two; noName: free
};

} // namespace vantrell
