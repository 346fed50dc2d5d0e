#include "xml/XmlEdit.h"

#include "xml/XmlDocument.h"
#include "xml/XmlText.h"

#include <libxml/tree.h>

namespace vantrell::XmlEdit
{

namespace
{

const xmlChar *bytes(const QByteArray &text)
{
    return reinterpret_cast<const xmlChar *>(text.constData());
}

} // namespace

void setText(XmlNode element, const QString &text)
{
    if (!element.isElement())
        return;
    xmlNode *node = element.handle();
    XmlDocument *document = XmlDocument::owning(element);
    if (document)
        document->noteChange();
    while (xmlNode *child = node->children) {
        if (child->type == XML_ELEMENT_NODE && document) {
            document->remove(XmlNode(child));
        } else {
            xmlUnlinkNode(child);
            xmlFreeNode(child);
        }
    }
    const QByteArray utf8 = XmlText::toUtf8(text);
    if (!utf8.isEmpty())
        xmlAddChild(node, xmlNewDocTextLen(node->doc, bytes(utf8), int(utf8.size())));
}

XmlNode appendElement(XmlNode parent, const QString &name, const QString &text)
{
    const QByteArray utf8 = XmlText::toUtf8(name);
    if (!parent.isElement() || xmlValidateNCName(bytes(utf8), 0) != 0)
        return XmlNode();
    xmlNode *node = parent.handle();
    const XmlNode element(xmlAddChild(node, xmlNewDocNode(node->doc, nullptr, bytes(utf8), nullptr)));
    setText(element, text);
    return element;
}

void setOnlyAttribute(XmlNode element, const QString &name, const QString &value)
{
    if (!element.isElement())
        return;
    if (XmlDocument *document = XmlDocument::owning(element))
        document->noteChange();
    xmlNode *node = element.handle();
    while (node->properties)
        xmlRemoveProp(node->properties);
    xmlSetProp(node, bytes(XmlText::toUtf8(name)), bytes(XmlText::toUtf8(value)));
}

} // namespace vantrell::XmlEdit
