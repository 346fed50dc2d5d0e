#include "interchange/MarkerListExporter.h"

#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerTableValues.h"
#include "support/alerts/QVAlert.h"
#include "support/files/FileUtilities.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <algorithm>
#include <initializer_list>

namespace vantrell
{

namespace
{

/// The fields, separated by tabs, and a line feed.
void appendLine(QString &text, std::initializer_list<QString> fields)
{
    bool isFirst = true;
    for (const QString &field : fields) {
        if (!isFirst)
            text += QLatin1Char('\t');
        text += field;
        isFirst = false;
    }
    text += QLatin1Char('\n');
}

QString commentOf(const RowRecord &marker)
{
    return marker.get(MarkerKey::comment).trimmed();
}

QString colorOf(const RowRecord &marker)
{
    const std::int64_t index = marker.get(MarkerKey::color);
    const bool isListed = index > 0 && index < std::int64_t(MarkerColors::count);
    return MarkerColors::table()[isListed ? std::size_t(index) : 0].label;
}

QString sequenceNameOf(const RowRecord &marker)
{
    return marker.contains(MarkerKey::sequenceName) ? marker.get(MarkerKey::sequenceName)
                                                    : QStringLiteral("Sequence 1");
}

void appendFCPLine(QString &text, const RowRecord &marker)
{
    const bool onClip = marker.contains(MarkerKey::clipName);
    appendLine(text, {onClip ? marker.get(MarkerKey::clipName) : sequenceNameOf(marker),
                      onClip ? QStringLiteral("Clip") : QStringLiteral("Sequence"),
                      marker.get(MarkerKey::name), commentOf(marker), MarkerTableValues::inText(marker),
                      MarkerTableValues::outText(marker), colorOf(marker)});
}

void appendAvidLine(QString &text, const RowRecord &marker)
{
    appendLine(text, {marker.get(MarkerKey::name), MarkerTableValues::inText(marker), QStringLiteral("V1"),
                      QStringLiteral("red"), commentOf(marker)});
}

using LineAppender = void (*)(QString &, const RowRecord &);

/// Null for a format that is not written.
LineAppender appenderOf(const QString &format)
{
    if (format == MarkerListFormat::fcp)
        return appendFCPLine;
    return format == MarkerListFormat::avid ? appendAvidLine : nullptr;
}

} // namespace

std::optional<MarkerListPanel> MarkerListExporter::exportFCPMarkers() const
{
    return showMarkerListSaveDialog(MarkerListFormat::fcp);
}

std::optional<MarkerListPanel> MarkerListExporter::exportAvidLocators() const
{
    return showMarkerListSaveDialog(MarkerListFormat::avid);
}

std::optional<MarkerListPanel> MarkerListExporter::showMarkerListSaveDialog(const QString &format) const
{
    return MarkerListPanel::forSaving(m_document, format);
}

bool MarkerListExporter::markerSaveDialogDidEnd(const QString &path, int returnCode,
                                                const QString &format) const
{
    if (returnCode != MarkerListPanel::accepted)
        return true;
    bool isWritten = false;
    guarded("MarkerListExporter::markerSaveDialogDidEnd", [&] {
        const Result<void> written = FileUtilities::writeAtomically(path, textOfMarkerList(format).toUtf8());
        isWritten = written.isOk();
        if (!isWritten)
            tellOfFailure(format, written.message());
    });
    return isWritten;
}

void MarkerListExporter::tellOfFailure(const QString &format, const QString &reason) const
{
    QVLog::appendLog(u"Error saving %@ marker list: %@", format, reason);
    QVAlert::alertSheetWithMessageText(QStringLiteral("Error saving marker list"), reason,
                                       m_document.interface().alertParent());
}

std::size_t MarkerListExporter::unreadableRows(const QString &format) const
{
    const LineAppender appendLineOf = appenderOf(format);
    if (!appendLineOf)
        return 0;
    const qsizetype tabs = format == MarkerListFormat::fcp ? 6 : 4;
    const RowList &markers = m_document.markerArray();
    return std::size_t(std::count_if(markers.begin(), markers.end(), [&](const RowRecordPtr &marker) {
        QString line;
        appendLineOf(line, *marker);
        return line.count(QLatin1Char('\t')) != tabs || line.count(QLatin1Char('\n')) != 1 ||
               line.contains(QLatin1Char('\r'));
    }));
}

QString MarkerListExporter::unreadableRowsText(const QString &format) const
{
    const std::size_t count = unreadableRows(format);
    if (count == 0)
        return QString();
    if (count == 1)
        return QStringLiteral("1 row holds a tab or a line break; other systems will not be able to read it");
    return QStringLiteral("%1 rows hold a tab or a line break; other systems will not be able to read them")
        .arg(count);
}

QString MarkerListExporter::textOfMarkerList(const QString &format) const
{
    QString text;
    if (format == MarkerListFormat::fcp)
        text = QStringLiteral("Name\tType\tMarker Name\tComment\tStart\tDuration\tColor\n");
    if (const LineAppender appendLineOf = appenderOf(format)) {
        for (const RowRecordPtr &marker : m_document.markerArray())
            appendLineOf(text, *marker);
    }
    return text;
}

} // namespace vantrell
