#pragma once

#include "interchange/MarkerListPanel.h"

class QWidget;

namespace vantrell
{

class MarkerListExporter;
class MarkerListImporter;

/// Runs the file panel that chooses marker lists, as a sheet on the window, and imports what was chosen.
/// Returns at once; the importer outlives the window. Main thread.
void runMarkerListOpenPanel(const MarkerListImporter &importer, const MarkerListPanel &panel, QWidget *window,
                            const QString &folder);

/// The same for the panel that chooses where a marker list is written.
void runMarkerListSavePanel(const MarkerListExporter &exporter, const MarkerListPanel &panel, QWidget *window,
                            const QString &folder);

} // namespace vantrell
