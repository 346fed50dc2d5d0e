#pragma once

#include "document/RowRecord.h"
#include "interchange/MarkerListPanel.h"

#include <QStringList>

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

private:
    void addMarkers(const RowList &rows) const;

    MyDocument &m_document;
    MarkerEditor &m_editor;
};

} // namespace vantrell
