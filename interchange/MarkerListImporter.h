#pragma once

#include "document/RowRecord.h"
#include "interchange/MarkerListPanel.h"

#include <QStringList>

#include <chrono>
#include <cstddef>
#include <optional>

namespace vantrell
{

class MarkerEditor;

/// Adds the markers of marker lists and interchange files to a document. Main thread.
class MarkerListImporter
{
public:
    /// The document and its editor outlive the importer.
    MarkerListImporter(MyDocument &document, MarkerEditor &editor)
        : m_document(document)
        , m_editor(editor)
    {
    }

    /// What the menu's commands begin with: the panel to run, nothing when it was refused.
    std::optional<MarkerListPanel> importFCPMarkers() const;
    std::optional<MarkerListPanel> importAvidLocators() const;
    std::optional<MarkerListPanel> importFCPXMarkers() const;
    std::optional<MarkerListPanel> showMarkerListOpenDialog(const QString &format) const;

    /// Adds what the files hold, in their order, when the panel was accepted. Files that cannot be read
    /// or hold no markers are passed over. False, after an alert, when none holds any.
    bool markerOpenDialogDidEnd(const QStringList &paths, int returnCode, const QString &format) const;

    /// The rows of one file, with the keys of ImportedMarkerKey; nothing for a list that cannot be read
    /// and for an unknown format. Any thread.
    static std::optional<RowList> rowsOfFile(const QString &path, const QString &format);

    // markerOpenDialogDidEnd() in its steps, for a window that must not wait for all of it

    /// The rows of all files, in their order. Any thread.
    static RowList rowsOfFiles(const QStringList &paths, const QString &format);
    void tellNothingToImport() const;
    /// How far adding has come.
    struct Progress {
        std::size_t next = 0;  ///< place of the row that comes next
        std::size_t added = 0; ///< markers that came of the rows before it
    };
    /// Adds the markers of the rows from `progress` on, until all are there or the time is over, at least
    /// one. Stops when the document is being closed.
    Progress addMarkers(const RowList &rows, Progress progress,
                        std::optional<std::chrono::milliseconds> limit = std::nullopt) const;

private:
    MyDocument &m_document;
    MarkerEditor &m_editor;
};

} // namespace vantrell
