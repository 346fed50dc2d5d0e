#include "interchange/MarkerListPanel.h"

#include "document/MyDocument.h"
#include "support/alerts/QVAlert.h"
#include "support/files/FileUtilities.h"

#include <QFileInfo>

namespace vantrell
{

namespace
{

constexpr quint32 textFileTypeCode = 0x74787420; // "txt "

} // namespace

std::optional<MarkerListPanel> MarkerListPanel::forOpening(MyDocument &document, const QString &format)
{
    if (document.isPopulating(Tab::Markers)) {
        QVAlert::alertSheetWithMessageText(
            QStringLiteral("Markers are still loading"),
            QStringLiteral("Please wait for markers to finish loading before attempting this operation."),
            document.interface().alertParent());
        return std::nullopt;
    }
    if (format == MarkerListFormat::fcpx)
        return MarkerListPanel{format, QStringLiteral("fcpxml"), 0, QString(), QString()};
    return MarkerListPanel{format, QStringLiteral("txt"), textFileTypeCode, QStringLiteral("public.text"),
                           QString()};
}

std::optional<MarkerListPanel> MarkerListPanel::forSaving(MyDocument &document, const QString &format)
{
    std::optional<MarkerListPanel> panel = forOpening(document, format);
    if (panel) {
        const QString fileName = QFileInfo(document.fileURL().toLocalFile()).fileName();
        panel->proposedName = FileUtilities::deletingPathExtension(fileName) + QStringLiteral(" Markers.txt");
    }
    return panel;
}

} // namespace vantrell
