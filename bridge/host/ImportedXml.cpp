#include "bridge/host/ImportedXml.h"

#include "support/text/TextNumbers.h"
#include "xml/XmlDocument.h"
#include "xml/XmlElementWriter.h"
#include "xml/XmlOutline.h"
#include "xml/XmlReferences.h"

#include <QBuffer>

#include <algorithm>

namespace vantrell
{

namespace
{

constexpr int ItemLevel = 3; // root, project, children, items

Failure refused(const QString &reason)
{
    return Failure{QStringLiteral("The document cannot be imported: ") + reason};
}

/// The indices of the elements that are items.
std::vector<qsizetype> itemsOf(const XmlOutline &outline)
{
    std::vector<qsizetype> items;
    for (const qsizetype child : outline.childrenOf(0)) {
        if (outline.elements[std::size_t(child)].name != "project") {
            items.push_back(child);
        } else if (const qsizetype children = outline.childOf(child, "children"); children >= 0) {
            const std::vector<qsizetype> held = outline.childrenOf(children);
            items.insert(items.end(), held.begin(), held.end());
        }
    }
    return items;
}

/// Whether an ancestor of the items declares namespaces, which they may depend on.
bool inheritsNamespaces(const XmlOutline &outline)
{
    return std::any_of(outline.elements.begin(), outline.elements.end(), [](const auto &element) {
        return element.depth < ItemLevel && element.declaresNamespaces;
    });
}

/// A document of the items only, in UTF-8, each with the namespaces that it uses.
Result<QByteArray> plainForm(const QByteArray &xml)
{
    auto parsed = XmlDocument::fromData(XmlReferences::joinedSurrogates(xml), {.tolerant = false});
    if (!parsed)
        return parsed.failure();
    XmlDocument &document = *parsed.value();
    const XmlNode root = document.rootElement();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const auto write = [&](XmlNode item) {
        return XmlElementWriter::write(document.copyOfElement(item), buffer);
    };
    const QByteArray name = root.name().toUtf8();
    buffer.write('<' + name + " version=\"" + root.attribute("version").toHtmlEscaped().toUtf8() + "\">");
    for (XmlNode child = root.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (!child.isElement("project")) {
            if (const Result<void> written = write(child); !written)
                return written.failure();
            continue;
        }
        XmlNode item = child.childElement("children").firstChildElement();
        for (; item; item = item.nextSiblingElement()) {
            if (const Result<void> written = write(item); !written)
                return written.failure();
        }
    }
    buffer.write("</" + name + '>');
    return buffer.data();
}

} // namespace

Result<ImportedXml> ImportedXml::read(const QByteArray &xml, std::int64_t maximumVersion)
{
    ImportedXml imported{XmlReferences::asCharacters(xml), {}};
    auto outline = XmlOutline::read(imported.xml, ItemLevel);
    if (!outline)
        return refused(outline.message());
    if (!outline.value() || inheritsNamespaces(*outline.value())) {
        Result<QByteArray> plain = plainForm(xml);
        if (!plain)
            return refused(plain.message());
        imported.xml = std::move(plain.value());
        outline = XmlOutline::read(imported.xml, ItemLevel);
        if (!outline || !outline.value())
            return refused(QStringLiteral("it cannot be read."));
    }
    if (outline.value()->elements.front().name != "xmeml")
        return refused(QStringLiteral("it is no xmeml."));
    const std::int64_t version = integerValue(outline.value()->rootAttribute(u"version"));
    if (version > maximumVersion) {
        return refused(
            QStringLiteral("it is xmeml of version %1, and version %2 is the highest that can be read.")
                .arg(version)
                .arg(maximumVersion));
    }
    for (const qsizetype item : itemsOf(*outline.value())) {
        const XmlOutline::Element &element = outline.value()->elements[std::size_t(item)];
        imported.items.push_back(
            QByteArrayView(imported.xml).sliced(element.begin, element.end - element.begin));
    }
    if (imported.items.empty())
        return refused(QStringLiteral("it holds nothing."));
    return imported;
}

} // namespace vantrell
