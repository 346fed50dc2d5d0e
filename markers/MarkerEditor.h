#pragma once

#include "document/MyDocument.h"
#include "markers/FreeMarkerSlots.h"
#include "markers/MarkerRowIndex.h"
#include "markers/OwnerIndexes.h"
#include "markers/SequenceInfoCache.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace vantrell
{

class MarkerInventory;

/// Every change to markers: writes it into the tree, keeps the records in step, and marks the sequence
/// and the document changed. Main thread, once every inventory of the document has ended.
///
/// What takes records changes those, in their order, whatever is selected or on show. The actions of the
/// window pass the selected records.
class MarkerEditor
{
public:
    /// Both outlive the editor.
    MarkerEditor(MyDocument &document, MarkerInventory &inventory);
    ~MarkerEditor();
    MarkerEditor(const MarkerEditor &) = delete;
    MarkerEditor &operator=(const MarkerEditor &) = delete;

    // Adding

    /// The Add button: a new marker with a free name at a free in point of the first sequence, its name
    /// ready to be edited.
    void addMarker();

    /// How the next functions tell why a marker cannot be made.
    using Rejected = std::function<void(const QString &reason)>;

    /// Adds a marker with its in and out point in frames, of which the low 32 bits count. A null comment
    /// is none. The marker goes to the sequence of that item of the sequence menu; without one (nothing), or
    /// with an index beyond the menu, to the first sequence. Null when there is no such sequence, and when
    /// the name or comment breaks the XML that the marker is made from or adds to it: then `rejected` is
    /// told why; without it (empty) an alert.
    RowRecordPtr addMarkerWithName(const QString &name, std::int64_t inPoint, std::int64_t outPoint,
                                   const QString &comment, const QString &colorName,
                                   std::optional<std::int64_t> parentItem = std::nullopt,
                                   const Rejected &rejected = {});
    /// The same with timecodes of that sequence. A duration of less than one frame is none.
    RowRecordPtr addMarkerWithName(const QString &name, const QString &startTimecode,
                                   const QString &durationTimecode, const QString &comment,
                                   const QString &colorName,
                                   std::optional<std::int64_t> parentItem = std::nullopt,
                                   const Rejected &rejected = {});
    /// The same in frames with the name and comment as texts: characters that mean something in XML stay as
    /// they are, and tags in the comment are read as in a file.
    RowRecordPtr addMarkerWithTexts(const QString &name, std::int64_t inPoint, std::int64_t outPoint,
                                    const QString &comment, const QString &colorName,
                                    std::optional<std::int64_t> parentItem, const Rejected &rejected = {});

    /// A marker to be added: points in frames, the out point negative for none, and its texts.
    struct NewMarker {
        QString name;
        std::int64_t inPoint = 0;
        std::int64_t outPoint = -1;
        QString comment = QStringLiteral("");
        int color = 0; ///< index in MarkerColors::table()
    };
    /// Adds the marker to the sequence of that item of the sequence menu, as addMarkerWithTexts() does, and
    /// lists it under that sequence. Null, and nothing changed, when there is no such sequence.
    RowRecordPtr addMarkerAt(std::int64_t sequenceItem, const NewMarker &marker);
    /// The name that the next marker gets when the user gives none.
    QString freeName();
    /// Adds a copy of each marker behind those of its parent, at the same place. The copies; markers that are
    /// no longer in the project have none.
    RowList duplicate(const RowList &records);

    // Removing

    /// Removes the markers when the user agrees. False, and nothing changed, when not, while the project is
    /// being saved and without records.
    bool remove(const RowList &records);
    /// The Remove button: the same with the selected rows, which leaves none selected.
    void removeMarkers();
    /// Drops the rows of those marker elements, which went with an effect.
    void dropRemovedMarkers(const XmlNodeList &markers);
    /// Takes the record's element out of the tree; the lists stay as they are.
    void removeXMLMarker(const RowRecordPtr &record);

    // Changing

    /// Writes a value into the record and its element. A record without an element changes the first
    /// marker of the tree that fits its values.
    void updateXMLMarker(const RowRecordPtr &record, const QString &key, const QString &value);
    /// The same, looking for the element of a record without one in the list; null for all markers.
    void updateXMLMarker(const RowRecordPtr &record, const QString &key, const QString &value,
                         const XmlNodeList *markerList);

    /// Moves the record's element under the clip, or under the sequence when that is null.
    void setXMLMarkerSequence(XmlNode sequence, XmlNode clip, const RowRecordPtr &record);

    /// The in point in frames that the marker gets in a new parent of the type "sequence" or "clip".
    static QString inPointForObject(const RowRecord &record, XmlNode newParent, const QString &type);

    /// Moves the in points by frames or, when the text holds one of ":;,.", by a timecode. That counts at the
    /// rate of the first row of the table, whether it is moved or not; at 29.97 frames in an empty one.
    void offset(const RowList &records, const QString &text, const RowList &table);
    /// The sheet's button: the same with the selected rows of those on show.
    void offsetMarkers(const QString &text);

    /// Moves the in points to what was typed into such a cell, and the out points along: durations stay.
    void moveInPoints(const RowList &records, const QString &text);

    /// Edits the column's cell of the records, as typed. For "sequence" and "clip" the text is an index in
    /// the cell's menu, and only the first record changes.
    void setValue(const RowList &records, const QString &column, const QString &text);
    /// The same with the selected rows.
    void setObjectValue(const QString &text, const QString &column);

private:
    /// The markers to look through for records without an element, found when first needed.
    class Candidates;

    RowRecordPtr addElement(const QString &name, std::int64_t inPoint, std::int64_t outPoint,
                            const QString &comment, const QString &colorName,
                            std::optional<std::int64_t> parentItem, const Rejected &rejected,
                            bool asTexts = false);
    XmlNode parentSequence(std::optional<std::int64_t> parentItem) const;
    void addRecord(const RowRecordPtr &record);
    void noteRestored(const MyDocument::RestoredRows &rows);
    void noteListed(const RowRecordPtr &record);
    void noteRemoved(const RowRecordPtr &record);
    /// The rows of the list with the elements of those records.
    RowList rowsOf(const RowList &records) const;

    void update(const RowRecordPtr &record, const QString &key, const QString &value, Candidates &candidates);
    void writeChild(XmlNode marker, const QString &name, const QString &text);

    void setInPoint(const RowRecordPtr &record, const QString &text, Candidates &candidates);
    void setDuration(const RowRecordPtr &record, const QString &text, Candidates &candidates);
    bool isInProject(XmlNode element, const QString &alertTitle = QStringLiteral("Unable to change setting"));
    bool listsOwn() const;
    void listUnderOwn(const RowRecordPtr &record);
    void moveToSequence(const RowRecordPtr &record, XmlNode sequence, std::int64_t item);
    void moveToClip(const RowRecordPtr &record, std::int64_t item);
    XmlNode sequenceAt(std::int64_t item) const;
    void reloadTable();

    SequenceInfoCache &sequences();
    FreeMarkerSlots &freeSlots();
    MarkerRowIndex &rowIndex();

    MyDocument &m_document;
    MarkerInventory &m_inventory;
    std::optional<SequenceInfoCache> m_sequences;
    std::optional<OwnerIndexes> m_ownerIndexes;
    std::optional<FreeMarkerSlots> m_freeSlots;
    std::optional<MarkerRowIndex> m_rowIndex;
    std::uint64_t m_listGeneration = 0; // of the list that these two were made from
};

} // namespace vantrell
