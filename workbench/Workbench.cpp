#include "workbench/Workbench.h"

#include "report/ReportImages.h"

namespace vantrell
{

Workbench::Workbench(DocumentInterface &interface, Inventories inventories, UserDefaults *defaults)
    : m_document(interface, services(inventories))
    , m_markerFields(m_document, defaults)
    , m_markerPresets(m_document, defaults)
    , m_reportGenerator(m_document, m_markerPresets, defaults, ReportImages::standardFolder())
{
}

Workbench::~Workbench()
{
    m_document.close();
}

bool Workbench::open(const QString &path)
{
    return m_document.readFromURL(QUrl::fromLocalFile(path), typeNameForPath(path));
}

QString Workbench::typeNameForPath(const QString &path)
{
    if (path.endsWith(QStringLiteral(".fcp"), Qt::CaseInsensitive))
        return DocumentType::finalCutProProject;
    if (path.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive))
        return DocumentType::finalCutProXMLFile;
    return DocumentType::publicXML;
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
    return services;
}

} // namespace vantrell
