#include "xml/XmlElementWriter.h"

#include "xml/XmlOutput.h"
#include "xml/XmlText.h"

#include <libxml/tree.h>

#include <QBuffer>

#include <memory>

namespace vantrell::XmlElementWriter
{

namespace
{

const xmlChar *bytes(const QByteArray &text)
{
    return reinterpret_cast<const xmlChar *>(text.constData());
}

/// A document of our own that copies of a tree's nodes are made in, so that the tree's own, its
/// dictionary included, is left alone.
class Scratch
{
public:
    explicit Scratch(const xmlNode *node)
        : m_document(xmlNewDoc(nullptr))
    {
        // How attributes are written depends on it.
        if (m_document && node->doc->encoding)
            m_document->encoding = xmlStrdup(node->doc->encoding);
    }

    /// A copy with attributes and namespaces, and with what it holds when `deep`; null without memory.
    xmlNode *copy(xmlNode *node, bool deep)
    {
        if (!m_document)
            return nullptr;
        xmlNode *made = xmlDocCopyNode(node, m_document.get(), deep ? 1 : 2);
        if (made)
            m_copies.emplace_back(made);
        return made;
    }

private:
    struct DocumentDeleter {
        void operator()(xmlDoc *document) const { xmlFreeDoc(document); }
    };
    struct NodeDeleter {
        void operator()(xmlNode *node) const { xmlFreeNode(node); }
    };

    std::unique_ptr<xmlDoc, DocumentDeleter> m_document;
    std::vector<std::unique_ptr<xmlNode, NodeDeleter>> m_copies; // die before the document
};

bool inheritsNamespaces(const xmlNode *element)
{
    for (const xmlNode *up = element->parent; up && up->type == XML_ELEMENT_NODE; up = up->parent) {
        if (up->nsDef)
            return true;
    }
    return false;
}

void setOnlyAttribute(xmlNode *element, const Changes &changes)
{
    while (element->properties)
        xmlRemoveProp(element->properties);
    xmlSetProp(element, bytes(XmlText::toUtf8(changes.attribute)), bytes(XmlText::toUtf8(changes.value)));
}

void setText(xmlNode *element, const QString &text)
{
    xmlFreeNodeList(element->children);
    element->children = element->last = nullptr;
    const QByteArray utf8 = XmlText::toUtf8(text);
    if (!utf8.isEmpty())
        xmlAddChild(element, xmlNewDocTextLen(element->doc, bytes(utf8), int(utf8.size())));
}

/// The new text of a child; null when it keeps what it holds.
const QString *newTextOf(const xmlNode *child, const Changes &changes)
{
    for (const auto &[node, text] : changes.texts) {
        if (node.handle() == child)
            return &text;
    }
    return nullptr;
}

bool writeNode(xmlNode *node, QIODevice &device, const std::atomic<bool> *cancelled)
{
    XmlOutput output{device, cancelled};
    const XmlSavePointer save = openXmlOutput(output, "UTF-8", XML_SAVE_NO_DECL | XML_SAVE_AS_XML);
    return save && xmlSaveTree(save.get(), node) >= 0 && xmlSaveFlush(save.get()) >= 0;
}

/// The changed element as a whole; what it holds may name namespaces that are declared above it.
bool writeChangedCopy(xmlNode *element, const Changes &changes, QIODevice &device,
                      const std::atomic<bool> *cancelled)
{
    Scratch scratch(element);
    xmlNode *const copy = scratch.copy(element, true);
    if (!copy)
        return false;
    setOnlyAttribute(copy, changes);
    const xmlNode *original = element->children;
    for (xmlNode *child = copy->children; child && original; child = child->next, original = original->next) {
        if (const QString *text = newTextOf(original, changes))
            setText(child, *text);
    }
    return writeNode(copy, device, cancelled);
}

/// The changed element's tags around its children, each as it stands in the tree or changed.
bool writeTagsAndChildren(xmlNode *element, const Changes &changes, QIODevice &device,
                          const std::atomic<bool> *cancelled)
{
    Scratch scratch(element);
    xmlNode *const shell = scratch.copy(element, false);
    if (!shell)
        return false;
    setOnlyAttribute(shell, changes);
    if (!element->children)
        return writeNode(shell, device, cancelled);
    xmlAddChild(shell, xmlNewDocText(shell->doc, bytes("")));
    QBuffer tags;
    tags.open(QIODevice::WriteOnly);
    if (!writeNode(shell, tags, nullptr))
        return false;
    const QByteArray &both = tags.data();
    const qsizetype endTag = both.lastIndexOf("</");
    if (device.write(both.constData(), endTag) != endTag)
        return false;
    for (xmlNode *child = element->children; child; child = child->next) {
        const QString *const text = newTextOf(child, changes);
        xmlNode *const written = text ? scratch.copy(child, false) : child;
        if (!written)
            return false;
        if (text)
            setText(written, *text);
        if (!writeNode(written, device, cancelled))
            return false;
    }
    return device.write(both.constData() + endTag, both.size() - endTag) == both.size() - endTag;
}

Result<void> outcome(bool written, const QIODevice &device)
{
    if (written)
        return {};
    return Failure{device.errorString()};
}

} // namespace

Result<void> write(XmlNode element, QIODevice &device, const std::atomic<bool> *cancelled)
{
    return outcome(!element.isElement() || writeNode(element.handle(), device, cancelled), device);
}

Result<void> writeChanged(XmlNode element, const Changes &changes, QIODevice &device,
                          const std::atomic<bool> *cancelled)
{
    if (!element.isElement())
        return {};
    xmlNode *const node = element.handle();
    const auto writer = inheritsNamespaces(node) ? writeChangedCopy : writeTagsAndChildren;
    return outcome(writer(node, changes, device, cancelled), device);
}

} // namespace vantrell::XmlElementWriter
