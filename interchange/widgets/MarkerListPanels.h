#pragma once

#include "interchange/MarkerListPanel.h"

#include <QStringList>

#include <functional>

class QWidget;

namespace vantrell
{

/// Shows the panel that chooses marker lists as a sheet on the window; `chosen` is called if it is accepted.
/// Returns at once. Main thread.
void runMarkerListOpenPanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            const std::function<void(const QStringList &)> &chosen);

/// The same for the panel that chooses where a marker list is written.
void runMarkerListSavePanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            const std::function<void(const QString &)> &chosen);

} // namespace vantrell
