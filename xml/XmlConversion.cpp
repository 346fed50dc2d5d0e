#include "xml/XmlConversion.h"

#include <cstdint>
#include <new>

namespace vantrell
{

namespace
{

using Kind = XmlTree::Kind;

const xmlChar *bytes(const std::string &text)
{
    return reinterpret_cast<const xmlChar *>(text.c_str());
}

} // namespace

XmlConversion::XmlConversion(XmlNode node)
    : m_tree(*node.tree())
    , m_wanted(node.id())
    , m_document(xmlNewDoc(nullptr))
{
    if (!m_document)
        throw std::bad_alloc();
    const XmlNodeId root = node.root().id();
    auto *const top = reinterpret_cast<xmlNode *>(m_document.get());
    if (root == XmlTree::documentId) {
        keep(root, m_document.get());
        convertChildren(root, top);
    } else {
        convert(root, top);
    }
}

/// The copy stores the id of its original.
template <typename Made>
Made *XmlConversion::keep(XmlNodeId id, Made *made)
{
    if (!made)
        throw std::bad_alloc();
    made->_private = reinterpret_cast<void *>(std::uintptr_t(id));
    if (id == m_wanted)
        m_node = reinterpret_cast<xmlNode *>(made);
    return made;
}

XmlNode XmlConversion::original(const xmlNode *copy) const
{
    if (copy->type == XML_NAMESPACE_DECL)
        return XmlNode();
    const auto id = std::uintptr_t(copy->_private);
    return m_tree.handle(XmlNodeId(id));
}

void XmlConversion::convertChildren(XmlNodeId id, xmlNode *copy)
{
    for (XmlNodeId child = m_tree.node(id).firstChild; child; child = m_tree.node(child).next) {
        if (m_tree.node(child).kind() != Kind::Doctype)
            convert(child, copy);
    }
}

void XmlConversion::convert(XmlNodeId id, xmlNode *parent)
{
    // Linked by hand, as the library would merge adjacent text nodes.
    xmlNode *const made = converted(id);
    made->parent = parent;
    made->prev = parent->last;
    if (parent->last)
        parent->last->next = made;
    else
        parent->children = made;
    parent->last = made;
    if (m_tree.node(id).isElement()) {
        convertAttributes(id, made);
        convertChildren(id, made);
    }
}

/// The node without its children.
xmlNode *XmlConversion::converted(XmlNodeId id)
{
    const XmlTree::Node &node = m_tree.node(id);
    const std::string text(node.hasChildren() ? std::string_view() : m_tree.text(node.text));
    xmlDoc *const document = m_document.get();
    switch (node.kind()) {
    case Kind::Element: {
        const XmlTree::Name &name = m_tree.name(node.name);
        const std::string local = name.qualified.substr(name.uri ? name.localAt : 0);
        return keep(id, xmlNewDocNode(document, nullptr, bytes(local), nullptr));
    }
    case Kind::CData:
        return keep(id, xmlNewCDataBlock(document, bytes(text), int(text.size())));
    case Kind::Comment:
        return keep(id, xmlNewDocComment(document, bytes(text)));
    case Kind::Instruction:
        return keep(id, xmlNewDocPI(document, bytes(m_tree.name(node.name).qualified), bytes(text)));
    default:
        return keep(id, xmlNewDocText(document, bytes(text)));
    }
}

/// The element's namespaces and attributes; the element has its parent by then.
void XmlConversion::convertAttributes(XmlNodeId id, xmlNode *copy)
{
    XmlNodeId at = m_tree.node(id).firstAttribute;
    for (; at && m_tree.node(at).kind() == Kind::Namespace; at = m_tree.node(at).next) {
        const std::string &prefix = m_tree.name(m_tree.node(at).name).qualified;
        const std::string uri(m_tree.text(m_tree.node(at).text));
        xmlNewNs(copy, bytes(uri), prefix.empty() ? nullptr : bytes(prefix));
    }
    copy->ns = namespaceOf(m_tree.node(id).name, copy);
    for (; at; at = m_tree.node(at).next) {
        const XmlTree::Name &name = m_tree.name(m_tree.node(at).name);
        const std::string local = name.qualified.substr(name.uri ? name.localAt : 0);
        const std::string value(m_tree.text(m_tree.node(at).text));
        keep(at, xmlNewNsProp(copy, namespaceOf(m_tree.node(at).name, copy), bytes(local), bytes(value)));
    }
}

/// Null for a name without a namespace.
xmlNs *XmlConversion::namespaceOf(XmlNameId name, xmlNode *element)
{
    const std::uint32_t uri = m_tree.name(name).uri;
    if (uri == 0)
        return nullptr;
    const std::string prefix(m_tree.prefix(name));
    const xmlChar *const wanted = prefix.empty() ? nullptr : bytes(prefix);
    xmlNs *const known = xmlSearchNs(m_document.get(), element, wanted);
    return known ? known : xmlNewNs(element, bytes(m_tree.uri(uri)), wanted);
}

} // namespace vantrell
