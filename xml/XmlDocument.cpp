#include "xml/XmlDocument.h"

#include "support/FileUtilities.h"
#include "xml/TreeMemory.h"
#include "xml/XmlElementWriter.h"
#include "xml/XmlFile.h"
#include "xml/XmlOutput.h"
#include "xml/XmlParse.h"

#include <libxml/parser.h>

#include <QBuffer>

#include <algorithm>
#include <cstring>

namespace vantrell
{

namespace
{

xmlDoc *treeOf(XmlNode document)
{
    return reinterpret_cast<xmlDoc *>(document.handle());
}

QString faultText(const ParseOutcome &outcome)
{
    return outcome.firstError.isEmpty() ? QStringLiteral("nothing in it can be read") : outcome.firstError;
}

} // namespace

void XmlDocument::TreeDeleter::operator()(_xmlNode *document) const
{
    xmlFreeDoc(reinterpret_cast<xmlDoc *>(document));
}

Result<std::unique_ptr<XmlDocument>> XmlDocument::fromFile(const QString &path, const LoadOptions &options)
{
    const Result<std::shared_ptr<XmlFile>> file = XmlFile::open(path);
    if (!file)
        return file.failure();
    ParseRequest request;
    request.read = [input = file.value()](char *buffer, int length) { return input->read(buffer, length); };
    request.tolerant = options.tolerant;
    request.cancelled = options.cancelled;
    Result<std::unique_ptr<XmlDocument>> document = parse(request);
    if (!document)
        return Failure{QStringLiteral("The file \"%1\" cannot be opened as a project: %2")
                           .arg(path, document.message())};
    return document;
}

Result<std::unique_ptr<XmlDocument>> XmlDocument::fromData(const QByteArray &data, const LoadOptions &options)
{
    ParseRequest request;
    qsizetype position = 0;
    request.read = [&](char *buffer, int length) {
        const qsizetype count = std::min<qsizetype>(length, data.size() - position);
        std::memcpy(buffer, data.constData() + position, std::size_t(count));
        position += count;
        return int(count);
    };
    request.tolerant = options.tolerant;
    request.cancelled = options.cancelled;
    return parse(request);
}

Result<std::unique_ptr<XmlDocument>> XmlDocument::parse(const ParseRequest &request)
{
    std::unique_ptr<XmlDocument> document(new XmlDocument);
    document->m_arena = std::make_unique<TreeMemory::Arena>();
    const ParseOutcome outcome = parseXml(request, *document->m_arena);
    document->m_tree.reset(reinterpret_cast<xmlNode *>(outcome.tree));
    if (outcome.tree)
        outcome.tree->_private = document.get();
    document->m_repaired = outcome.repaired;
    document->m_firstFault = outcome.firstError;
    if (outcome.cancelled)
        return Failure{QStringLiteral("loading was cancelled.")};
    if (outcome.readFailed)
        return Failure{QStringLiteral("reading it failed before its end.")};
    if (outcome.tooDeep) {
        return Failure{QStringLiteral("its elements are nested more than %1 deep.").arg(maximumElementDepth)};
    }
    if (!outcome.tree)
        return Failure{QStringLiteral("it is not well-formed XML (%1).").arg(faultText(outcome))};
    if (!document->rootElement())
        return Failure{QStringLiteral("it holds no XML root element (%1).").arg(faultText(outcome))};
    return document;
}

XmlDocument::~XmlDocument()
{
    for (const XmlNode parked : m_parked)
        xmlFreeNode(parked.handle());
}

XmlNode XmlDocument::node() const
{
    return XmlNode(m_tree.get());
}

XmlNode XmlDocument::rootElement() const
{
    return m_tree ? XmlNode(xmlDocGetRootElement(treeOf(node()))) : XmlNode();
}

QByteArray XmlDocument::encoding() const
{
    return QByteArray(reinterpret_cast<const char *>(treeOf(node())->encoding));
}

void XmlDocument::setEncoding(const QByteArray &encoding)
{
    xmlDoc *tree = treeOf(node());
    xmlFree(const_cast<xmlChar *>(tree->encoding));
    tree->encoding = xmlStrdup(reinterpret_cast<const xmlChar *>(encoding.constData()));
}

Result<void> XmlDocument::save(const QString &path, const std::atomic<bool> *cancelled, Layout layout) const
{
    return FileUtilities::writeAtomically(
        path, [this, cancelled, layout](QIODevice &device) { return write(device, cancelled, layout); });
}

Result<void> XmlDocument::write(QIODevice &device, const std::atomic<bool> *cancelled, Layout layout) const
{
    return writeEncoded(device, reinterpret_cast<const char *>(treeOf(node())->encoding), cancelled, layout);
}

Result<void> XmlDocument::writeUtf8(QIODevice &device, const std::atomic<bool> *cancelled) const
{
    return writeEncoded(device, nullptr, cancelled, Layout::Indented);
}

Result<void> XmlDocument::writeEncoded(QIODevice &device, const char *encoding,
                                       const std::atomic<bool> *cancelled, Layout layout) const
{
    XmlOutput output{device, cancelled};
    const int options = XML_SAVE_AS_XML | (layout == Layout::Indented ? XML_SAVE_FORMAT : 0);
    XmlSavePointer save;
    if (encoding)
        save = openXmlOutput(output, encoding, options);
    if (!save)
        save = openXmlOutput(output, "UTF-8", options);
    const bool saved = save && xmlSaveDoc(save.get(), treeOf(node())) >= 0 && xmlSaveFlush(save.get()) >= 0;
    if (!saved)
        return Failure{device.errorString()};
    return {};
}

QString XmlDocument::textOfElement(XmlNode element)
{
    if (!element.isElement())
        return QString();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return XmlElementWriter::write(element, buffer) ? QString::fromUtf8(buffer.data()) : QString();
}

Result<XmlNode> XmlDocument::elementFromText(const QString &xml)
{
    const QByteArray utf8 = xml.toUtf8();
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> context(xmlNewParserCtxt(),
                                                                            xmlFreeParserCtxt);
    if (!context)
        return Failure{QStringLiteral("There is not enough memory.")};
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc *)> parsed(
        xmlCtxtReadMemory(context.get(), utf8.constData(), int(utf8.size()), nullptr, "UTF-8",
                          XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        xmlFreeDoc);
    const xmlNode *root = parsed ? xmlDocGetRootElement(parsed.get()) : nullptr;
    if (!root) {
        const xmlError *error = xmlCtxtGetLastError(context.get());
        const QString text =
            error && error->message ? QString::fromUtf8(error->message).simplified() : QString();
        return Failure{text.isEmpty() ? QStringLiteral("The text is no XML element.") : text};
    }
    const XmlNode copy(xmlDocCopyNode(const_cast<xmlNode *>(root), treeOf(node()), 1));
    park(copy);
    return copy;
}

XmlNode XmlDocument::copyOfElement(XmlNode element)
{
    if (!element.isElement())
        return XmlNode();
    const XmlNode copy(xmlDocCopyNode(element.handle(), treeOf(node()), 1));
    park(copy);
    return copy;
}

void XmlDocument::discardCopy(XmlNode copy)
{
    if (m_parked.erase(copy) > 0)
        xmlFreeNode(copy.handle());
}

void XmlDocument::remove(XmlNode element)
{
    if (!element.isElement() || !element.parent())
        return;
    noteChange();
    xmlUnlinkNode(element.handle());
    park(element);
}

bool XmlDocument::moveTo(XmlNode element, XmlNode parent)
{
    if (!element.isElement() || !parent.isElement())
        return false;
    for (XmlNode up = parent; up; up = up.parent()) {
        if (up == element)
            return false;
    }
    noteChange();
    xmlUnlinkNode(element.handle());
    m_parked.erase(element);
    xmlAddChild(parent.handle(), element.handle());
    return true;
}

XmlDocument *XmlDocument::owning(XmlNode node)
{
    const xmlDoc *tree = node ? node.handle()->doc : nullptr;
    return tree ? static_cast<XmlDocument *>(tree->_private) : nullptr;
}

void XmlDocument::park(XmlNode element)
{
    if (element)
        m_parked.insert(element);
}

} // namespace vantrell
