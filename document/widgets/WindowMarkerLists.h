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
public:
    explicit WindowMarkerLists(const WindowPart &part)
        : WindowPart(part)
    {
    }

    void runOpenPanel(const QString &format);
    void importMarkerLists(const QStringList &paths, const QString &format);
    void runSavePanel(const QString &format);
    void exportMarkerList(const QString &path, const QString &format);

private:
    bool mayChangeMarkers();
    void imported(std::size_t imported, std::size_t total, const QStringList &paths);
    void exported(const QString &path, const QString &format, std::size_t count, const Result<void> &written);
    void showInMarkers(const QString &text);
};

} // namespace vantrell
