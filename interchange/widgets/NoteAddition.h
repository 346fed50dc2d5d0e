#pragma once

#include "interchange/NoteImporter.h"
#include "rows/RowView.h"

#include <QObject>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vantrell
{

class MarkerEditor;
class MyDocument;

/// Adds notes to a document a few at a time, as one step to undo, so that the window goes on. Main thread;
/// the document and its editor outlive it.
class NoteAddition final : public QObject
{
    Q_OBJECT

public:
    /// The notes are added to the sequence of that item of the sequence menu.
    NoteAddition(MyDocument &document, MarkerEditor &editor, std::vector<PlannedNote> notes,
                 std::int64_t item, QObject *parent);

    /// Emits ended(), sooner or later, unless the document is closed before.
    void start();

    /// The rows that were added, and the notes with the reasons of those that could not be.
    const RowList &rows() const { return m_progress.added; }
    const std::vector<PlannedNote> &notes() const { return m_notes; }

Q_SIGNALS:
    /// `done` of the notes have been added.
    void progressed(std::size_t done, std::size_t total);
    void ended();

private:
    void addSome();

    MyDocument &m_document;
    const NoteImporter m_importer;
    std::vector<PlannedNote> m_notes;
    const std::int64_t m_item;
    NoteImporter::Progress m_progress;
    std::unique_ptr<RowView::Updates> m_updates; ///< the table shows them all at once
};

} // namespace vantrell
