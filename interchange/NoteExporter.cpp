#include "interchange/NoteExporter.h"

#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerTableValues.h"
#include "support/text/TextNumbers.h"

#include <algorithm>

namespace vantrell
{

namespace
{

void setFields(WrittenNote &note, const RowRecord &marker)
{
    for (std::size_t i = 0; i < marker.size(); ++i) {
        const RecordKey key = marker.keyAt(i);
        if (!key.isConstant() && key.text().startsWith(MarkerKey::customPrefix))
            note.fields.emplace_back(key.text().sliced(MarkerKey::customPrefix.size()), marker.text(key));
    }
}

WrittenNote noteOf(const RowRecord &marker)
{
    WrittenNote note;
    note.name = marker.get(MarkerKey::name);
    note.comment = marker.get(MarkerKey::comment).trimmed();
    note.time = MarkerTableValues::inText(marker);
    note.duration = MarkerTableValues::outText(marker);
    note.in = intValue(marker.get(MarkerKey::in));
    const std::int64_t out = integerValue(marker.get(MarkerKey::out));
    note.length = out < 0 ? 0 : std::max<qint64>(out - note.in, 0);
    note.endTime =
        MyDocument::timecodeFromFrameCount(std::int32_t(note.in + std::max<qint64>(note.length, 1)), marker);
    note.color = int(marker.get(MarkerKey::color));
    note.sequence = marker.get(MarkerKey::sequenceName);
    note.clip = marker.get(MarkerKey::clipName);
    note.rate = NoteRate::ofSequence(marker.get(TimecodeKey::timebase), marker.get(TimecodeKey::ntsc),
                                     marker.get(TimecodeKey::dropFrame));
    note.isChapter = marker.get(MarkerKey::chapter) == 1;
    note.isCompression = marker.get(MarkerKey::compression) == 1;
    note.isScoring = marker.get(MarkerKey::scoring) == 1;
    setFields(note, marker);
    return note;
}

bool holds(const RowRecord &marker, const QString &search)
{
    QStringList texts{MarkerTableValues::inText(marker), MarkerTableValues::outText(marker)};
    appendMarkerTexts(marker, texts);
    return std::any_of(texts.begin(), texts.end(),
                       [&search](const QString &text) { return text.contains(search, Qt::CaseInsensitive); });
}

} // namespace

RowList NoteExporter::markers(const Filter &filter) const
{
    return markers(m_document.markerArray(), filter);
}

RowList NoteExporter::markers(const RowList &rows, const Filter &filter) const
{
    const MenuPtr menu = m_document.sequenceMenu();
    RowList taken;
    for (const RowRecordPtr &marker : rows) {
        if (filter.color && marker->get(MarkerKey::color) != *filter.color)
            continue;
        if (filter.sequence &&
            !(marker->get(MarkerKey::sequence) == menu->at(std::size_t(*filter.sequence)).element))
            continue;
        if (filter.flag && !hasFlag(*marker, *filter.flag))
            continue;
        if (!filter.search.isEmpty() && !holds(*marker, filter.search))
            continue;
        taken.push_back(marker);
    }
    return taken;
}

std::vector<WrittenNote> NoteExporter::notes(const RowList &markers)
{
    std::vector<WrittenNote> notes;
    notes.reserve(markers.size());
    for (const RowRecordPtr &marker : markers)
        notes.push_back(noteOf(*marker));
    return notes;
}

QStringList NoteExporter::columnTitles(const RowList &markers)
{
    std::vector<WrittenNote> fields(markers.size());
    for (std::size_t i = 0; i < markers.size(); ++i)
        setFields(fields[i], *markers[i]);
    return NoteWriter::columnTitles(fields);
}

NoteWriter::Written NoteExporter::list(const QString &format, const RowList &markers,
                                       const QStringList &columns) const
{
    return NoteWriter::write(format, notes(markers), columns);
}

} // namespace vantrell
