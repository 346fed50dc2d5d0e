#include "xml/XmlEdit.h"

#include "xml/XmlDocument.h"
#include "xml/XmlText.h"
#include "xml/XmlTree.h"
#include "xml/XmlViews.h"

#include <libxml/tree.h>

namespace vantrell::XmlEdit
{

namespace
{

using Kind = XmlTree::Kind;

/// The tree of the node, for writing. Handles are read-only; edits go through the document.
XmlTree &treeOf(XmlNode node)
{
    return const_cast<XmlTree &>(*node.tree());
}

} // namespace

void setText(XmlNode element, const QString &text)
{
    if (!element.isElement())
        return;
    XmlTree &tree = treeOf(element);
    if (tree.owner())
        tree.owner()->noteChange();
    const QByteArray utf8 = XmlText::toUtf8(text);
    const XmlNodeId made = utf8.isEmpty() ? 0 : tree.makeText(Kind::Text, viewOf(utf8));
    while (const XmlNodeId child = tree.node(element.id()).firstChild)
        tree.unlink(child);
    if (made)
        tree.append(element.id(), made);
}

XmlNode appendElement(XmlNode parent, const QString &name, const QString &text)
{
    const QByteArray utf8 = XmlText::toUtf8(name);
    const bool isName = xmlValidateNCName(reinterpret_cast<const xmlChar *>(utf8.constData()), 0) == 0;
    if (!parent.isElement() || !isName)
        return XmlNode();
    XmlTree &tree = treeOf(parent);
    const XmlNodeId element = tree.make(Kind::Element, tree.intern({}, viewOf(utf8), {}));
    tree.append(parent.id(), element);
    setText(tree.handle(element), text);
    return tree.handle(element);
}

void setOnlyAttribute(XmlNode element, const QString &name, const QString &value)
{
    if (!element.isElement())
        return;
    XmlTree &tree = treeOf(element);
    if (tree.owner())
        tree.owner()->noteChange();
    const XmlNodeId made = tree.makeText(Kind::Attribute, viewOf(XmlText::toUtf8(value)));
    tree.node(made).name = tree.intern({}, viewOf(XmlText::toUtf8(name)), {});
    tree.removeAttributes(element.id());
    tree.appendAttribute(element.id(), made);
}

} // namespace vantrell::XmlEdit
