#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace vantrell
{

class XmlTree;

/// A reference to one node of a tree: the document itself, an element, an attribute, a text, …
/// It does not own: it is valid as long as the XmlDocument that the node came from lives, also after
/// the node was removed from the tree. A null handle stands for "no node"; every function accepts it
/// and then gives back null, empty or false. Equality is identity. Reading is safe from several
/// threads while nobody edits the tree.
class XmlNode
{
public:
    XmlNode() = default;
    /// For use inside xml/ only: a node of the tree by its number.
    XmlNode(const XmlTree *tree, std::uint32_t id)
        : m_tree(tree)
        , m_id(id)
    {
    }

    explicit operator bool() const { return m_id != 0; }
    friend bool operator==(XmlNode a, XmlNode b) { return a.m_id == b.m_id && a.m_tree == b.m_tree; }

    /// For use inside xml/ only.
    const XmlTree *tree() const { return m_tree; }
    std::uint32_t id() const { return m_id; }

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
    /// The URI of the namespace that the element or attribute is in; null for none.
    QString namespaceUri() const;
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
    const XmlTree *m_tree = nullptr;
    std::uint32_t m_id = 0;
};

using XmlNodeList = std::vector<XmlNode>;

} // namespace vantrell

template <>
struct std::hash<vantrell::XmlNode> {
    std::size_t operator()(vantrell::XmlNode node) const noexcept
    {
        return std::hash<const void *>()(node.tree()) ^ (std::size_t(node.id()) * 0x9E3779B97F4A7C15u);
    }
};
