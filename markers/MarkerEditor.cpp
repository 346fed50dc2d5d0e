// Adding and removing markers.

#include "markers/MarkerEditor.h"

#include "document/DocumentEdit.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerComment.h"
#include "markers/MarkerEditNames.h"
#include "markers/MarkerElement.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"
#include "support/text/TextFormat.h"
#include "timecode/QVTimecode.h"

#include <unordered_set>

namespace vantrell
{

namespace
{

const QString internalError = QStringLiteral("An internal error occurred; the log tells more.");

} // namespace

MarkerEditor::MarkerEditor(MyDocument &document, MarkerInventory &inventory)
    : m_document(document)
    , m_inventory(inventory)
{
    m_document.setRowFollower(Tab::Markers,
                              {[this](const MyDocument::RestoredRows &rows) { noteRestored(rows); },
                               [this] { m_inventory.populateMarkerData(); }});
}

MarkerEditor::~MarkerEditor()
{
    m_document.setRowFollower(Tab::Markers, {});
}

/// Keeps the free names and in points right, and the rows that are found by their elements.
void MarkerEditor::noteRestored(const MyDocument::RestoredRows &rows)
{
    if (!m_freeSlots || m_listGeneration != m_inventory.generation())
        return;
    for (const RowRecordPtr &record : rows.changed)
        m_freeSlots->update(*record);
    for (const RowRecordPtr &record : rows.added)
        noteListed(record);
    for (const RowRecordPtr &record : rows.removed)
        noteRemoved(record);
}

void MarkerEditor::noteListed(const RowRecordPtr &record)
{
    freeSlots().add(*record);
    if (m_rowIndex)
        m_rowIndex->add(record);
}

void MarkerEditor::noteRemoved(const RowRecordPtr &record)
{
    freeSlots().remove(*record);
    if (m_rowIndex)
        m_rowIndex->remove(*record);
}

void MarkerEditor::addMarker()
{
    guarded("MarkerEditor::addMarker", [this] {
        if (m_document.sequenceMenu()->size() < 2) {
            QVAlert::alertSheetWithMessageText(
                QStringLiteral("Unable to add marker"),
                QStringLiteral("You need at least one sequence in your project in order to add a marker."),
                m_document.interface().alertParent());
            return;
        }
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofAdding());
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
                                             std::optional<std::int64_t> parentItem, const Rejected &rejected)
{
    RowRecordPtr record;
    const bool ended = guarded("MarkerEditor::addMarkerWithName", [&] {
        record = addElement(name, inPoint, outPoint, comment, colorName, parentItem, rejected);
    });
    if (!ended && rejected)
        rejected(internalError);
    return record;
}

RowRecordPtr MarkerEditor::addMarkerWithName(const QString &name, const QString &startTimecode,
                                             const QString &durationTimecode, const QString &comment,
                                             const QString &colorName, std::optional<std::int64_t> parentItem,
                                             const Rejected &rejected)
{
    RowRecordPtr record;
    const bool ended = guarded("MarkerEditor::addMarkerWithName", [&] {
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
    if (!ended && rejected)
        rejected(internalError);
    return record;
}

RowRecordPtr MarkerEditor::addMarkerWithTexts(const QString &name, std::int64_t inPoint,
                                              std::int64_t outPoint, const QString &comment,
                                              const QString &colorName,
                                              std::optional<std::int64_t> parentItem,
                                              const Rejected &rejected)
{
    RowRecordPtr record;
    const bool ended = guarded("MarkerEditor::addMarkerWithTexts", [&] {
        record = addElement(name, inPoint, outPoint, comment, colorName, parentItem, rejected, true);
    });
    if (!ended && rejected)
        rejected(internalError);
    return record;
}

RowRecordPtr MarkerEditor::addElement(const QString &name, std::int64_t inPoint, std::int64_t outPoint,
                                      const QString &comment, const QString &colorName,
                                      std::optional<std::int64_t> parentItem, const Rejected &rejected,
                                      bool asTexts)
{
    XmlDocument *tree = m_document.xmlDoc();
    if (!tree)
        return nullptr;
    const int color = MarkerColors::indexOfName(colorName);
    const Result<XmlNode> made =
        asTexts ? MarkerElement::makeWithTexts(*tree, name, comment, color, inPoint, outPoint)
                : MarkerElement::make(*tree, name, comment, color, inPoint, outPoint);
    if (!made) {
        if (rejected)
            rejected(made.message());
        else
            QVAlert::alertSheetWithMessageText(QStringLiteral("Unable to create marker"), made.message(),
                                               m_document.interface().alertParent());
        return nullptr;
    }
    const XmlNode sequence = parentSequence(parentItem);
    if (!sequence)
        return nullptr;
    const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofAdding());
    sequences().append(made.value(), sequence);

    const SequenceInfo &info = sequences().infoOf(sequence);
    const auto record = std::make_shared<RowRecord>();
    record->set(MarkerKey::markerElement, made.value());
    record->set(MarkerKey::sequence, sequence);
    record->set(MarkerKey::sequenceIndex, 1);
    record->setIfThere(MarkerKey::sequenceUUID, info.uuid);
    record->setIfThere(MarkerKey::sequenceName, info.name);
    info.timing.store(*record);
    if (!name.isNull())
        record->set(MarkerKey::name, name);
    if (asTexts)
        MarkerComment::read(comment, *record);
    else if (!comment.isNull())
        record->set(MarkerKey::comment, comment);
    record->set(MarkerKey::color, color);
    record->set(MarkerKey::in, formatText(u"%i", inPoint));
    record->set(MarkerKey::out, formatText(u"%i", outPoint));
    listUnderOwn(record);
    addRecord(record);
    m_document.markSequenceModified(record->get(MarkerKey::sequenceUUID));
    return record;
}

XmlNode MarkerEditor::parentSequence(std::optional<std::int64_t> parentItem) const
{
    const bool isItem =
        parentItem && *parentItem >= 0 && *parentItem < std::int64_t(m_document.sequenceMenu()->size());
    return sequenceAt(isItem ? *parentItem : 1);
}

void MarkerEditor::addRecord(const RowRecordPtr &record)
{
    noteListed(record);
    m_document.appendRow(Tab::Markers, record);
}

void MarkerEditor::removeMarkers()
{
    if (remove(m_document.selectedRecords(Tab::Markers)))
        m_document.interface().selectRows(Tab::Markers, {});
}

RowList MarkerEditor::rowsOf(const RowList &records) const
{
    std::unordered_set<XmlNode> elements;
    for (const RowRecordPtr &record : records)
        elements.insert(record->get(MarkerKey::markerElement));
    elements.erase(XmlNode());
    RowList rows;
    for (const RowRecordPtr &row : m_document.markerArray()) {
        if (elements.contains(row->get(MarkerKey::markerElement)))
            rows.push_back(row);
    }
    return rows;
}

bool MarkerEditor::remove(const RowList &selected)
{
    bool isRemoved = false;
    guarded("MarkerEditor::remove", [&] {
        if (selected.empty())
            return;
        const bool one = selected.size() == 1;
        const std::uint64_t generation = m_document.rowView(Tab::Markers).generation();
        const int answer = QVAlert::alertSheetWithMessageText(
            formatText(u"Are you sure you wish to remove %@ marker%@?", one ? u"this" : u"these",
                       one ? u"" : u"s"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), QString(), QStringLiteral(""),
            m_document.interface().alertParent(), true);
        // The answer may come while the project is being saved, which began since.
        if (answer != AlertAnswer::Default ||
            m_document.refusesWhileSaving(QStringLiteral("Unable to remove marker")))
            return;
        // The markers may have been listed anew meanwhile.
        const bool isListed = m_document.rowView(Tab::Markers).generation() == generation;
        const RowList records = isListed ? selected : rowsOf(selected);
        if (records.empty())
            return;
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofRemoving(records.size()));
        for (const RowRecordPtr &record : records) {
            removeXMLMarker(record);
            noteRemoved(record);
        }
        m_document.removeRows(Tab::Markers, records);
        m_inventory.populateFilteredMarkerData();
        isRemoved = true;
    });
    return isRemoved;
}

void MarkerEditor::dropRemovedMarkers(const XmlNodeList &markers)
{
    RowList removed;
    for (const XmlNode marker : markers) {
        const RowRecordPtr record = rowIndex().rowOf(marker);
        if (!record)
            continue;
        noteRemoved(record);
        removed.push_back(record);
    }
    if (removed.empty())
        return;
    const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofRemoving(removed.size()));
    m_document.removeRows(Tab::Markers, removed);
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
    const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofRemoving(1));
    tree->remove(marker);
    m_document.markSequenceModified(record->get(MarkerKey::sequenceUUID));
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
    if (!m_freeSlots || m_listGeneration != m_inventory.generation()) {
        m_freeSlots.emplace().reset(m_document.markerArray());
        m_rowIndex.reset();
        m_listGeneration = m_inventory.generation();
    }
    return *m_freeSlots;
}

MarkerRowIndex &MarkerEditor::rowIndex()
{
    freeSlots(); // both are of the same list
    if (!m_rowIndex)
        m_rowIndex.emplace(m_document.markerArray());
    return *m_rowIndex;
}

} // namespace vantrell
