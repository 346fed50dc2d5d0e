#include "interchange/NoteImporter.h"

#include "document/DocumentEdit.h"
#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerEditNames.h"
#include "markers/MarkerEditor.h"
#include "markers/MarkerFields.h"
#include "markers/MarkerKeys.h"
#include "markers/SequenceTiming.h"
#include "support/log/QVException.h"
#include "support/text/TextNumbers.h"

#include <QFileInfo>

#include <algorithm>

namespace vantrell
{

namespace
{

/// Whether the name stands in the text as words of its own, in whatever case.
bool holdsWords(const QString &text, const QString &name)
{
    if (name.isEmpty())
        return false;
    for (qsizetype at = text.indexOf(name, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(name, at + 1, Qt::CaseInsensitive)) {
        const qsizetype end = at + name.size();
        if ((at == 0 || !text.at(at - 1).isLetterOrNumber()) &&
            (end == text.size() || !text.at(end).isLetterOrNumber()))
            return true;
    }
    return false;
}

/// The custom fields by their names. Titles may have the same name; what stands under them is joined.
std::vector<std::pair<QString, QString>> fieldsOf(const PlannedNote &note)
{
    std::vector<std::pair<QString, QString>> fields;
    for (const auto &[title, value] : note.fields) {
        const QString name = MarkerFields::formatMarkerFieldName(title);
        const auto same = std::find_if(fields.begin(), fields.end(),
                                       [&name](const auto &field) { return field.first == name; });
        if (same == fields.end())
            fields.emplace_back(name, value);
        else
            same->second +=
                (same->second.isEmpty() || value.isEmpty() ? QString() : QStringLiteral(", ")) + value;
    }
    return fields;
}

} // namespace

std::optional<std::int64_t> NoteImporter::sequenceNamed(const QString &text) const
{
    const MenuPtr menu = m_document.sequenceMenu();
    for (std::size_t i = 1; i < menu->size(); ++i) {
        if ((*menu)[i].title == text)
            return std::int64_t(i);
    }
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber && number >= 1 && number < qlonglong(menu->size()))
        return number;
    return std::nullopt;
}

std::optional<std::int64_t> NoteImporter::sequenceNamedBy(const QString &path, const NoteList &list) const
{
    const QString file = QFileInfo(path).completeBaseName();
    const MenuPtr menu = m_document.sequenceMenu();
    std::optional<std::int64_t> found;
    qsizetype longest = 0;
    for (std::size_t i = 1; i < menu->size(); ++i) {
        const QString &title = (*menu)[i].title;
        if (title.size() > longest && holdsWords(file, title)) {
            longest = title.size();
            found = std::int64_t(i);
        }
    }
    for (std::size_t i = 1; i < menu->size() && !found && !list.title.isEmpty(); ++i) {
        if ((*menu)[i].title.compare(list.title, Qt::CaseInsensitive) == 0)
            found = std::int64_t(i);
    }
    return found;
}

bool NoteImporter::isSequenceNamedBy(const QString &path, const NoteList &list) const
{
    return sequenceNamedBy(path, list).has_value();
}

std::optional<std::int64_t> NoteImporter::guessedSequence(const QString &path, const NoteList &list) const
{
    if (const std::optional<std::int64_t> found = sequenceNamedBy(path, list))
        return found;
    return m_document.sequenceMenu()->size() > 1 ? std::optional<std::int64_t>(1) : std::nullopt;
}

NoteSequence NoteImporter::sequenceAt(std::int64_t item) const
{
    const XmlNode element = m_document.sequenceMenu()->at(std::size_t(item)).element;
    const SequenceTiming timing = SequenceTiming::ofFirstElements(element);
    NoteSequence sequence;
    sequence.rate = NoteRate::ofSequence(timing.timebase, timing.ntsc, timing.dropFrame);
    sequence.startFrame = timing.startFrame;
    const std::int64_t duration = integerValue(element.childElement("duration").stringValue());
    if (duration > 0)
        sequence.duration = duration;
    return sequence;
}

NoteMatches NoteImporter::matchesOf(std::int64_t item) const
{
    const XmlNode element = m_document.sequenceMenu()->at(std::size_t(item)).element;
    NoteMatches matches;
    for (const RowRecordPtr &marker : m_document.markerArray()) {
        if (marker->get(MarkerKey::markerElement).parent() == element)
            matches.add(integerValue(marker->get(MarkerKey::in)), marker->get(MarkerKey::name),
                        marker->get(MarkerKey::comment));
    }
    return matches;
}

/// The row of its marker; null, with the reason in the note, when it cannot be added.
RowRecordPtr NoteImporter::added(PlannedNote &note, std::int64_t item) const
{
    QString reason = QStringLiteral("There is no sequence to add it to.");
    const RowRecordPtr record =
        m_editor.addMarkerWithTexts(note.name, note.in, note.duration > 0 ? note.in + note.duration : -1,
                                    note.comment, MarkerColors::table()[std::size_t(note.color)].name, item,
                                    [&reason](const QString &given) { reason = given; });
    if (!record) {
        note.state = PlannedNote::State::Unreadable;
        note.reason = reason;
        return nullptr;
    }
    if (note.isChapter)
        m_editor.updateXMLMarker(record, MarkerKey::chapter.text(), QStringLiteral("1"));
    for (const auto &[name, value] : fieldsOf(note))
        m_editor.updateXMLMarker(record, name, value);
    return record;
}

std::size_t NoteImporter::add(std::vector<PlannedNote> &notes, std::int64_t item) const
{
    Progress progress;
    addSome(notes, item, progress, std::nullopt);
    return progress.added.size();
}

bool NoteImporter::addSome(std::vector<PlannedNote> &notes, std::int64_t item, Progress &progress,
                           std::optional<std::chrono::milliseconds> limit) const
{
    const auto start = std::chrono::steady_clock::now();
    if (progress.group == 0)
        progress.group = m_document.newEditGroup();
    return guarded("NoteImporter::addSome", [&] {
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofImport(), progress.group);
        const RowView::Updates updates(m_document.rowView(Tab::Markers));
        while (progress.next < notes.size() && !m_document.isClosing()) {
            PlannedNote &note = notes[progress.next++];
            if (note.state != PlannedNote::State::Add)
                continue;
            if (const RowRecordPtr record = added(note, item))
                progress.added.push_back(record);
            if (limit && std::chrono::steady_clock::now() - start >= *limit)
                break;
        }
    });
}

} // namespace vantrell
