// Adding markers at chosen places, and copies of others.

#include "document/DocumentEdit.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerEditNames.h"
#include "markers/MarkerEditor.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "support/log/QVException.h"
#include "support/text/TextFormat.h"

#include <algorithm>

namespace vantrell
{

RowRecordPtr MarkerEditor::addMarkerAt(std::int64_t sequenceItem, const NewMarker &marker)
{
    RowRecordPtr record;
    guarded("MarkerEditor::addMarkerAt", [&] {
        if (!sequenceAt(sequenceItem))
            return;
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofAdding());
        const int color = std::clamp(marker.color, 0, int(MarkerColors::count) - 1);
        record = addElement(marker.name, marker.inPoint, marker.outPoint, marker.comment,
                            MarkerColors::table()[std::size_t(color)].name, sequenceItem, {}, true);
        if (!record || listsOwn())
            return;
        m_document.willSet(record, MarkerKey::sequenceIndex);
        record->set(MarkerKey::sequenceIndex, sequenceItem);
        freeSlots().update(*record);
    });
    return record;
}

QString MarkerEditor::freeName()
{
    return formatText(u"Marker %i", freeSlots().firstFreeNumber());
}

RowList MarkerEditor::duplicate(const RowList &records)
{
    RowList copies;
    guarded("MarkerEditor::duplicate", [&] {
        XmlDocument *const tree = m_document.xmlDoc();
        if (!tree)
            return;
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofDuplicating(records.size()));
        for (const RowRecordPtr &record : records) {
            const XmlNode marker = record->get(MarkerKey::markerElement);
            if (!marker || !marker.isAttached())
                continue;
            const XmlNode element = tree->copyOfElement(marker);
            tree->moveTo(element, marker.parent());
            const auto copy = std::make_shared<RowRecord>(*record);
            copy->set(MarkerKey::markerElement, element);
            addRecord(copy);
            copies.push_back(copy);
            m_document.markSequenceModified(record->get(MarkerKey::sequenceUUID));
        }
    });
    return copies;
}

} // namespace vantrell
