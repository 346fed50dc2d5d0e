#include "markers/MarkerCandidates.h"

#include "markers/MarkerKeys.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <algorithm>

namespace vantrell
{

namespace
{

/// Null where there is none, which then equals an absent value.
QString orNull(const std::optional<QString> &text)
{
    return text.value_or(QString());
}

bool same(const QString &a, const QString &b)
{
    return a == b && a.isNull() == b.isNull();
}

bool fits(XmlNode marker, const RowRecord &record)
{
    static const XmlQuery in(QStringLiteral("./in[1]/text()"));
    if (!same(orNull(in.firstText(marker)), record.get(MarkerKey::in)) ||
        !same(orNull(QVXMLParser::nameForNode(marker)), record.get(MarkerKey::name)))
        return false;
    const XmlNode sequence = QVXMLParser::parentWithName(marker, "sequence");
    if (!same(orNull(QVXMLParser::uuidForNode(sequence)), record.get(MarkerKey::sequenceUUID)))
        return false;
    XmlNode clip = QVXMLParser::parentWithName(marker, "clip");
    if (!clip)
        clip = QVXMLParser::parentWithName(marker, "clipitem");
    return !clip || (same(orNull(QVXMLParser::uuidForNode(clip)), record.get(MarkerKey::clipUUID)) &&
                     same(clip.attribute("id"), record.get(MarkerKey::clipID)));
}

} // namespace

XmlNode MarkerEditor::Candidates::find(const RowRecord &record)
{
    if (!m_list) {
        m_all = QVXMLParser::nodesForQuery(QStringLiteral(".//marker"), m_document.xmlNode())
                    .value_or(XmlNodeList());
        m_list = &m_all;
    }
    const auto found = std::find_if(m_list->begin(), m_list->end(),
                                    [&record](XmlNode marker) { return fits(marker, record); });
    return found == m_list->end() ? XmlNode() : *found;
}

} // namespace vantrell
