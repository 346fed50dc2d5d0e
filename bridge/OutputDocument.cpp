#include "bridge/OutputDocument.h"

#include "bridge/QVAppleEvents.h"
#include "support/files/FileUtilities.h"
#include "support/log/QVLog.h"
#include "support/text/TextFormat.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"
#include "xml/XmlElementWriter.h"
#include "xml/XmlQuery.h"

#include <QBuffer>
#include <QHash>

#include <algorithm>

namespace vantrell
{

namespace
{

/// The "uuid" elements of a project's sequences by their text; of several with the same text, the first in
/// document order. Built in one pass; the tree must not change meanwhile.
class UuidIndex
{
public:
    UuidIndex(XmlNode project, const QString &query)
        : m_project(project)
        , m_query(query)
    {
    }

    XmlNode find(const QString &uuid)
    {
        if (!isPlain(uuid))
            return QVXMLParser::nodeForQuery(m_query + QStringLiteral("[text()=\"%1\"]").arg(uuid),
                                             m_project);
        if (!m_isBuilt)
            build();
        return m_elements.value(uuid);
    }

private:
    /// Whether the text means itself in a query.
    static bool isPlain(const QString &uuid)
    {
        return std::none_of(uuid.begin(), uuid.end(), [](QChar c) {
            return c == QLatin1Char('"') || c == QLatin1Char('&') || c.unicode() < 20;
        });
    }

    void build()
    {
        m_isBuilt = true;
        for (const XmlNode element : XmlQuery(m_query).evaluate(m_project).nodes) {
            for (XmlNode child = element.firstChild(); child; child = child.nextSibling()) {
                if (!child.isText())
                    continue;
                const QString text = child.stringValue();
                if (!m_elements.contains(text))
                    m_elements.insert(text, element);
            }
        }
    }

    XmlNode m_project;
    QString m_query;
    bool m_isBuilt = false;
    QHash<QString, XmlNode> m_elements;
};

const QString idAttribute = QStringLiteral("id");

QString processedID(XmlNode sequence)
{
    return sequence.attribute("id") + QStringLiteral("-Processed");
}

XmlNode nameOf(XmlNode sequence)
{
    return QVXMLParser::nodeForQuery(QStringLiteral("./name[1]"), sequence);
}

XmlNode uuidOf(XmlNode sequence)
{
    return QVXMLParser::nodeForQuery(QStringLiteral("./uuid[1]"), sequence);
}

QStringList changedSequences(const MyDocument &document)
{
    return document.modifiedSequenceUUIDs().value_or(QStringList());
}

/// The node itself if it is a sequence, else the nearest one around it.
XmlNode sequenceOf(XmlNode node)
{
    return node.isElement("sequence") ? node : QVXMLParser::parentWithName(node, "sequence");
}

} // namespace

QString OutputDocument::generateXMLOutput()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!write(changedSequences(m_document), buffer))
        return QString();
    return QString::fromUtf8(buffer.data());
}

Result<void> OutputDocument::writeChangedSequences(const QString &path)
{
    return FileUtilities::writeAtomically(
        path, [this](QIODevice &device) { return write(changedSequences(m_document), device); });
}

Result<void> OutputDocument::write(const QStringList &modifiedUUIDs, QIODevice &device,
                                   const std::atomic<bool> *cancelled)
{
    device.write(
        formatText(u"<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE xmeml><xmeml version=\"%i\">"
                   u"<bin><uuid>%@</uuid><updatebehavior>add</updatebehavior><name>Vantrell</name>"
                   u"<children>",
                   QVAppleEvents::maximumXMEMLVersion(), QVAppleEvents::generateUUID())
            .toUtf8());
    QVLog::appendLog(u"Modified sequence UUIDs: %@", modifiedUUIDs);
    UuidIndex current(m_document.xmlNode(), QStringLiteral(".//sequence/uuid"));
    UuidIndex history(m_document.xmlNode(), QStringLiteral(".//sequence/itemhistory/uuid"));
    for (const QString &uuid : modifiedUUIDs) {
        XmlNode found = current.find(uuid);
        if (!found)
            found = history.find(uuid);
        const XmlNode sequence = sequenceOf(found);
        if (!sequence)
            continue;
        const Result<void> written = XmlElementWriter::writeChanged(
            sequence,
            {idAttribute,
             processedID(sequence),
             {{nameOf(sequence), processedID(sequence)}, {uuidOf(sequence), QVAppleEvents::generateUUID()}}},
            device, cancelled);
        if (!written)
            return written;
    }
    const QByteArray tail("</children></bin></xmeml>");
    if (device.write(tail) != tail.size())
        return Failure{device.errorString()};
    return {};
}

XmlNode OutputDocument::renameSequence(XmlNode sequence)
{
    const QString processed = processedID(sequence);
    XmlEdit::setOnlyAttribute(sequence, idAttribute, processed);
    XmlEdit::setText(nameOf(sequence), processed);
    XmlEdit::setText(uuidOf(sequence), QVAppleEvents::generateUUID());
    return sequence;
}

} // namespace vantrell
