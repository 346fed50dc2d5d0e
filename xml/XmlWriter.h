#pragma once

// For use inside xml/ only.

#include "xml/XmlOutput.h"
#include "xml/XmlTree.h"

#include <string_view>

namespace vantrell
{

/// Writes nodes of one tree as XML.
class XmlWriter
{
public:
    /// \a isIndented: each element, comment and instruction gets a line of its own, except in elements with
    /// text. \a asciiAttributes: characters beyond ASCII are written as references in attributes.
    XmlWriter(const XmlTree &tree, XmlOutput &output, bool isIndented, bool asciiAttributes);

    /// The whole document, with a declaration that names the encoding.
    void writeDocument(std::string_view encoding);
    /// The node and its subtree.
    void writeNode(XmlNodeId node);

    /// The parts of an element, for callers that write something else in between.
    void writeName(XmlNameId name);
    void writeNamespaces(XmlNodeId element);
    void writeNamespace(std::string_view prefix, std::string_view uri);
    void writeAttributes(XmlNodeId element);
    void writeAttribute(std::string_view name, std::string_view value);
    void writeText(std::string_view text);
    void writeEndTag(XmlNodeId element);

private:
    void indent();
    void writeStartTag(XmlNodeId element);
    void writeCData(std::string_view text);
    void writeLeaf(const XmlTree::Node &node);
    bool holdsText(XmlNodeId element) const;

    const XmlTree &m_tree;
    XmlOutput &m_output;
    bool m_isIndented;
    const bool m_asciiAttributes;
    int m_level = 0;
};

} // namespace vantrell
