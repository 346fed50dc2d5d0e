#pragma once

#include "document/widgets/WindowPart.h"
#include "interchange/NoteSource.h"
#include "support/files/Result.h"

#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QMimeData;

namespace vantrell
{

class ExportNotesSheet;
class NoteAddition;
class NotePreview;
class NotePreviewSheet;
class UserDefaults;
class WindowMarkerLists;

/// Imports and exports notes for the document of a window, which owns it. Several lists are shown one after
/// the other. Main thread.
class WindowNotes final : private WindowPart
{
    Q_DECLARE_TR_FUNCTIONS(vantrell::WindowNotes)

public:
    /// The lists and the defaults outlive this object.
    WindowNotes(const WindowPart &part, WindowMarkerLists &lists, UserDefaults &defaults)
        : WindowPart(part)
        , m_lists(lists)
        , m_defaults(defaults)
    {
    }

    void runOpenPanel();
    void importFiles(const QStringList &paths);
    void importClipboard();
    /// Imports those of the files that are lists and hands on the others to be opened.
    void takeDropped(const QStringList &paths);
    void exportNotes();
    /// The document is going: ends what works on it.
    void close();

private:
    struct Export;

    bool mayImport();
    void importNext();
    void read(const QString &title, std::function<Result<NoteSource>()> read);
    std::int64_t selectedSequence() const;
    void show(const NoteSource &source);
    void tellUnusable(const QString &name, const QString &reason);
    void add(const NotePreview &preview);
    void defineFields(const NotePreview &preview);
    void added(const NoteAddition &addition);
    void select(const NoteAddition &addition);
    void tellRejected(const NoteAddition &addition);
    std::shared_ptr<Export> exportOf(const ExportNotesSheet &sheet) const;
    void exportTo(const QString &path, const std::shared_ptr<Export> &list);

    WindowMarkerLists &m_lists;
    UserDefaults &m_defaults;
    QStringList m_waiting; ///< paths of lists
    QPointer<NotePreviewSheet> m_preview;
    QPointer<ExportNotesSheet> m_export;
    QPointer<NoteAddition> m_addition;
};

} // namespace vantrell
