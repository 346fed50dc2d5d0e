#pragma once

// For use inside xml/ only: it uses the XML library's types.

#include "xml/XmlTree.h"

#include <libxml/tree.h>

#include <memory>

namespace vantrell
{

/// A copy of the whole tree of a node in the XML library's types, for evaluations by the library. Throws
/// std::bad_alloc.
class XmlConversion
{
public:
    explicit XmlConversion(XmlNode node);

    xmlDoc *document() const { return m_document.get(); }
    /// The copy of the node.
    xmlNode *node() const { return m_node; }
    /// The original of a copied node; null when it is not a copy.
    XmlNode original(const xmlNode *copy) const;

private:
    struct DocumentDeleter {
        void operator()(xmlDoc *document) const { xmlFreeDoc(document); }
    };

    void convertChildren(XmlNodeId id, xmlNode *copy);
    void convert(XmlNodeId id, xmlNode *parent);
    xmlNode *converted(XmlNodeId id);
    void convertAttributes(XmlNodeId id, xmlNode *copy);
    xmlNs *namespaceOf(XmlNameId name, xmlNode *element);
    template <typename Made>
    Made *keep(XmlNodeId id, Made *made);

    const XmlTree &m_tree;
    const XmlNodeId m_wanted;
    std::unique_ptr<xmlDoc, DocumentDeleter> m_document;
    xmlNode *m_node = nullptr;
};

} // namespace vantrell
