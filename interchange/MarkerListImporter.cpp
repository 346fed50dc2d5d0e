#include "interchange/MarkerListImporter.h"

#include "document/MyDocument.h"
#include "document/TableUpdates.h"
#include "interchange/ImportedMarker.h"
#include "interchange/QVFCPXMLParser.h"
#include "interchange/QVMarkerListParser.h"
#include "markers/MarkerEditor.h"
#include "support/QVAlert.h"
#include "support/QVException.h"

namespace vantrell
{

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
        const RowList rows = rowsOfFiles(paths, format);
        hasRows = !rows.empty();
        if (hasRows) {
            const TableUpdates updates(m_document);
            addMarkers(rows, {});
        } else {
            tellNothingToImport();
        }
    });
    return hasRows;
}

RowList MarkerListImporter::rowsOfFiles(const QStringList &paths, const QString &format)
{
    RowList rows;
    for (const QString &path : paths) {
        const RowList found = rowsOfFile(path, format).value_or(RowList());
        rows.insert(rows.end(), found.begin(), found.end());
    }
    return rows;
}

void MarkerListImporter::tellNothingToImport() const
{
    QVAlert::alertSheetWithMessageText(
        QStringLiteral("No markers to import"),
        QStringLiteral("There were no markers in the file or it is an invalid format."),
        m_document.interface().alertParent());
}

MarkerListImporter::Progress
MarkerListImporter::addMarkers(const RowList &rows, Progress progress,
                               std::optional<std::chrono::milliseconds> limit) const
{
    const auto start = std::chrono::steady_clock::now();
    guarded("-[MyDocument markerOpenDialogDidEnd:returnCode:contextInfo:]", [&] {
        // An alert on the way lets the user close the window.
        while (progress.next < rows.size() && !m_document.isClosing()) {
            const RowRecord &row = *rows[progress.next++];
            // The name of a parent is no item of the sequence menu, so that none is chosen.
            const RowRecordPtr added = m_editor.addMarkerWithName(
                row.text(ImportedMarkerKey::name), row.text(ImportedMarkerKey::startTimecode),
                row.text(ImportedMarkerKey::durationTimecode), row.text(ImportedMarkerKey::comment),
                row.text(ImportedMarkerKey::color), nullptr);
            progress.added += added ? 1 : 0;
            if (limit && std::chrono::steady_clock::now() - start >= *limit)
                break;
        }
    });
    return progress;
}

} // namespace vantrell
