#include "bridge/host/ProjectText.h"

#include "support/files/FileUtilities.h"
#include "support/text/TextNumbers.h"
#include "xml/XmlDocument.h"
#include "xml/XmlElementWriter.h"
#include "xml/XmlOutline.h"
#include "xml/XmlReferences.h"

#include <QBuffer>

#include <algorithm>
#include <numeric>

namespace vantrell
{

namespace
{

constexpr int ChildrenLevel = 2; // root, project, children

const QByteArray lineEnd = "\n";

/// The name, as written, of the element that starts at that offset.
QByteArray writtenName(const QByteArray &xml, qsizetype begin)
{
    qsizetype end = begin + 1;
    while (end < xml.size() && !QByteArrayView(" \t\r\n/>").contains(xml.at(end)))
        ++end;
    return xml.sliced(begin + 1, end - begin - 1);
}

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
        const bool isProject = child.isElement("project");
        XmlNode item = isProject ? child.childElement("children").firstChildElement() : child;
        for (; item; item = isProject ? item.nextSiblingElement() : XmlNode()) {
            if (const Result<void> written = write(item); !written)
                return written.failure();
        }
    }
    buffer.write("</" + name + '>');
    return buffer.data();
}

} // namespace

Result<ProjectText> ProjectText::fromFile(const QString &path)
{
    if (Result<QByteArray> content = FileUtilities::readFile(path)) {
        if (Result<ProjectText> text = fromUtf8(std::move(content.value())))
            return text;
    }
    // Another encoding, or not a project, for which this gives the reason.
    auto document = XmlDocument::fromFile(path, {.tolerant = false});
    if (!document)
        return document.failure();
    if (document.value()->wasRepaired()) {
        return Failure{QStringLiteral("The file \"%1\" cannot be opened as a project: %2")
                           .arg(path, document.value()->firstFault())};
    }
    if (!document.value()->rootElement().isElement("xmeml"))
        return Failure{QStringLiteral("The file \"%1\" is no xmeml project.").arg(path)};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (const Result<void> written = document.value()->writeUtf8(buffer); !written)
        return written.failure();
    Result<ProjectText> text = fromUtf8(buffer.data());
    if (text)
        text.value().m_encoding = document.value()->encoding();
    return text;
}

Result<ProjectText> ProjectText::empty(const QString &name, std::int64_t xmemlVersion)
{
    return fromUtf8("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmeml>\n<xmeml version=\"" +
                    QByteArray::number(qlonglong(xmemlVersion)) + "\"><project><name>" +
                    name.toHtmlEscaped().toUtf8() + "</name><children>\n</children></project></xmeml>\n");
}

Result<ProjectText> ProjectText::fromUtf8(QByteArray xml)
{
    const auto outline = XmlOutline::read(xml, ChildrenLevel);
    if (!outline)
        return outline.failure();
    if (!outline.value() || outline.value()->elements.front().name != "xmeml")
        return Failure{QStringLiteral("it is no xmeml in UTF-8")};
    const qsizetype project = outline.value()->childOf(0, "project");
    const qsizetype children = project < 0 ? -1 : outline.value()->childOf(project, "children");
    const qsizetype index = children >= 0 ? children : std::max<qsizetype>(project, 0);
    const XmlOutline::Element &container = outline.value()->elements[std::size_t(index)];

    ProjectText text;
    const qsizetype insertion = container.close;
    qsizetype rest = insertion;
    text.m_parts.push_back({xml, 0, insertion});
    text.m_insertion = 1;
    if (container.content == container.close && xml.at(insertion) == '/') {
        rest += 2;
        text.m_parts.push_back({xml, insertion, rest - insertion});
        text.m_gap = 1;
        text.m_opening = ">";
        text.m_closing = "</" + writtenName(xml, container.begin) + '>';
    }
    if (project >= 0 && children < 0) {
        text.m_opening += "<children>";
        text.m_closing.prepend("</children>");
    }
    text.m_parts.push_back({xml, rest, xml.size() - rest});
    text.m_xml = std::move(xml);
    return text;
}

qsizetype ProjectText::size() const
{
    return std::accumulate(m_parts.begin(), m_parts.end(), qsizetype(0),
                           [](qsizetype sum, const Part &part) { return sum + part.size; });
}

const QByteArray &ProjectText::xml()
{
    if (!m_xml.isNull() || m_parts.empty())
        return m_xml;
    m_xml.reserve(size());
    qsizetype insertion = 0;
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        if (i == m_insertion)
            insertion = m_xml.size();
        m_xml.append(m_parts[i].view());
    }
    m_parts = {{m_xml, 0, insertion}, {m_xml, insertion, m_xml.size() - insertion}}; // releases the old parts
    m_insertion = 1;
    return m_xml;
}

ProjectText ProjectText::with(const ImportedXml &imported) const
{
    ProjectText text;
    text.m_encoding = m_encoding;
    const auto insertion = m_parts.begin() + std::ptrdiff_t(m_insertion);
    text.m_parts.assign(m_parts.begin(), insertion);
    text.m_parts.push_back(whole(m_opening));
    for (const QByteArrayView item : imported.items) {
        text.m_parts.push_back({imported.xml, item.data() - imported.xml.constData(), item.size()});
        text.m_parts.push_back(whole(lineEnd));
    }
    text.m_insertion = text.m_parts.size();
    text.m_parts.push_back(whole(m_closing));
    text.m_parts.insert(text.m_parts.end(), insertion + std::ptrdiff_t(m_gap), m_parts.end());
    return text;
}

Result<void> ProjectText::save(const QString &path)
{
    if (m_encoding.isEmpty()) {
        return FileUtilities::writeAtomically(path, [this](QIODevice &device) -> Result<void> {
            for (const Part &part : m_parts)
                device.write(part.view().data(), part.size);
            return {};
        });
    }
    const auto document = tree();
    if (!document)
        return document.failure();
    document.value()->setEncoding(m_encoding);
    return document.value()->save(path);
}

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
