#pragma once

#include "interchange/MarkerListPanel.h"

namespace vantrell
{

/// Writes every marker of a document, whatever its filter shows, into a marker list of another editing
/// system: text with tabs between the fields of a line and nothing quoted. Main thread.
class MarkerListExporter
{
public:
    /// The document outlives the exporter.
    explicit MarkerListExporter(MyDocument &document)
        : m_document(document)
    {
    }

    /// What the menu's commands begin with: the panel to run, nothing when it was refused.
    std::optional<MarkerListPanel> exportFCPMarkers() const;
    std::optional<MarkerListPanel> exportAvidLocators() const;
    std::optional<MarkerListPanel> showMarkerListSaveDialog(const QString &format) const;

    /// Writes the list, UTF-8, whole or not at all, when the panel was accepted. False, after an alert
    /// and a line in the log, when it cannot be written.
    bool markerSaveDialogDidEnd(const QString &path, int returnCode, const QString &format) const;

    /// The list as text: "fcp" or "avid"; empty for any other format.
    QString textOfMarkerList(const QString &format) const;
    /// How many rows of it hold a tab or a line break in a name or comment, so that no system can read them.
    std::size_t unreadableRows(const QString &format) const;
    /// Says so, without a full stop; empty when there are none.
    QString unreadableRowsText(const QString &format) const;

    /// A line in the log and an alert: the list could not be written.
    void tellOfFailure(const QString &format, const QString &reason) const;

private:
    MyDocument &m_document;
};

} // namespace vantrell
