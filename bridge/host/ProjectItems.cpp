#include "bridge/host/ProjectItems.h"

#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"
#include "xml/XmlQuery.h"

#include <QBuffer>

#include <initializer_list>
#include <string_view>

namespace vantrell::ProjectItems
{

namespace
{

/// Appends the items of the container and its bins in document order.
void appendItems(XmlNode container, XmlNodeList &items)
{
    for (XmlNode item = container.firstChildElement(); item; item = item.nextSiblingElement()) {
        if (!item.isElement("project"))
            items.push_back(item);
        appendItems(item.childElement("children"), items);
    }
}

bool hasId(XmlNode item, const QString &identifier)
{
    return item.attribute("id") == identifier || QVXMLParser::idAttributeForNode(item) == identifier;
}

XmlNode find(const XmlNodeList &items, const QString &identifier)
{
    for (const XmlNode item : items) {
        if (item.childElement("uuid").stringValue() == identifier)
            return item;
    }
    for (const XmlNode item : items) {
        if (hasId(item, identifier))
            return item;
    }
    return XmlNode();
}

/// Appends the bins and sequences of the container to the listing, recursively.
void listItems(XmlNode container, XmlNode listing)
{
    for (XmlNode item = container.firstChildElement(); item; item = item.nextSiblingElement()) {
        const bool isContainer = item.isElement("project") || item.isElement("bin");
        if (!isContainer && !item.isElement("sequence"))
            continue;
        const XmlNode entry = XmlEdit::appendElement(listing, item.name(), QString());
        if (const QString id = item.attribute("id"); !id.isNull())
            XmlEdit::setOnlyAttribute(entry, QStringLiteral("id"), id);
        for (const std::string_view name : {"uuid", "name"}) {
            if (const XmlNode child = item.childElement(name))
                XmlEdit::appendElement(entry, child.name(), child.stringValue());
        }
        if (const XmlNode children = item.childElement("children"); children && isContainer)
            listItems(children, XmlEdit::appendElement(entry, children.name(), QString()));
    }
}

} // namespace

XmlNode find(XmlNode root, const QString &identifier)
{
    if (identifier.isEmpty())
        return XmlNode();
    XmlNodeList items;
    appendItems(root, items);
    if (const XmlNode item = find(items, identifier))
        return item;
    static const XmlQuery sequences(QStringLiteral(".//sequence"));
    return find(sequences.evaluate(root).nodes, identifier);
}

QByteArray tableOfContents(XmlNode root)
{
    const auto listing = XmlDocument::fromData("<!DOCTYPE xmeml><xmeml/>", {});
    if (!listing)
        return QByteArray();
    if (const QString version = root.attribute("version"); !version.isNull())
        XmlEdit::setOnlyAttribute(listing.value()->rootElement(), QStringLiteral("version"), version);
    listItems(root, listing.value()->rootElement());
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return listing.value()->writeUtf8(buffer) ? buffer.data() : QByteArray();
}

} // namespace vantrell::ProjectItems
