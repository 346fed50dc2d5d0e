#include "xml/XmlLocationPaths.h"

#include <QHash>

namespace vantrell
{

QString XmlLocationPaths::pathOf(XmlNode element)
{
    if (!element.isElement())
        return QString();
    const XmlNode parent = element.parent();
    if (!parent)
        return QString();
    QString path(QStringLiteral(""));
    if (parent.isElement()) {
        auto known = m_parents.find(parent);
        if (known == m_parents.end())
            known = m_parents.emplace(parent, pathOf(parent)).first;
        if (known->second.isNull())
            return QString();
        path = known->second;
    }
    return QStringLiteral("%1/%2[%3]").arg(path, element.name()).arg(indexOf(element));
}

int XmlLocationPaths::indexOf(XmlNode element)
{
    const auto known = m_indexes.find(element);
    if (known != m_indexes.end())
        return known->second;
    QHash<QString, int> counts;
    for (XmlNode child = element.parent().firstChildElement(); child; child = child.nextSiblingElement())
        m_indexes.emplace(child, ++counts[child.name()]);
    return m_indexes[element];
}

} // namespace vantrell
