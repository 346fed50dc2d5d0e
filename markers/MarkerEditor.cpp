// Adding and removing markers.

#include "markers/MarkerEditor.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerElement.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"
#include "support/text/TextFormat.h"
#include "timecode/QVTimecode.h"
#include "xml/QVXMLParser.h"

#include <functional>

namespace vantrell
{

MarkerEditor::MarkerEditor(MyDocument &document, MarkerInventory &inventory)
    : m_document(document)
    , m_inventory(inventory)
{
}

void MarkerEditor::addMarker()
{
    guarded("-[MyDocument addMarker:]", [this] {
        if (m_document.sequenceMenu()->size() < 2) {
            QVAlert::alertSheetWithMessageText(
                QStringLiteral("Unable to add marker"),
                QStringLiteral("You need at least one sequence in your project in order to add a marker."),
                m_document.interface().alertParent());
            return;
        }
        const QString name = formatText(u"Marker %i", freeSlots().firstFreeNumber());
        const RowRecordPtr record = addMarkerWithName(name, freeSlots().firstFreeInPoint(), -1,
                                                      QStringLiteral(""), QStringLiteral("red"));
        const RowList &rows = m_document.rowsOnShow(Tab::Markers);
        if (!record || rows.empty() || rows.back() != record)
            return;
        const std::size_t row = rows.size() - 1;
        m_document.interface().selectRows(Tab::Markers, {row});
        m_document.interface().editCell(Tab::Markers, row, QStringLiteral("name"));
    });
}

RowRecordPtr MarkerEditor::addMarkerWithName(const QString &name, std::int64_t inPoint, std::int64_t outPoint,
                                             const QString &comment, const QString &colorName,
                                             const MenuItem *parentItem, const Rejected &rejected)
{
    RowRecordPtr record;
    guarded("-[MyDocument addMarkerWithName:inPoint:outPoint:comment:colorName:parentName:]",
            [&] { record = addElement(name, inPoint, outPoint, comment, colorName, parentItem, rejected); });
    return record;
}

RowRecordPtr MarkerEditor::addMarkerWithName(const QString &name, const QString &startTimecode,
                                             const QString &durationTimecode, const QString &comment,
                                             const QString &colorName, const MenuItem *parentItem,
                                             const Rejected &rejected)
{
    RowRecordPtr record;
    guarded("-[MyDocument addMarkerWithName:startTimecode:durationTimecode:comment:colorName:parentName:]",
            [&] {
                const XmlNode sequence = parentSequence(parentItem);
                if (!sequence)
                    return;
                const SequenceTiming timing = sequences().infoOf(sequence).timing;
                const auto frames = [&timing](const QString &timecode) {
                    return QVTimecode::frameCountFromTimecode(timecode, timing.timebase, timing.ntsc,
                                                              timing.dropFrame, quint64(timing.startFrame));
                };
                const quint64 in = frames(startTimecode);
                const quint64 duration = frames(durationTimecode);
                const std::int64_t out = std::int64_t(duration) < 1 ? -1 : std::int64_t(in + duration);
                record = addElement(name, std::int64_t(in), out, comment, colorName, parentItem, rejected);
            });
    return record;
}

RowRecordPtr MarkerEditor::addElement(const QString &name, std::int64_t inPoint, std::int64_t outPoint,
                                      const QString &comment, const QString &colorName,
                                      const MenuItem *parentItem, const Rejected &rejected)
{
    XmlDocument *tree = m_document.xmlDoc();
    if (!tree)
        return nullptr;
    const Result<XmlNode> made = MarkerElement::make(*tree, name, comment, inPoint, outPoint);
    if (!made) {
        if (rejected)
            rejected(made.message());
        else
            QVAlert::alertSheetWithMessageText(QStringLiteral("Unable to create marker"), made.message(),
                                               m_document.interface().alertParent());
        return nullptr;
    }
    const XmlNode marker = made.value();
    const int color = MarkerColors::indexOfName(colorName);
    sequences().synchronize();
    if (color > 0)
        MarkerColors::setXMLMarkerColorIndex(color, marker.childElement("color"));
    const XmlNode sequence = parentSequence(parentItem);
    if (!sequence) {
        sequences().didChange();
        return nullptr;
    }
    tree->moveTo(marker, sequence);
    sequences().didAppend(marker, sequence);

    const SequenceInfo &info = sequences().infoOf(sequence);
    const auto record = std::make_shared<RowRecord>();
    record->set(MarkerKey::markerElement, marker);
    record->set(MarkerKey::sequence, sequence);
    record->set(MarkerKey::sequenceIndex, 1);
    if (!info.uuid.isNull())
        record->set(MarkerKey::sequenceUUID, info.uuid);
    if (!info.name.isNull())
        record->set(MarkerKey::sequenceName, info.name);
    info.timing.store(*record);
    if (!name.isNull())
        record->set(MarkerKey::name, name);
    if (!comment.isNull())
        record->set(MarkerKey::comment, comment);
    record->set(MarkerKey::color, color);
    record->set(MarkerKey::in, formatText(u"%i", inPoint));
    record->set(MarkerKey::out, formatText(u"%i", outPoint));
    listUnderOwn(record);
    addRecord(record);
    noteSequenceChanged(record->get(MarkerKey::sequenceUUID));
    return record;
}

/// The index of the item, or 1 when it is no item of the sequence menu.
std::int64_t MarkerEditor::parentIndex(const MenuItem *parentItem) const
{
    const MenuPtr menu = m_document.sequenceMenu();
    const MenuItem *first = menu->data();
    const bool isItem =
        std::greater_equal<>()(parentItem, first) && std::less<>()(parentItem, first + menu->size());
    return isItem ? parentItem - first : 1;
}

XmlNode MarkerEditor::parentSequence(const MenuItem *parentItem) const
{
    const MenuPtr menu = m_document.sequenceMenu();
    const auto index = std::size_t(parentIndex(parentItem));
    return index < menu->size() ? (*menu)[index].element : XmlNode();
}

void MarkerEditor::addRecord(const RowRecordPtr &record)
{
    freeSlots().add(*record);
    m_document.rowView(Tab::Markers).append(record);
}

void MarkerEditor::removeMarkers()
{
    guarded("-[MyDocument removeMarkers:]", [this] {
        const RowList rows = selectedRecords();
        if (rows.empty())
            return;
        const bool one = rows.size() == 1;
        const int answer = QVAlert::alertSheetWithMessageText(
            formatText(u"Are you sure you wish to remove %@ marker%@?", one ? u"this" : u"these",
                       one ? u"" : u"s"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), QString(), QStringLiteral(""),
            m_document.interface().alertParent(), true);
        // The answer may come while the project is being saved, which began since.
        if (answer != AlertAnswer::Default ||
            m_document.refusesWhileSaving(QStringLiteral("Unable to remove marker")))
            return;
        removeRows(rows);
        m_inventory.populateFilteredMarkerData();
        m_document.interface().selectRows(Tab::Markers, {});
    });
}

void MarkerEditor::removeRows(const RowList &rows)
{
    for (const RowRecordPtr &record : rows) {
        removeXMLMarker(record);
        freeSlots().remove(*record);
    }
    m_document.rowView(Tab::Markers).remove(rows);
}

void MarkerEditor::dropRemovedMarkers()
{
    RowList kept;
    for (const RowRecordPtr &record : m_document.markerArray()) {
        const XmlNode marker = record->get(MarkerKey::markerElement);
        if (!marker || marker.isAttached())
            kept.push_back(record);
        else
            freeSlots().remove(*record);
    }
    if (kept.size() == m_document.markerArray().size())
        return;
    m_document.rowView(Tab::Markers).setList(std::move(kept));
    if (m_document.tableTab() == Tab::Markers)
        m_inventory.populateFilteredMarkerData();
}

void MarkerEditor::removeXMLMarker(const RowRecordPtr &record)
{
    XmlDocument *tree = m_document.xmlDoc();
    if (!tree) {
        QVAlert::alertSheetWithMessageText(QStringLiteral("Unable to remove marker"),
                                           QStringLiteral("XML document cannot be found."),
                                           m_document.interface().alertParent());
        return;
    }
    const XmlNode marker = record->get(MarkerKey::markerElement);
    if (!isInProject(marker, QStringLiteral("Unable to remove marker")))
        return;
    sequences().willDetach(marker);
    tree->remove(marker);
    sequences().didChange();
    noteSequenceChanged(record->get(MarkerKey::sequenceUUID));
}

void MarkerEditor::noteSequenceChanged(const QString &uuid)
{
    if (!uuid.isNull() && !m_document.isSequenceModified(uuid))
        m_document.addModifiedSequenceUUID(uuid);
    m_document.updateChangeCount();
}

/// Only with a tree.
SequenceInfoCache &MarkerEditor::sequences()
{
    if (!m_sequences)
        m_sequences.emplace(*m_document.xmlDoc());
    return *m_sequences;
}

FreeMarkerSlots &MarkerEditor::freeSlots()
{
    if (!m_freeSlots || m_slotsGeneration != m_inventory.generation()) {
        m_freeSlots.emplace().reset(m_document.markerArray());
        m_slotsGeneration = m_inventory.generation();
    }
    return *m_freeSlots;
}

RowList MarkerEditor::selectedRecords() const
{
    RowList records;
    const RowList &rows = m_document.rowsOnShow(Tab::Markers);
    for (const std::size_t row : m_document.interface().selectedRows(Tab::Markers)) {
        if (row < rows.size())
            records.push_back(rows[row]);
    }
    return records;
}

} // namespace vantrell
