#pragma once

#include "document/widgets/WindowPart.h"
#include "support/files/Result.h"

#include <QString>
#include <QStringList>

#include <cstddef>

namespace vantrell
{

/// Imports and exports marker lists for the document of a window, which owns it. Main thread.
class WindowMarkerLists final : private WindowPart
{
    Q_DECLARE_TR_FUNCTIONS(vantrell::WindowMarkerLists)

public:
    explicit WindowMarkerLists(const WindowPart &part)
        : WindowPart(part)
    {
    }

    void runOpenPanel(const QString &format);
    void importMarkerLists(const QStringList &paths, const QString &format);
    void runSavePanel(const QString &format);
    void exportMarkerList(const QString &path, const QString &format);

    /// Whether markers may be added; if the project is still loading, an alert says so. True while its
    /// markers are being extracted: then the panel refuses.
    bool mayChangeMarkers();
    /// Shows the Markers tab with a message below its table.
    void showInMarkers(const QString &text);

private:
    void imported(std::size_t imported, std::size_t total, const QStringList &paths);
    void exported(const QString &path, const QString &format, std::size_t count, const Result<void> &written);
};

} // namespace vantrell
