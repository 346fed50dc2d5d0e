#include "xml/XmlNode.h"

#include "xml/XmlText.h"
#include "xml/XmlTree.h"

#include <QStringList>

namespace vantrell
{

namespace
{

using Kind = XmlTree::Kind;

/// The node of the handle; for a null handle an empty one of no kind.
const XmlTree::Node &nodeOf(XmlNode handle)
{
    static constexpr XmlTree::Node none = {0, 0, 0, {0}, 0, 0, std::uint32_t(Kind::Doctype)};
    return handle ? handle.tree()->node(handle.id()) : none;
}

bool hasNameOfItsOwn(const XmlTree::Node &node)
{
    return node.isElement() || node.kind() == Kind::Attribute;
}

/// Prefix included, UTF-8; empty for nodes without one.
std::string_view qualifiedName(XmlNode handle)
{
    const XmlTree::Node &node = nodeOf(handle);
    return hasNameOfItsOwn(node) ? std::string_view(handle.tree()->name(node.name).qualified)
                                 : std::string_view();
}

/// The 1-based index of the element among its like-named siblings.
int indexAmongSiblings(XmlNode element)
{
    int index = 1;
    const std::string_view name = qualifiedName(element);
    for (XmlNode sibling = element.previousSibling(); sibling; sibling = sibling.previousSibling()) {
        if (sibling.isElement() && qualifiedName(sibling) == name)
            ++index;
    }
    return index;
}

} // namespace

bool XmlNode::isElement() const
{
    return nodeOf(*this).isElement();
}

bool XmlNode::isAttribute() const
{
    return nodeOf(*this).kind() == Kind::Attribute;
}

bool XmlNode::isText() const
{
    return nodeOf(*this).isText();
}

QString XmlNode::name() const
{
    const XmlTree::Node &node = nodeOf(*this);
    return hasNameOfItsOwn(node) ? m_tree->name(node.name).text : QString();
}

bool XmlNode::hasName(std::string_view name) const
{
    return hasNameOfItsOwn(nodeOf(*this)) && qualifiedName(*this) == name;
}

bool XmlNode::isPlainElement(std::string_view name) const
{
    const XmlTree::Node &node = nodeOf(*this);
    if (!node.isElement())
        return false;
    const XmlTree::Name &own = m_tree->name(node.name);
    return own.uri == 0 && own.qualified == name;
}

QString XmlNode::namespaceUri() const
{
    const XmlTree::Node &node = nodeOf(*this);
    const std::uint32_t uri = hasNameOfItsOwn(node) ? m_tree->name(node.name).uri : 0;
    return uri == 0 ? QString() : QString::fromStdString(m_tree->uri(uri));
}

bool XmlNode::nameStartsWith(std::string_view text) const
{
    return hasNameOfItsOwn(nodeOf(*this)) && qualifiedName(*this).starts_with(text);
}

bool XmlNode::nameContains(std::string_view text) const
{
    return hasNameOfItsOwn(nodeOf(*this)) && qualifiedName(*this).find(text) != std::string_view::npos;
}

XmlNode XmlNode::parent() const
{
    const XmlNodeId parent = nodeOf(*this).parent;
    return parent ? XmlNode(m_tree, parent) : XmlNode();
}

XmlNode XmlNode::previousSibling() const
{
    return m_id ? m_tree->handle(m_tree->previousSibling(m_id)) : XmlNode();
}

XmlNode XmlNode::nextSibling() const
{
    const XmlNodeId next = nodeOf(*this).next;
    return next ? XmlNode(m_tree, next) : XmlNode();
}

XmlNode XmlNode::firstChild() const
{
    const XmlTree::Node &node = nodeOf(*this);
    return node.hasChildren() && node.firstChild ? XmlNode(m_tree, node.firstChild) : XmlNode();
}

XmlNode XmlNode::lastChild() const
{
    return m_id ? m_tree->handle(m_tree->lastChild(m_id)) : XmlNode();
}

XmlNode XmlNode::firstChildElement() const
{
    const XmlNode child = firstChild();
    return !child || child.isElement() ? child : child.nextSiblingElement();
}

XmlNode XmlNode::nextSiblingElement() const
{
    XmlNodeId sibling = nodeOf(*this).next;
    while (sibling && !m_tree->node(sibling).isElement())
        sibling = m_tree->node(sibling).next;
    return sibling ? XmlNode(m_tree, sibling) : XmlNode();
}

XmlNode XmlNode::childElement(std::string_view name) const
{
    XmlNode child = firstChildElement();
    while (child && !child.hasName(name))
        child = child.nextSiblingElement();
    return child;
}

QString XmlNode::stringValue() const
{
    if (!m_id)
        return QString();
    const XmlTree::Node &node = m_tree->node(m_id);
    if (!node.hasChildren())
        return node.text ? XmlText::fromUtf8(m_tree->text(node.text)) : QString();
    const XmlNodeId first = node.firstChild;
    if (first && m_tree->node(first).isText() && m_tree->node(first).next == 0)
        return XmlText::fromUtf8(m_tree->text(m_tree->node(first).text));
    std::string text;
    for (XmlNodeId at = m_tree->following(m_id, m_id); at; at = m_tree->following(at, m_id)) {
        if (m_tree->node(at).isText())
            text += m_tree->text(m_tree->node(at).text);
    }
    return XmlText::fromUtf8(text);
}

QString XmlNode::attribute(std::string_view name) const
{
    if (!isElement())
        return QString();
    for (XmlNodeId id = nodeOf(*this).firstAttribute; id; id = m_tree->node(id).next) {
        const XmlNode attribute(m_tree, id);
        if (attribute.hasName(name))
            return attribute.stringValue();
    }
    return QString();
}

XmlNode XmlNode::root() const
{
    XmlNode top = *this;
    while (const XmlNode up = top.parent())
        top = up;
    return top;
}

bool XmlNode::isAttached() const
{
    return root().id() == XmlTree::documentId;
}

QString XmlNode::locationPath() const
{
    if (!m_id)
        return QString();
    QStringList components{QString()};
    for (XmlNode node = *this; node && node.id() != XmlTree::documentId; node = node.parent()) {
        if (node.isAttribute())
            components.insert(1, QLatin1Char('@') + node.name());
        else if (node.isElement())
            components.insert(1, QStringLiteral("%1[%2]").arg(node.name()).arg(indexAmongSiblings(node)));
        else
            components.insert(1, QStringLiteral("text()"));
    }
    return components.size() == 1 ? QStringLiteral("") : components.join(QLatin1Char('/'));
}

} // namespace vantrell
