#include "interchange/MarkerListImporter.h"

#include "document/DocumentEdit.h"
#include "interchange/ImportedMarker.h"
#include "interchange/QVFCPXMLParser.h"
#include "interchange/QVMarkerListParser.h"
#include "markers/MarkerEditNames.h"
#include "markers/MarkerEditor.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"

#include <QFileInfo>

#include <algorithm>

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

std::optional<RowList> MarkerListImporter::rowsOfFile(const QString &path, const QString &format,
                                                      ListLines *lines)
{
    if (format == MarkerListFormat::fcpx)
        return QVFCPXMLParser::markersFromXMLFile(path, true);
    if (format == MarkerListFormat::fcp)
        return QVMarkerListParser::fcpMarkerListFromFile(path, lines);
    if (format == MarkerListFormat::avid)
        return QVMarkerListParser::avidLocatorListFromFile(path, lines);
    return std::nullopt;
}

std::optional<MarkerListImporter::Progress>
MarkerListImporter::markerOpenDialogDidEnd(const QStringList &paths, int returnCode,
                                           const QString &format) const
{
    if (returnCode != MarkerListPanel::accepted)
        return std::nullopt;
    Progress progress;
    guarded("MarkerListImporter::markerOpenDialogDidEnd", [&] {
        const Rows rows = rowsOfFiles(paths, format);
        if (rows.rows.empty()) {
            tellNothingToImport(rows);
            return;
        }
        const RowView::Updates updates(m_document.rowView(Tab::Markers));
        addMarkers(rows, progress);
    });
    return progress;
}

MarkerListImporter::Rows MarkerListImporter::rowsOfFiles(const QStringList &paths, const QString &format)
{
    Rows all;
    const auto read = [&](const QString &path) {
        ListLines lines;
        const RowList found = rowsOfFile(path, format, &lines).value_or(RowList());
        const QString file = paths.size() > 1 ? QFileInfo(path).fileName() + QStringLiteral(", ") : QString();
        for (std::size_t i = 0; i < found.size(); ++i) {
            const QString source = lines.ofRows.empty() ? QStringLiteral("marker %1").arg(i + 1)
                                                        : QStringLiteral("line %1").arg(lines.ofRows[i]);
            all.rows.push_back(found[i]);
            all.sources.append(file + source);
        }
        for (const ListLines::Skipped &skipped : lines.skipped) {
            all.skipped.push_back({file + QStringLiteral("line %1").arg(skipped.line), QString(),
                                   QStringLiteral("The line has %1 fields instead of %2.")
                                       .arg(skipped.fields)
                                       .arg(skipped.wanted)});
        }
    };
    const bool isWhole = guarded("-[MyDocument markerOpenDialogDidEnd:returnCode:contextInfo:]", [&] {
        for (const QString &path : paths)
            read(path);
    });
    if (!isWhole) {
        all = Rows();
        all.isWhole = false;
    }
    return all;
}

void MarkerListImporter::tellNothingToImport(const Rows &rows) const
{
    QVAlert::alertSheetWithMessageText(
        QStringLiteral("No markers to import"),
        rows.isWhole ? QStringLiteral("There were no markers in the file or it is an invalid format.")
                     : QStringLiteral("There is not enough memory to read the markers of the file."),
        m_document.interface().alertParent());
}

void MarkerListImporter::addMarkers(const Rows &rows, Progress &progress,
                                    std::optional<std::chrono::milliseconds> limit) const
{
    const auto start = std::chrono::steady_clock::now();
    if (progress.group == 0)
        progress.group = m_document.newEditGroup();
    guarded("MarkerListImporter::addMarkers", [&] {
        const DocumentEdit edit(m_document, Tab::Markers, MarkerEditNames::ofImport(), progress.group);
        while (progress.next < rows.rows.size() && !m_document.isClosing()) {
            const std::size_t index = progress.next++;
            const RowRecord &row = *rows.rows[index];
            QString reason = QStringLiteral("There is no sequence to add it to.");
            // The name of a parent is not looked for in the sequence menu.
            const RowRecordPtr added = m_editor.addMarkerWithName(
                row.text(ImportedMarkerKey::name), row.text(ImportedMarkerKey::startTimecode),
                row.text(ImportedMarkerKey::durationTimecode), row.text(ImportedMarkerKey::comment),
                row.text(ImportedMarkerKey::color), std::nullopt,
                [&reason](const QString &given) { reason = given; });
            if (added)
                ++progress.added;
            else
                progress.rejected.push_back(
                    {rows.sources.at(qsizetype(index)), row.text(ImportedMarkerKey::name), reason.trimmed()});
            if (limit && std::chrono::steady_clock::now() - start >= *limit)
                break;
        }
        if (progress.next == rows.rows.size())
            progress.rejected.insert(progress.rejected.end(), rows.skipped.begin(), rows.skipped.end());
    });
}

QString MarkerListImporter::Rejected::text() const
{
    return name.isNull() ? QStringLiteral("%1: %2").arg(source, reason)
                         : QStringLiteral("%1, “%2”: %3").arg(source, name, reason);
}

void MarkerListImporter::tellOfRejected(const Progress &progress) const
{
    constexpr std::size_t maximumListed = 20;
    const std::vector<Rejected> &rejected = progress.rejected;
    if (rejected.empty())
        return;
    QStringList lines;
    for (std::size_t i = 0; i < std::min(rejected.size(), maximumListed); ++i)
        lines.append(rejected[i].text());
    if (rejected.size() > maximumListed)
        lines.append(QStringLiteral("… and %1 more").arg(rejected.size() - maximumListed));
    QVAlert::alertSheetWithMessageText(QStringLiteral("%1 of %2 rows could not be added")
                                           .arg(rejected.size())
                                           .arg(progress.added + rejected.size()),
                                       lines.join(QLatin1Char('\n')), m_document.interface().alertParent());
}

} // namespace vantrell
