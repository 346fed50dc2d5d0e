// Changing markers: the values in their elements, and where their elements stand.

#include "document/DocumentEdit.h"
#include "markers/MarkerCandidates.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerComment.h"
#include "markers/MarkerEditNames.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/text/TextFormat.h"
#include "support/text/TextNumbers.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"

namespace vantrell
{

namespace
{

const QString colorKey = QStringLiteral("color");

std::int64_t childInteger(XmlNode element, const QString &query)
{
    return integerValue(MyDocument::valueForXPath(query, element).value_or(QString()));
}

/// A sum or difference of any positions: it wraps around.
std::int64_t sum(std::int64_t a, std::int64_t b)
{
    return std::int64_t(quint64(a) + quint64(b));
}

std::int64_t difference(std::int64_t a, std::int64_t b)
{
    return std::int64_t(quint64(a) - quint64(b));
}

/// Where a clip shows which of its frames: start and end on the sequence, and the clip's frame at the
/// start.
struct ClipRange {
    explicit ClipRange(XmlNode clip)
        : start(childInteger(clip, QStringLiteral("./start[1]")))
        , end(childInteger(clip, QStringLiteral("./end[1]")))
        , in(childInteger(clip, QStringLiteral("./in[1]")))
    {
    }

    std::int64_t fromSequence(std::int64_t position) const
    {
        if (position < start)
            return sum(1, in);
        return sum(position > end ? lastFrame() : difference(position, start), in);
    }

    std::int64_t fromClip(std::int64_t position) const
    {
        if (start == -1 || position < start)
            return sum(in, 1);
        return sum(end >= 0 && position > end ? lastFrame() : difference(position, start), in);
    }

    std::int64_t start;
    std::int64_t end;
    std::int64_t in;

private:
    std::int64_t lastFrame() const { return difference(difference(end, start), 1); }
};

} // namespace

void MarkerEditor::updateXMLMarker(const RowRecordPtr &record, const QString &key, const QString &value)
{
    updateXMLMarker(record, key, value, nullptr);
}

void MarkerEditor::updateXMLMarker(const RowRecordPtr &record, const QString &key, const QString &value,
                                   const XmlNodeList *markerList)
{
    guarded("MarkerEditor::updateXMLMarker", [&] {
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofColumn(key, 1));
        Candidates candidates(m_document, markerList);
        update(record, key, value, candidates);
    });
}

void MarkerEditor::update(const RowRecordPtr &record, const QString &key, const QString &typed,
                          Candidates &candidates)
{
    const QString value = typed.isNull() ? QStringLiteral("") : typed;
    QVLog::fastAppendLog(u"Updating XML marker key %@ with value %@", key, value);
    if (!m_document.xmlDoc()) {
        QVLog::appendLog(u"Unable to change setting. XML document cannot be found.");
        QVAlert::alertSheetWithMessageText(QStringLiteral("Unable to change setting"),
                                           QStringLiteral("XML document cannot be found."),
                                           m_document.interface().alertParent());
        return;
    }
    if (!isInProject(record->get(MarkerKey::markerElement)))
        return;
    m_document.willSet(record, RecordKey(key));
    const bool inComment = MarkerComment::isKeptInComment(key);
    const QString elementName = inComment ? MarkerKey::comment.text() : key;
    const QString text = inComment ? MarkerComment::textForEdit(*record, key, value) : value;
    QVLog::fastAppendLog(u"Marker comment: %@", text);

    XmlNode marker = record->get(MarkerKey::markerElement);
    if (!marker)
        marker = candidates.find(*record);
    if (marker)
        writeChild(marker, elementName, text);

    if (key == colorKey)
        record->set(MarkerKey::color, integerValue(value));
    else if (key == elementName)
        record->set(RecordKey(key), value);
    if (m_freeSlots)
        m_freeSlots->update(*record);
    m_document.markSequenceModified(record->get(MarkerKey::sequenceUUID));
}

/// Whether an edit of the element would be saved; an alert under that title says when not. True for a null
/// element.
bool MarkerEditor::isInProject(XmlNode element, const QString &alertTitle)
{
    if (!element || element.isAttached())
        return true;
    QVAlert::alertSheetWithMessageText(alertTitle, QStringLiteral("It was removed from the project."),
                                       m_document.interface().alertParent());
    return false;
}

void MarkerEditor::writeChild(XmlNode marker, const QString &name, const QString &text)
{
    const QByteArray elementName = name.toUtf8();
    XmlNode child = marker.childElement({elementName.constData(), std::size_t(elementName.size())});
    const bool isColor = name == colorKey;
    if (!child)
        child = XmlEdit::appendElement(marker, name, text);
    else if (!isColor)
        XmlEdit::setText(child, text);
    if (isColor)
        MarkerColors::setXMLMarkerColorIndex(integerValue(text), child);
}

void MarkerEditor::setXMLMarkerSequence(XmlNode sequence, XmlNode clip, const RowRecordPtr &record)
{
    const XmlNode marker = record->get(MarkerKey::markerElement);
    if (!marker || !m_document.xmlDoc())
        return;
    const XmlNode parent = clip ? clip : sequence;
    if (!isInProject(marker) || !isInProject(parent))
        return;
    const QString column = clip ? MarkerKey::clip.text() : MarkerKey::sequence.text();
    const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofColumn(column, 1));
    m_document.xmlDoc()->moveTo(marker, parent);
    if (sequence)
        m_document.markSequenceModified(sequences().infoOf(sequence).uuid.value_or(QString()));
}

QString MarkerEditor::inPointForObject(const RowRecord &record, XmlNode newParent, const QString &type)
{
    const bool fromClip = record.get(MarkerKey::clipIndex) >= 1;
    const bool toClip = type == QStringLiteral("clip");
    QVLog::appendLog(u"index: %i", record.get(MarkerKey::clipIndex));
    QVLog::appendLog(u"oldtype: %@", fromClip ? u"clip" : u"sequence");
    std::int64_t position = integerValue(record.get(MarkerKey::in));
    if (toClip) {
        const ClipRange range(newParent);
        position = fromClip ? range.fromClip(position) : range.fromSequence(position);
    } else if (fromClip) {
        position = sum(position, childInteger(newParent, QStringLiteral("./start[1]")));
    }
    return formatText(u"%i", position);
}

} // namespace vantrell
