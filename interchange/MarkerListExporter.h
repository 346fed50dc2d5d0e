#pragma once

#include "interchange/MarkerListPanel.h"

namespace vantrell
{

/// Writes all markers of a document, regardless of its filter, as a marker list for another editing system:
/// lines of tab-separated fields without quoting. Main thread.
class MarkerListExporter
{
public:
    /// The document outlives the exporter.
    explicit MarkerListExporter(MyDocument &document)
        : m_document(document)
    {
    }

    /// The start of a menu command: the panel to run, or nullopt when it was refused.
    std::optional<MarkerListPanel> exportFCPMarkers() const;
    std::optional<MarkerListPanel> exportAvidLocators() const;
    std::optional<MarkerListPanel> showMarkerListSaveDialog(const QString &format) const;

    /// Writes the list as UTF-8, atomically, when the panel was accepted. False, after an alert and a log
    /// line, when it cannot be written.
    bool markerSaveDialogDidEnd(const QString &path, int returnCode, const QString &format) const;

    /// The list as text: "fcp" or "avid"; empty for any other format.
    QString textOfMarkerList(const QString &format) const;
    /// The number of rows with a tab or a line break in a name or comment, which no system can read.
    std::size_t unreadableRows(const QString &format) const;
    /// A warning about them, without a full stop; empty when there are none.
    QString unreadableRowsText(const QString &format) const;

    /// Logs and shows that the list could not be written.
    void tellOfFailure(const QString &format, const QString &reason) const;

private:
    MyDocument &m_document;
};

} // namespace vantrell
