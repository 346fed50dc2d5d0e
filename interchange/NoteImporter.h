#pragma once

#include "interchange/notes/NotePlan.h"
#include "rows/RowRecord.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell
{

class MarkerEditor;
class MyDocument;

/// Adds notes to a sequence of a document. Main thread.
class NoteImporter
{
public:
    /// Both outlive the importer.
    NoteImporter(MyDocument &document, MarkerEditor &editor)
        : m_document(document)
        , m_editor(editor)
    {
    }

    /// The item of the sequence menu, counted from 1, that a text names: a title of the menu, else its
    /// number. Nothing when there is none.
    std::optional<std::int64_t> sequenceNamed(const QString &text) const;
    /// The item whose title stands in the name of the list's file, between characters that are neither
    /// letters nor digits; the longest of several. Without one the item that is titled as the list is, else
    /// the first. Nothing without sequences.
    std::optional<std::int64_t> guessedSequence(const QString &path, const NoteList &list) const;
    /// The same without the first one for want of another.
    std::optional<std::int64_t> sequenceNamedBy(const QString &path, const NoteList &list) const;
    /// Whether guessedSequence() goes by the file's name or the title.
    bool isSequenceNamedBy(const QString &path, const NoteList &list) const;

    /// What notes need to know of the item's sequence, and the markers that are in it, not those of its
    /// clips.
    NoteSequence sequenceAt(std::int64_t item) const;
    NoteMatches matchesOf(std::int64_t item) const;

    /// Adds those notes whose state says so to the item's sequence, in their order, with names and comments
    /// as they are. What cannot be added becomes unreadable, with the reason. Returns how many were added.
    std::size_t add(std::vector<PlannedNote> &notes, std::int64_t item) const;

    /// The progress of adding in several steps.
    struct Progress {
        std::size_t next = 0;    ///< index of the next note
        RowList added;           ///< the rows of the markers so far
        std::uint64_t group = 0; ///< of the edits, which are one step to undo
    };
    /// The same from `progress` on until all are added or the time is up, at least one note. Stops when the
    /// document is being closed. False when it cannot go on.
    bool addSome(std::vector<PlannedNote> &notes, std::int64_t item, Progress &progress,
                 std::optional<std::chrono::milliseconds> limit) const;

private:
    RowRecordPtr added(PlannedNote &note, std::int64_t item) const;

    MyDocument &m_document;
    MarkerEditor &m_editor;
};

} // namespace vantrell
