#pragma once

#include "interchange/MarkerListPanel.h"
#include "interchange/QVMarkerListParser.h"
#include "rows/RowRecord.h"

#include <QStringList>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

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

    /// The start of a menu command: the panel to run, or nullopt when it was refused.
    std::optional<MarkerListPanel> importFCPMarkers() const;
    std::optional<MarkerListPanel> importAvidLocators() const;
    std::optional<MarkerListPanel> importFCPXMarkers() const;
    std::optional<MarkerListPanel> showMarkerListOpenDialog(const QString &format) const;

    /// A row or line that could not be added as a marker.
    struct Rejected {
        QString source;
        QString name; ///< null for a line that is no row
        QString reason;

        QString text() const;
    };
    /// The rows of several files, in order.
    struct Rows {
        RowList rows;
        /// Where each one comes from: the file's name, where there are several files, and the line, counted
        /// from 1; of an interchange file the number of the marker.
        QStringList sources;
        std::vector<Rejected> skipped = {}; ///< the lines that are no rows
        bool isWhole = true;                ///< false when there was not enough memory for all of them
    };
    /// The progress of adding.
    struct Progress {
        std::size_t next = 0;           ///< index of the next row
        std::size_t added = 0;          ///< markers added from the rows before it
        std::vector<Rejected> rejected; ///< rows; the lines that are none follow when all rows are added
        std::uint64_t group = 0;        ///< of the edits, which are one step to undo
    };

    /// Adds the markers of the files, in order, when the panel was accepted. Files that cannot be read or
    /// have no markers are skipped; an alert tells when none has any. nullopt when the panel was not
    /// accepted.
    std::optional<Progress> markerOpenDialogDidEnd(const QStringList &paths, int returnCode,
                                                   const QString &format) const;

    // The steps of markerOpenDialogDidEnd(), for a window that must not block

    /// The rows of one file, with the keys of ImportedMarkerKey; nullopt for a list that cannot be read and
    /// for an unknown format. `lines` as in QVMarkerListParser; empty for an interchange file. Any thread.
    static std::optional<RowList> rowsOfFile(const QString &path, const QString &format,
                                             ListLines *lines = nullptr);
    /// Without memory, none. Any thread.
    static Rows rowsOfFiles(const QStringList &paths, const QString &format);
    void tellNothingToImport(const Rows &rows) const;
    /// Adds the markers of the rows from `progress` on until all are added or the time is up, at least one.
    /// Stops when the document is being closed.
    void addMarkers(const Rows &rows, Progress &progress,
                    std::optional<std::chrono::milliseconds> limit = std::nullopt) const;
    /// One alert for all rows and lines that were rejected, the first twenty with their sources and reasons;
    /// nothing when none was.
    void tellOfRejected(const Progress &progress) const;

private:
    MyDocument &m_document;
    MarkerEditor &m_editor;
};

} // namespace vantrell
