#include "xml/XmlNode.h"

#include "xml/XmlText.h"

#include <libxml/tree.h>

#include <QStringList>

namespace vantrell
{

namespace
{

bool isElementNode(const xmlNode *node)
{
    return node && node->type == XML_ELEMENT_NODE;
}

bool isTextNode(const xmlNode *node)
{
    return node && (node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE);
}

bool hasTree(const xmlNode *node)
{
    return node && (node->type == XML_ELEMENT_NODE || node->type == XML_DOCUMENT_NODE);
}

bool sameQualifiedName(const xmlNode *a, const xmlNode *b)
{
    if (!xmlStrEqual(a->name, b->name))
        return false;
    const xmlChar *prefixA = a->ns ? a->ns->prefix : nullptr;
    const xmlChar *prefixB = b->ns ? b->ns->prefix : nullptr;
    return xmlStrEqual(prefixA, prefixB);
}

/// The 1-based place of the element among its like-named siblings.
int indexAmongSiblings(const xmlNode *node)
{
    int index = 1;
    for (const xmlNode *sibling = node->prev; sibling; sibling = sibling->prev) {
        if (isElementNode(sibling) && sameQualifiedName(sibling, node))
            ++index;
    }
    return index;
}

void appendText(const xmlNode *node, QByteArray &text)
{
    for (const xmlNode *child = node->children; child; child = child->next) {
        if (isTextNode(child))
            text += reinterpret_cast<const char *>(child->content);
        else if (isElementNode(child))
            appendText(child, text);
    }
}

} // namespace

bool XmlNode::isElement() const
{
    return isElementNode(m_node);
}

bool XmlNode::isAttribute() const
{
    return m_node && m_node->type == XML_ATTRIBUTE_NODE;
}

bool XmlNode::isText() const
{
    return isTextNode(m_node);
}

QString XmlNode::name() const
{
    if (!isElement() && !isAttribute())
        return QString();
    const QString local = XmlText::fromUtf8(m_node->name);
    if (m_node->ns && m_node->ns->prefix)
        return XmlText::fromUtf8(m_node->ns->prefix) + QLatin1Char(':') + local;
    return local;
}

bool XmlNode::hasName(std::string_view name) const
{
    if (!isElement() && !isAttribute())
        return false;
    if (m_node->ns && m_node->ns->prefix)
        return this->name().toStdString() == name;
    return name == reinterpret_cast<const char *>(m_node->name);
}

bool XmlNode::isPlainElement(std::string_view name) const
{
    return isElement() && !m_node->ns && name == reinterpret_cast<const char *>(m_node->name);
}

bool XmlNode::nameStartsWith(std::string_view text) const
{
    if (!isElement() && !isAttribute())
        return false;
    if (m_node->ns && m_node->ns->prefix)
        return name().toStdString().starts_with(text);
    return std::string_view(reinterpret_cast<const char *>(m_node->name)).starts_with(text);
}

bool XmlNode::nameContains(std::string_view text) const
{
    if (!isElement() && !isAttribute())
        return false;
    if (m_node->ns && m_node->ns->prefix)
        return name().toStdString().find(text) != std::string::npos;
    return std::string_view(reinterpret_cast<const char *>(m_node->name)).find(text) !=
           std::string_view::npos;
}

XmlNode XmlNode::parent() const
{
    return XmlNode(m_node ? m_node->parent : nullptr);
}

XmlNode XmlNode::previousSibling() const
{
    return XmlNode(m_node ? m_node->prev : nullptr);
}

XmlNode XmlNode::nextSibling() const
{
    return XmlNode(m_node ? m_node->next : nullptr);
}

XmlNode XmlNode::firstChild() const
{
    return XmlNode(hasTree(m_node) ? m_node->children : nullptr);
}

XmlNode XmlNode::lastChild() const
{
    return XmlNode(hasTree(m_node) ? m_node->last : nullptr);
}

XmlNode XmlNode::firstChildElement() const
{
    const XmlNode child = firstChild();
    return !child || child.isElement() ? child : child.nextSiblingElement();
}

XmlNode XmlNode::nextSiblingElement() const
{
    xmlNode *sibling = m_node ? m_node->next : nullptr;
    while (sibling && sibling->type != XML_ELEMENT_NODE)
        sibling = sibling->next;
    return XmlNode(sibling);
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
    if (!m_node)
        return QString();
    if (isTextNode(m_node))
        return XmlText::fromUtf8(m_node->content);
    if (m_node->type == XML_ATTRIBUTE_NODE || hasTree(m_node)) {
        if (m_node->children && !m_node->children->next && isTextNode(m_node->children))
            return XmlText::fromUtf8(m_node->children->content);
        QByteArray text("");
        appendText(m_node, text);
        return XmlText::fromUtf8(reinterpret_cast<const xmlChar *>(text.constData()));
    }
    return XmlText::fromUtf8(m_node->content);
}

QString XmlNode::attribute(std::string_view name) const
{
    if (!isElement())
        return QString();
    for (xmlAttr *attribute = m_node->properties; attribute; attribute = attribute->next) {
        const XmlNode node(reinterpret_cast<xmlNode *>(attribute));
        if (node.hasName(name))
            return node.stringValue();
    }
    return QString();
}

XmlNode XmlNode::root() const
{
    xmlNode *node = m_node;
    while (node && node->parent)
        node = node->parent;
    return XmlNode(node);
}

bool XmlNode::isAttached() const
{
    const XmlNode top = root();
    return top && top.m_node->type == XML_DOCUMENT_NODE;
}

QString XmlNode::locationPath() const
{
    if (!m_node)
        return QString();
    QStringList components{QString()};
    for (const xmlNode *node = m_node; node && node->type != XML_DOCUMENT_NODE; node = node->parent) {
        const XmlNode handle(const_cast<xmlNode *>(node));
        if (handle.isAttribute())
            components.insert(1, QLatin1Char('@') + handle.name());
        else if (handle.isElement())
            components.insert(1, QStringLiteral("%1[%2]").arg(handle.name()).arg(indexAmongSiblings(node)));
        else
            components.insert(1, QStringLiteral("text()"));
    }
    return components.size() == 1 ? QStringLiteral("") : components.join(QLatin1Char('/'));
}

} // namespace vantrell
