#include "xml/XmlDocument.h"

#include "support/files/FileUtilities.h"
#include "xml/XmlChanges.h"
#include "xml/XmlElementWriter.h"
#include "xml/XmlFile.h"
#include "xml/XmlParse.h"
#include "xml/XmlWriter.h"

#include <QBuffer>
#include <QLocale>

#include <algorithm>
#include <cstring>
#include <new>

namespace vantrell
{

namespace
{

const QString noMemoryToRead = QStringLiteral("there is not enough memory to read it.");

QString faultText(const ParseOutcome &outcome)
{
    return outcome.firstError.isEmpty() ? QStringLiteral("nothing in it can be read") : outcome.firstError;
}

/// Digits in groups of three.
QString grouped(std::int64_t number)
{
    return QLocale(QLocale::English).toString(qlonglong(number));
}

/// Such as "1 element was" and "1,200 elements were".
QString counted(std::int64_t elements, QStringView singular, QStringView plural)
{
    return elements == 1 ? QStringLiteral("1 element %1").arg(singular)
                         : QStringLiteral("%1 elements %2").arg(grouped(elements), plural);
}

QString lossText(const XmlLoss &loss)
{
    if (!loss.isLoss())
        return QString();
    const bool readAll = loss.bytesRead >= loss.bytesTotal;
    const QString bytes = readAll ? QStringLiteral("all %1 bytes could be read").arg(grouped(loss.bytesTotal))
                                  : QStringLiteral("%1 of %2 bytes could be read")
                                        .arg(grouped(loss.bytesRead), grouped(loss.bytesTotal));
    if (loss.droppedElements > 0) {
        return QStringLiteral("Content is missing: %1, and %2 left out behind that.")
            .arg(bytes, counted(loss.droppedElements, u"was", u"were"));
    }
    if (!loss.isCutOff && loss.elementsInComments > 0) {
        return QStringLiteral("Content is missing: %1 in a comment or instruction that does not end "
                              "where it should.")
            .arg(counted(loss.elementsInComments, u"is", u"are"));
    }
    if (!loss.isCutOff && loss.misplacedLine > 0) {
        return QStringLiteral(
                   "Content is missing from its place: the tags do not match, so elements near or behind "
                   "line %1 may be outside of those that they belong to.")
            .arg(loss.misplacedLine);
    }
    if (!loss.isCutOff && loss.droppedReferences > 0) {
        return QStringLiteral(
                   "Content is missing: \"&\" or \"<\" is no reference or tag in %1, the first on line %2.")
            .arg(loss.droppedReferences == 1
                     ? QStringLiteral("1 place")
                     : QStringLiteral("%1 places").arg(grouped(loss.droppedReferences)),
                 QString::number(loss.firstDropped));
    }
    if (!loss.isCutOff && loss.droppedText)
        return QStringLiteral("Content is missing: %1, and what follows is no part of the project.")
            .arg(bytes);
    if (!loss.isCutOff)
        return QStringLiteral(
            "Content is missing: the entities that the document type declares are not kept.");
    return readAll ? QStringLiteral("Content is missing: %1, but the file ends in the middle of an element.")
                         .arg(bytes)
                   : QStringLiteral("Content is missing: %1.").arg(bytes);
}

XmlSource sourceOf(const QByteArray &data)
{
    const auto position = std::make_shared<qsizetype>(0);
    const auto read = [&data, position](char *buffer, int length) {
        const qsizetype count = std::min<qsizetype>(length, data.size() - *position);
        std::memcpy(buffer, data.constData() + *position, std::size_t(count));
        *position += count;
        return int(count);
    };
    return {read, data.size()};
}

} // namespace

XmlDocument::XmlDocument()
    : m_tree(std::make_unique<XmlTree>(this))
{
}

XmlDocument::~XmlDocument() = default;

Result<std::unique_ptr<XmlDocument>> XmlDocument::fromFile(const QString &path, const LoadOptions &options)
{
    const Result<std::shared_ptr<XmlFile>> file = XmlFile::open(path, options.cancelled);
    if (!file)
        return file.failure();
    const auto read = [input = file.value()](char *buffer, int length) {
        return input->read(buffer, length);
    };
    Result<std::unique_ptr<XmlDocument>> document = parse({.source = {read, file.value()->size()},
                                                           .tolerant = options.tolerant,
                                                           .cancelled = options.cancelled});
    if (!document)
        return Failure{options.failure.arg(path, document.message())};
    return document;
}

Result<std::unique_ptr<XmlDocument>> XmlDocument::fromData(const QByteArray &data, const LoadOptions &options)
{
    return parse({.source = sourceOf(data), .tolerant = options.tolerant, .cancelled = options.cancelled});
}

Result<std::unique_ptr<XmlDocument>> XmlDocument::parse(const ParseRequest &request)
{
    try {
        std::unique_ptr<XmlDocument> document(new XmlDocument);
        const ParseOutcome outcome = parseXml(request, *document->m_tree);
        document->m_repaired = outcome.repaired;
        document->m_firstFault = outcome.firstError;
        document->m_loss = lossText(outcome.loss);
        if (outcome.cancelled)
            return Failure{QStringLiteral("loading was cancelled.")};
        if (outcome.outOfMemory)
            return Failure{noMemoryToRead};
        if (outcome.readFailed)
            return Failure{QStringLiteral("reading it failed before its end.")};
        if (outcome.tooDeep) {
            return Failure{
                QStringLiteral("its elements are nested more than %1 deep.").arg(maximumElementDepth)};
        }
        if (outcome.tooManyValues)
            return Failure{QStringLiteral("its document type lists more values than can be read.")};
        if (outcome.tooManyHyphens)
            return Failure{QStringLiteral("a comment in it has more double hyphens than can be read.")};
        if (!outcome.hasTree)
            return Failure{QStringLiteral("it is not well-formed XML (%1).").arg(faultText(outcome))};
        if (!document->rootElement())
            return Failure{QStringLiteral("it holds no XML root element (%1).").arg(faultText(outcome))};
        return document;
    } catch (const std::bad_alloc &) {
        return Failure{noMemoryToRead};
    }
}

XmlNode XmlDocument::node() const
{
    return XmlNode(m_tree.get(), XmlTree::documentId);
}

XmlNode XmlDocument::rootElement() const
{
    return node().firstChildElement();
}

QByteArray XmlDocument::encoding() const
{
    return m_tree->encoding;
}

void XmlDocument::setEncoding(const QByteArray &encoding)
{
    m_tree->encoding = encoding;
}

Result<void> XmlDocument::save(const QString &path, const std::atomic<bool> *cancelled, Layout layout) const
{
    return FileUtilities::writeAtomically(
        path, [this, cancelled, layout](QIODevice &device) { return write(device, cancelled, layout); });
}

Result<void> XmlDocument::write(QIODevice &device, const std::atomic<bool> *cancelled, Layout layout) const
{
    return writeEncoded(device, m_tree->encoding, cancelled, layout);
}

Result<void> XmlDocument::writeUtf8(QIODevice &device, const std::atomic<bool> *cancelled) const
{
    return writeEncoded(device, QByteArray(), cancelled, Layout::Indented);
}

Result<void> XmlDocument::writeEncoded(QIODevice &device, const QByteArray &encoding,
                                       const std::atomic<bool> *cancelled, Layout layout) const
{
    try {
        XmlOutput output(device, cancelled);
        const bool isKnown = !encoding.isEmpty() && output.setEncoding(encoding);
        XmlWriter writer(*m_tree, output, layout == Layout::Indented, false);
        writer.writeDocument(isKnown ? encoding.toStdString() : "UTF-8");
        if (output.flush())
            return {};
        return Failure{device.errorString()};
    } catch (const std::bad_alloc &) {
        return Failure{QStringLiteral("There is not enough memory.")};
    }
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
    XmlTree tree(nullptr);
    const ParseOutcome outcome =
        parseXml({.source = sourceOf(utf8), .tolerant = false, .keepsSpace = true}, tree);
    const XmlNode root = XmlNode(&tree, XmlTree::documentId).firstChildElement();
    const bool isWhole =
        outcome.hasTree && !outcome.tooDeep && !outcome.tooManyValues && !outcome.outOfMemory;
    if (!isWhole || !root) {
        return Failure{outcome.lastError.isEmpty() ? QStringLiteral("The text is no XML element.")
                                                   : outcome.lastError};
    }
    return m_tree->handle(m_tree->copy(tree, root.id()));
}

XmlNode XmlDocument::copyOfElement(XmlNode element)
{
    return element.isElement() ? m_tree->handle(m_tree->copy(*element.tree(), element.id())) : XmlNode();
}

void XmlDocument::remove(XmlNode element)
{
    if (!element.isElement() || !element.parent())
        return;
    noteChange();
    m_tree->unlink(element.id());
}

bool XmlDocument::moveTo(XmlNode element, XmlNode parent)
{
    if (!element.isElement() || !parent.isElement() || element.tree() != m_tree.get() ||
        parent.tree() != m_tree.get())
        return false;
    for (XmlNode up = parent; up; up = up.parent()) {
        if (up == element)
            return false;
    }
    noteChange();
    if (element.parent())
        m_tree->unlink(element.id());
    m_tree->append(parent.id(), element.id());
    return true;
}

void XmlDocument::recordChanges(XmlChanges *changes)
{
    m_tree->setRecorder(changes);
}

void XmlDocument::revert(XmlChanges &changes)
{
    noteChange();
    changes = m_tree->revert(changes);
}

} // namespace vantrell
