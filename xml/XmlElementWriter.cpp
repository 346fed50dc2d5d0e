#include "xml/XmlElementWriter.h"

#include "xml/XmlText.h"
#include "xml/XmlViews.h"
#include "xml/XmlWriter.h"

#include <QIODevice>

namespace vantrell::XmlElementWriter
{

namespace
{

using Kind = XmlTree::Kind;

/// How attributes are written depends on whether the document declares its encoding.
XmlWriter writerOf(const XmlTree &tree, XmlOutput &output)
{
    return XmlWriter(tree, output, false, tree.encoding.isEmpty());
}

Result<void> outcome(XmlOutput &output, const QIODevice &device)
{
    if (output.flush())
        return {};
    return Failure{device.errorString()};
}

/// The new text of a child; null when its content stays.
const QString *newTextOf(XmlNode child, const Changes &changes)
{
    for (const auto &[node, text] : changes.texts) {
        if (node == child)
            return &text;
    }
    return nullptr;
}

void writeChild(const XmlTree &tree, XmlNodeId child, const Changes &changes, XmlOutput &output,
                XmlWriter &writer)
{
    const QString *const text =
        tree.node(child).isElement() ? newTextOf(tree.handle(child), changes) : nullptr;
    if (!text) {
        writer.writeNode(child);
        return;
    }
    const QByteArray utf8 = XmlText::toUtf8(*text);
    output.write('<');
    writer.writeName(tree.node(child).name);
    writer.writeNamespaces(child);
    writer.writeAttributes(child);
    if (utf8.isEmpty()) {
        output.write("/>");
        return;
    }
    output.write('>');
    writer.writeText(viewOf(utf8));
    writer.writeEndTag(child);
}

} // namespace

Result<void> write(XmlNode element, QIODevice &device, const std::atomic<bool> *cancelled)
{
    XmlOutput output(device, cancelled);
    if (element.isElement())
        writerOf(*element.tree(), output).writeNode(element.id());
    return outcome(output, device);
}

Result<void> writeChanged(XmlNode element, const Changes &changes, QIODevice &device,
                          const std::atomic<bool> *cancelled)
{
    if (!element.isElement())
        return {};
    const XmlTree &tree = *element.tree();
    const XmlTree::Node &node = tree.node(element.id());
    XmlOutput output(device, cancelled);
    XmlWriter writer = writerOf(tree, output);
    output.write('<');
    writer.writeName(node.name);
    writer.writeNamespaces(element.id());
    for (const XmlNameId inherited : tree.inheritedNamespaces(element.id()))
        writer.writeNamespace(tree.prefix(inherited), tree.uri(tree.name(inherited).uri));
    writer.writeAttribute(viewOf(XmlText::toUtf8(changes.attribute)), viewOf(XmlText::toUtf8(changes.value)));
    if (node.firstChild == 0) {
        output.write("/>");
        return outcome(output, device);
    }
    output.write('>');
    for (XmlNodeId child = node.firstChild; child && !output.hasFailed(); child = tree.node(child).next)
        writeChild(tree, child, changes, output, writer);
    writer.writeEndTag(element.id());
    return outcome(output, device);
}

} // namespace vantrell::XmlElementWriter
