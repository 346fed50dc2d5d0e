#include "document/HeadlessDocumentInterface.h"

namespace vantrell
{

void HeadlessDocumentInterface::addMarkerColumn(const QString &identifier, const QString &)
{
    m_markerColumns.append(identifier);
}

void HeadlessDocumentInterface::removeMarkerColumn(const QString &identifier)
{
    m_markerColumns.removeAll(identifier);
}

void HeadlessDocumentInterface::moveMarkerColumn(const QString &identifier, int index)
{
    const qsizetype from = m_markerColumns.indexOf(identifier);
    if (from >= 0 && index >= 0 && index < m_markerColumns.size())
        m_markerColumns.move(from, index);
}

} // namespace vantrell
