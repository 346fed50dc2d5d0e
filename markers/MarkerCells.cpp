// Edits of the marker table's cells.

#include "document/DocumentEdit.h"
#include "markers/MarkerCandidates.h"
#include "markers/MarkerEditNames.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerOffset.h"
#include "support/log/QVException.h"
#include "support/text/TextFormat.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"
#include "xml/QVXMLParser.h"

namespace vantrell
{

namespace
{

void setOrRemove(RowRecord &record, const TypedKey<QString> &key, const std::optional<QString> &value)
{
    if (!value)
        record.remove(key);
    record.setIfThere(key, value);
}

/// A frame count as positions are written.
QString positionText(quint64 frames)
{
    return formatText(u"%i", frames);
}

/// In frames.
quint64 inPointOf(const QString &typed, const RowRecord &record)
{
    const QString timecode = QVTimecode::timecodeFromUserString(typed, record.get(TimecodeKey::dropFrame),
                                                                QStringLiteral("01:00:00:00"));
    return quint64(MyDocument::frameCountFromTimecode(timecode, record));
}

} // namespace

void MarkerEditor::setObjectValue(const QString &text, const QString &column)
{
    setValue(m_document.selectedRecords(Tab::Markers), column, text);
}

void MarkerEditor::setValue(const RowList &records, const QString &column, const QString &text)
{
    guarded("MarkerEditor::setValue", [&] {
        if (records.empty())
            return;
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofColumn(column, records.size()));
        if (column == MarkerKey::sequence.text()) {
            moveToSequence(records.front(), sequenceAt(integerValue(text)), integerValue(text));
            return;
        }
        if (column == MarkerKey::clip.text()) {
            moveToClip(records.front(), integerValue(text));
            return;
        }
        Candidates candidates(m_document, nullptr);
        for (const RowRecordPtr &record : records) {
            if (column == MarkerKey::in.text())
                setInPoint(record, text, candidates);
            else if (column == MarkerKey::out.text())
                setDuration(record, text, candidates);
            else
                update(record, column, text, candidates);
        }
    });
}

void MarkerEditor::setInPoint(const RowRecordPtr &record, const QString &text, Candidates &candidates)
{
    update(record, MarkerKey::in.text(), positionText(inPointOf(text, *record)), candidates);
}

void MarkerEditor::moveInPoints(const RowList &records, const QString &text)
{
    guarded("MarkerEditor::moveInPoints", [&] {
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofMoving(records.size()));
        Candidates candidates(m_document, nullptr);
        for (const RowRecordPtr &record : records) {
            const std::int64_t out = integerValue(record->get(MarkerKey::out));
            const quint64 in = inPointOf(text, *record);
            const quint64 moved = in - quint64(integerValue(record->get(MarkerKey::in)));
            update(record, MarkerKey::in.text(), positionText(in), candidates);
            if (out >= 0 && record->contains(MarkerKey::out))
                update(record, MarkerKey::out.text(), positionText(quint64(out) + moved), candidates);
        }
    });
}

void MarkerEditor::setDuration(const RowRecordPtr &record, const QString &text, Candidates &candidates)
{
    const bool dropFrame = record->get(TimecodeKey::dropFrame);
    const QString timecode =
        QVTimecode::timecodeFromUserString(text, dropFrame, QStringLiteral("00:00:00:00"));
    const quint64 duration = QVTimecode::frameCountFromTimecode(timecode, record->get(TimecodeKey::timebase),
                                                                record->get(TimecodeKey::ntsc), dropFrame, 0);
    const quint64 in = quint64(integerValue(record->get(MarkerKey::in)));
    const quint64 out = std::int64_t(duration) > 0 ? in + duration : quint64(-1);
    update(record, MarkerKey::out.text(), positionText(out), candidates);
}

void MarkerEditor::moveToSequence(const RowRecordPtr &record, XmlNode sequence, std::int64_t item)
{
    if (!sequence || !isInProject(record->get(MarkerKey::markerElement)) || !isInProject(sequence))
        return;
    m_document.willChange(record);
    updateXMLMarker(record, MarkerKey::in.text(),
                    inPointForObject(*record, sequence, QStringLiteral("sequence")));
    setXMLMarkerSequence(sequence, XmlNode(), record);
    const SequenceInfo &info = sequences().infoOf(sequence);
    if (item >= 1)
        record->set(MarkerKey::sequenceIndex, item);
    record->set(MarkerKey::sequence, sequence);
    setOrRemove(*record, MarkerKey::sequenceUUID, info.uuid);
    setOrRemove(*record, MarkerKey::sequenceName, info.name);
    info.timing.store(*record);
    for (const RecordKey &key :
         std::initializer_list<RecordKey>{MarkerKey::clip, MarkerKey::clipID, MarkerKey::clipUUID,
                                          MarkerKey::clipName, MarkerKey::clipIndex})
        record->remove(key);
    listUnderOwn(record);
    if (m_freeSlots)
        m_freeSlots->update(*record);
    reloadTable();
}

void MarkerEditor::moveToClip(const RowRecordPtr &record, std::int64_t item)
{
    const std::int64_t sequenceItem = record->get(MarkerKey::sequenceIndex);
    const XmlNode sequence = listsOwn() ? record->get(MarkerKey::sequence) : sequenceAt(sequenceItem);
    if (item < 1) {
        moveToSequence(record, sequence, sequenceItem);
        return;
    }
    const MenuPtr clips = m_document.clipMenuForSequence(sequence);
    const XmlNode clip =
        sequence && item < std::int64_t(clips->size()) ? (*clips)[std::size_t(item)].element : XmlNode();
    if (!clip) {
        reloadTable();
        return;
    }
    if (!isInProject(record->get(MarkerKey::markerElement)) || !isInProject(clip))
        return;
    m_document.willChange(record);
    const QString in = inPointForObject(*record, clip, QStringLiteral("clip"));
    updateXMLMarker(record, MarkerKey::in.text(), in);
    setXMLMarkerSequence(sequence, clip, record);
    if (listsOwn()) {
        listUnderOwn(record);
        reloadTable();
        return;
    }
    const std::optional<QString> name = QVXMLParser::nameForNode(clip);
    if (!name)
        return;
    record->set(MarkerKey::clipIndex, item);
    record->set(MarkerKey::clip, clip);
    setOrRemove(*record, MarkerKey::clipID, QVXMLParser::idAttributeForNode(clip));
    setOrRemove(*record, MarkerKey::clipUUID, QVXMLParser::uuidForNode(clip));
    record->set(MarkerKey::clipName, *name);
    SequenceTiming::ofFirstTexts(sequence).store(*record);
    record->set(MarkerKey::in, in);
    reloadTable();
}

bool MarkerEditor::listsOwn() const
{
    return m_inventory.ownerListing() == OwnerListing::Own;
}

/// Where markers are listed under their own sequence and clip: gives the record what a load would give it.
void MarkerEditor::listUnderOwn(const RowRecordPtr &record)
{
    if (!listsOwn())
        return;
    if (!m_ownerIndexes)
        m_ownerIndexes.emplace(m_document);
    const OwnOwner own = OwnOwner::ofMarkersIn(record->get(MarkerKey::markerElement).parent());
    const SequenceInfo &info = sequences().infoOf(own.sequence);
    RowRecord keys = own.sequenceKeys(*m_ownerIndexes, info.uuid, info.name);
    keys.merge(own.clipKeys(*m_ownerIndexes));
    for (const RecordKey &key : std::initializer_list<RecordKey>{
             MarkerKey::sequenceUUID, MarkerKey::sequenceName, MarkerKey::sequenceIndex, MarkerKey::clip,
             MarkerKey::clipID, MarkerKey::clipUUID, MarkerKey::clipName, MarkerKey::clipIndex}) {
        if (!keys.contains(key))
            record->remove(key);
    }
    record->merge(keys);
}

/// The sequence of a menu item; null for "(none)" and for what is no item.
XmlNode MarkerEditor::sequenceAt(std::int64_t item) const
{
    const MenuPtr menu = m_document.sequenceMenu();
    return item >= 1 && item < std::int64_t(menu->size()) ? (*menu)[std::size_t(item)].element : XmlNode();
}

void MarkerEditor::offsetMarkers(const QString &text)
{
    offset(m_document.selectedRecords(Tab::Markers), text, m_document.rowsOnShow(Tab::Markers));
}

void MarkerEditor::offset(const RowList &records, const QString &text, const RowList &table)
{
    guarded("MarkerEditor::offset", [&] {
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofOffset(records.size()));
        const quint64 frames = MarkerOffset::framesOf(text, table);
        Candidates candidates(m_document, nullptr);
        for (const RowRecordPtr &record : records) {
            const quint64 in = quint64(integerValue(record->get(MarkerKey::in)));
            update(record, MarkerKey::in.text(), positionText(in + frames), candidates);
        }
    });
}

void MarkerEditor::reloadTable()
{
    m_document.rowView(Tab::Markers).reload();
}

} // namespace vantrell
