#include "interchange/MarkerListImporter.h"

#include "document/MyDocument.h"
#include "interchange/ImportedMarker.h"
#include "interchange/QVFCPXMLParser.h"
#include "interchange/QVMarkerListParser.h"
#include "markers/MarkerEditor.h"
#include "support/QVAlert.h"
#include "support/QVException.h"

namespace vantrell
{

namespace
{

/// The table reloads once for all rows that come while this lives.
class TableUpdates
{
public:
    explicit TableUpdates(MyDocument &document)
        : m_document(document)
    {
        m_document.beginTableUpdates();
    }
    ~TableUpdates() { m_document.endTableUpdates(); }
    TableUpdates(const TableUpdates &) = delete;
    TableUpdates &operator=(const TableUpdates &) = delete;

private:
    MyDocument &m_document;
};

} // namespace

std::optional<MarkerListPanel> MarkerListImporter::importFCPMarkers() const
{
    return showMarkerListOpenDialog(MarkerListFormat::fcp);
}

std::optional<MarkerListPanel> MarkerListImporter::importAvidLocators() const
{
    return showMarkerListOpenDialog(MarkerListFormat::avid);
}

std::optional<MarkerListPanel> MarkerListImporter::importFCPXMarkers() const
{
    return showMarkerListOpenDialog(MarkerListFormat::fcpx);
}

std::optional<MarkerListPanel> MarkerListImporter::showMarkerListOpenDialog(const QString &format) const
{
    return MarkerListPanel::forOpening(m_document, format);
}

std::optional<RowList> MarkerListImporter::rowsOfFile(const QString &path, const QString &format)
{
    if (format == MarkerListFormat::fcpx)
        return QVFCPXMLParser::markersFromXMLFile(path, true);
    if (format == MarkerListFormat::fcp)
        return QVMarkerListParser::fcpMarkerListFromFile(path);
    if (format == MarkerListFormat::avid)
        return QVMarkerListParser::avidLocatorListFromFile(path);
    return std::nullopt;
}

bool MarkerListImporter::markerOpenDialogDidEnd(const QStringList &paths, int returnCode,
                                                const QString &format) const
{
    if (returnCode != MarkerListPanel::accepted)
        return true;
    bool hasRows = false;
    guarded("-[MyDocument markerOpenDialogDidEnd:returnCode:contextInfo:]", [&] {
        RowList rows;
        for (const QString &path : paths) {
            const RowList found = rowsOfFile(path, format).value_or(RowList());
            rows.insert(rows.end(), found.begin(), found.end());
        }
        hasRows = !rows.empty();
        if (hasRows) {
            addMarkers(rows);
            return;
        }
        QVAlert::alertSheetWithMessageText(
            QStringLiteral("No markers to import"),
            QStringLiteral("There were no markers in the file or it is an invalid format."),
            m_document.interface().alertParent());
    });
    return hasRows;
}

void MarkerListImporter::addMarkers(const RowList &rows) const
{
    const TableUpdates updates(m_document);
    for (const RowRecordPtr &row : rows) {
        // An alert on the way lets the user close the window.
        if (m_document.isClosing())
            return;
        // The name of a parent is no item of the sequence menu, so that none is chosen.
        m_editor.addMarkerWithName(
            row->text(ImportedMarkerKey::name), row->text(ImportedMarkerKey::startTimecode),
            row->text(ImportedMarkerKey::durationTimecode), row->text(ImportedMarkerKey::comment),
            row->text(ImportedMarkerKey::color), nullptr);
    }
}

} // namespace vantrell
