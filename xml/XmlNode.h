#pragma once

#include <QString>

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

struct _xmlNode;

namespace vantrell
{

/// A reference to one node of a tree: the document itself, an element, an attribute, a text, …
/// It does not own: it is valid as long as the XmlDocument that the node came from lives, also after
/// the node was removed from the tree. A null handle stands for "no node"; every function accepts it
/// and then gives back null, empty or false. Equality is identity. Reading is safe from several
/// threads while nobody edits the tree.
class XmlNode
{
public:
    XmlNode() = default;
    explicit XmlNode(_xmlNode *node)
        : m_node(node)
    {
    }

    explicit operator bool() const { return m_node != nullptr; }
    friend bool operator==(XmlNode a, XmlNode b) { return a.m_node == b.m_node; }

    /// The library's node, for use inside xml/ only.
    _xmlNode *handle() const { return m_node; }

    bool isElement() const;
    bool isAttribute() const;
    /// A text node or a CDATA section.
    bool isText() const;

    /// The element's or attribute's name as it is written, prefix included; null for other nodes.
    QString name() const;
    bool hasName(std::string_view name) const;
    /// An element of that name.
    bool isElement(std::string_view name) const { return isElement() && hasName(name); }
    /// An element of that name in no namespace: what the name in a query finds.
    bool isPlainElement(std::string_view name) const;
    /// Whether the name, prefix included, begins with or contains the text.
    bool nameStartsWith(std::string_view text) const;
    bool nameContains(std::string_view text) const;

    XmlNode parent() const;
    XmlNode previousSibling() const;
    XmlNode nextSibling() const;
    XmlNode firstChild() const;
    XmlNode lastChild() const;

    XmlNode firstChildElement() const;
    XmlNode nextSiblingElement() const;
    /// The first child element of that name; null when there is none.
    XmlNode childElement(std::string_view name) const;

    /// The text of the node: a text's or an attribute's own, an element's with all that it holds.
    QString stringValue() const;

    /// The text of the attribute; null when the element has none of that name.
    QString attribute(std::string_view name) const;

    /// The node up the tree that has no parent, the document node of an attached node.
    XmlNode root() const;
    /// Whether the node hangs in its document's tree; false for what was removed from it.
    bool isAttached() const;

    /// The location path with every index, as in /xmeml[1]/sequence[2]/marker[1]; "" for the document
    /// node, null for a null handle. Counts siblings: not for loops over rows.
    QString locationPath() const;

private:
    _xmlNode *m_node = nullptr;
};

using XmlNodeList = std::vector<XmlNode>;

} // namespace vantrell

template <>
struct std::hash<vantrell::XmlNode> {
    std::size_t operator()(vantrell::XmlNode node) const noexcept
    {
        return std::hash<const void *>()(node.handle());
    }
};
