#pragma once

#include "bridge/EventCancel.h"
#include "bridge/ProjectSender.h"
#include "document/MyDocument.h"
#include "effects/EffectEditor.h"
#include "effects/EffectInventory.h"
#include "interchange/MarkerListExporter.h"
#include "interchange/MarkerListImporter.h"
#include "markers/MarkerEditor.h"
#include "markers/MarkerFields.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerPresets.h"
#include "media/MediaFilter.h"
#include "media/MediaInventory.h"
#include "report/ReportGenerator.h"

namespace vantrell
{

/// One open project with everything that works on it, without a window. The command line and the window each
/// own one. Main thread.
class Workbench
{
public:
    /// The inventories that a load fills.
    enum class Inventories { All, Markers, None };

    /// The interface and the defaults outlive the workbench; without defaults (null) no user settings are
    /// read or stored.
    explicit Workbench(DocumentInterface &interface, Inventories inventories = Inventories::All,
                       UserDefaults *defaults = nullptr);
    /// Closes the document first.
    ~Workbench();

    MyDocument &document() { return m_document; }
    MediaFilter &mediaFilter() { return m_mediaFilter; }
    MediaInventory &mediaInventory() { return m_mediaInventory; }
    EffectInventory &effectInventory() { return m_effectInventory; }
    EffectEditor &effectEditor() { return m_effectEditor; }
    MarkerFields &markerFields() { return m_markerFields; }
    MarkerPresets &markerPresets() { return m_markerPresets; }
    MarkerInventory &markerInventory() { return m_markerInventory; }
    MarkerEditor &markerEditor() { return m_markerEditor; }
    ProjectSender &projectSender() { return m_projectSender; }
    ReportGenerator &reportGenerator() { return m_reportGenerator; }
    const MarkerListImporter &markerListImporter() const { return m_markerListImporter; }
    const MarkerListExporter &markerListExporter() const { return m_markerListExporter; }

    /// Starts loading a file; the interface is told when it ends. False when loading cannot be started.
    bool open(const QString &path);
    /// The same as a document of that type, whatever the file's name.
    bool open(const QString &path, const QString &typeName);

    /// The document type of a file by its name.
    static QString typeNameForPath(const QString &path);
    /// The same, but also the type of a project of the editing application when that has the file open under
    /// another name. Asks a running application and waits for at most a minute. Any thread.
    static QString typeNameToSend(const QString &path);

private:
    MyDocument::Services services(Inventories inventories);

    bool m_isMade = false; // until then there is nothing to close but the document
    EventCancel m_fetchCancel;
    MyDocument m_document;
    ProjectSender m_projectSender{m_document};
    MediaFilter m_mediaFilter{m_document};
    MediaInventory m_mediaInventory{m_document, m_mediaFilter};
    EffectInventory m_effectInventory{m_document};
    EffectEditor m_effectEditor{m_document, m_effectInventory};
    MarkerFields m_markerFields;
    MarkerPresets m_markerPresets;
    MarkerInventory m_markerInventory{m_document, m_markerFields};
    MarkerEditor m_markerEditor{m_document, m_markerInventory};
    ReportGenerator m_reportGenerator;
    MarkerListImporter m_markerListImporter{m_document, m_markerEditor};
    MarkerListExporter m_markerListExporter{m_document};
};

} // namespace vantrell
