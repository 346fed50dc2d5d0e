#include "workbench/Workbench.h"

#include "bridge/QVAppleEvents.h"
#include "report/ReportTable.h"
#include "support/settings/UserDefaults.h"

#include <QFileInfo>

#include <algorithm>

namespace vantrell
{

Workbench::Workbench(DocumentInterface &interface, Inventories inventories, UserDefaults *defaults)
    : m_document(interface, services(inventories))
    , m_markerFields(m_document, defaults)
    , m_markerPresets(m_document, defaults)
    , m_reportGenerator(m_document, m_markerPresets, defaults, ReportImages::standardFolder())
{
    if (defaults && defaults->boolean(MarkerInventory::ownOwnersDefault))
        m_markerInventory.setOwnerListing(OwnerListing::Own);
    m_effectEditor.setMarkersRemovedHandler(
        [this](const XmlNodeList &markers) { m_markerEditor.dropRemovedMarkers(markers); });
    m_document.setRowFollower(Tab::Media, {{}, [this] { m_mediaInventory.populateMediaData(); }});
    m_isMade = true;
}

Workbench::~Workbench()
{
    m_document.close();
}

bool Workbench::open(const QString &path)
{
    return open(path, typeNameForPath(path));
}

bool Workbench::open(const QString &path, const QString &typeName)
{
    // The path of a project is passed to another program.
    const bool isProject = typeName == DocumentType::finalCutProProject;
    const QString told = isProject ? QFileInfo(path).absoluteFilePath() : path;
    return m_document.readFromURL(QUrl::fromLocalFile(told), typeName);
}

QString Workbench::typeNameForPath(const QString &path)
{
    if (path.endsWith(QStringLiteral(".fcp"), Qt::CaseInsensitive))
        return DocumentType::finalCutProProject;
    if (path.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive))
        return DocumentType::finalCutProXMLFile;
    return DocumentType::publicXML;
}

QString Workbench::typeNameToSend(const QString &path)
{
    const QString typeName = typeNameForPath(path);
    if (typeName == DocumentType::finalCutProProject || !QVAppleEvents::isFCPRunning())
        return typeName;
    const QStringList open = QVAppleEvents::listOfOpenFCPProjects().value_or(QStringList());
    const QFileInfo file(path);
    const bool isOpen = std::any_of(open.begin(), open.end(),
                                    [&](const QString &project) { return QFileInfo(project) == file; });
    return isOpen ? DocumentType::finalCutProProject : typeName;
}

MyDocument::Services Workbench::services(Inventories inventories)
{
    MyDocument::Services services;
    auto &builders = services.inventoryBuilders;
    if (inventories == Inventories::All) {
        builders.push_back([this](MyDocument &) { m_mediaInventory.populateMediaData(); });
        builders.push_back([this](MyDocument &) { m_effectInventory.populateEffectData(); });
    }
    if (inventories != Inventories::None)
        builders.push_back([this](MyDocument &) { m_markerInventory.populateMarkerData(); });
    services.projectXMLData = [this](const QString &path) {
        return QVAppleEvents::getProjectXMLData(path, true, false, m_fetchCancel);
    };
    services.sendToFCP = [this](MyDocument &, std::function<void()> ended) {
        return m_projectSender.start([ended = std::move(ended)](ProjectSender::Outcome) {
            if (ended)
                ended();
        });
    };
    services.closing = [this] {
        if (!m_isMade)
            return;
        m_fetchCancel.cancel();
        m_projectSender.close();
    };
    return services;
}

} // namespace vantrell
