#include "xml/QVXMLParser.h"

#include "support/log/QVLog.h"
#include "support/text/TextNumbers.h"
#include "xml/XmlQuery.h"
#include "xml/XmlText.h"

#include <algorithm>
#include <unordered_set>

namespace vantrell
{

namespace
{

/// The escaped query with its character references resolved.
QString unescapedReferences(const QString &escaped)
{
    QString plain;
    plain.reserve(escaped.size());
    for (qsizetype i = 0; i < escaped.size(); ++i) {
        if (escaped.at(i) != QLatin1Char('&')) {
            plain.append(escaped.at(i));
            continue;
        }
        const QStringView rest = QStringView(escaped).sliced(i);
        const qsizetype end = rest.indexOf(QLatin1Char(';'));
        bool isNumber = false;
        const int unit = rest.startsWith(u"&#") && end > 2 ? rest.sliced(2, end - 2).toInt(&isNumber) : 0;
        if (isNumber && unit >= 0 && unit <= 0xFFFF) {
            plain.append(QChar(char16_t(unit)));
            i += end;
        } else if (rest.startsWith(u"&amp;")) {
            plain.append(QLatin1Char('&'));
            i += 4;
        } else {
            plain.append(QLatin1Char('&'));
        }
    }
    return plain;
}

/// The query to evaluate: escaped, then with its references resolved.
std::shared_ptr<const XmlQuery> escapedQuery(const QString &query)
{
    return XmlQuery::compiled(QVXMLParser::evaluatedText(query));
}

void logQueryError(const QString &error)
{
    QVLog::appendLog(u"XML parsing error: %@", error);
}

/// A name or UUID for display: percent-decoded, raw when that fails.
QString shownText(const QString &raw)
{
    const QString decoded = XmlText::removingPercentEscapes(raw);
    return decoded.isNull() ? raw : decoded;
}

const XmlQuery &startQuery()
{
    static const XmlQuery query(QStringLiteral("./start[1]/text()"));
    return query;
}

const XmlQuery &endQuery()
{
    static const XmlQuery query(QStringLiteral("./end[1]/text()"));
    return query;
}

bool isOpen(const std::optional<QString> &edge)
{
    return edge == QStringLiteral("-1");
}

/// The track item's edge itself when it is not inside a transition; otherwise walks over the siblings joined
/// to it, passes each to \a add, and returns the edge where the group ends.
template <typename Step, typename Add>
std::optional<QString> groupEdge(XmlNode item, const XmlQuery &edge, const XmlQuery &joint, Step step,
                                 Add add)
{
    const std::optional<QString> own = edge.firstText(item);
    if (!isOpen(own))
        return own;
    for (XmlNode node = step(item); node; node = step(node)) {
        add(node);
        const bool joined = node.isElement("transitionitem") && isOpen(joint.firstText(step(node)));
        if (joined)
            continue;
        const std::optional<QString> text = edge.firstText(node);
        if (!isOpen(text))
            return text;
    }
    return own;
}

} // namespace

std::optional<QStringList> QVXMLParser::stringValuesForQuery(const QString &query, XmlNode node)
{
    const XmlNodeList nodes = escapedQuery(query)->evaluate(node).nodes;
    if (nodes.empty())
        return std::nullopt;
    QStringList values;
    for (const XmlNode found : nodes)
        values.append(found.stringValue());
    return values;
}

std::optional<QString> QVXMLParser::stringValueForQuery(const QString &query, XmlNode element)
{
    return escapedQuery(query)->firstText(element);
}

std::optional<XmlNodeList> QVXMLParser::nodesForQuery(const QString &query, XmlNode element)
{
    XmlQuery::Answer answer = escapedQuery(query)->evaluate(element);
    if (answer.error.isEmpty())
        return std::move(answer.nodes);
    logQueryError(answer.error);
    return std::nullopt;
}

XmlNode QVXMLParser::nodeForQuery(const QString &query, XmlNode element)
{
    const XmlQuery::Answer answer = escapedQuery(query)->evaluate(element, 1);
    if (!answer.error.isEmpty())
        logQueryError(answer.error);
    return answer.nodes.empty() ? XmlNode() : answer.nodes.front();
}

std::optional<QString> QVXMLParser::idAttributeForNode(XmlNode element)
{
    const QString decoded = XmlText::removingPercentEscapes(element.attribute("id"));
    return decoded.isNull() ? std::nullopt : std::optional(decoded);
}

std::optional<QString> QVXMLParser::filenameFromPathURLString(const QString &url)
{
    const QString path = XmlText::pathOfUrl(url);
    return path.isNull() ? std::nullopt : std::optional(path);
}

XmlNodeList QVXMLParser::nodesFromQueries(XmlNode node, const QStringList &queries)
{
    XmlNodeList nodes;
    std::unordered_set<XmlNode> seen;
    QString error;
    for (const QString &query : queries) {
        const XmlQuery::Answer answer = escapedQuery(query)->evaluate(node);
        if (!answer.error.isEmpty())
            error = answer.error;
        if (!error.isEmpty())
            logQueryError(error);
        for (const XmlNode found : answer.nodes) {
            if (seen.insert(found).second)
                nodes.push_back(found);
        }
    }
    return nodes;
}

XmlNodeList QVXMLParser::queryNodes(const XmlNodeList &nodes, const QString &query)
{
    const std::shared_ptr<const XmlQuery> compiled = escapedQuery(query);
    XmlNodeList found;
    for (const XmlNode node : nodes) {
        const XmlNodeList part = compiled->evaluate(node).nodes;
        found.insert(found.end(), part.begin(), part.end());
    }
    return found;
}

XmlNodeList QVXMLParser::affectedNodesForClip(XmlNode trackItem, std::int64_t *rangeStart,
                                              std::int64_t *rangeEnd)
{
    XmlNodeList before;
    XmlNodeList after;
    if (!trackItem)
        return {};
    const std::optional<QString> start = groupEdge(
        trackItem, startQuery(), endQuery(), [](XmlNode node) { return node.previousSibling(); },
        [&before](XmlNode node) { before.push_back(node); });
    const std::optional<QString> end = groupEdge(
        trackItem, endQuery(), startQuery(), [](XmlNode node) { return node.nextSibling(); },
        [&after](XmlNode node) { after.push_back(node); });
    if (rangeStart)
        *rangeStart = integerValue(start.value_or(QString()));
    if (rangeEnd)
        *rangeEnd = integerValue(end.value_or(QString()));
    XmlNodeList group(before.rbegin(), before.rend());
    group.push_back(trackItem);
    group.insert(group.end(), after.begin(), after.end());
    return group;
}

std::optional<QString> QVXMLParser::nameForNode(XmlNode element, bool immediateChildOnly)
{
    static const XmlQuery child(QStringLiteral("./name[1]/text()"));
    static const XmlQuery anywhere(QStringLiteral(".//name[1]/text()"));
    std::optional<QString> raw = child.firstText(element);
    if (!raw && !immediateChildOnly) {
        raw = anywhere.firstText(element);
        if (const QString id = element.attribute("id"); !raw && !id.isNull())
            raw = id;
    }
    return raw ? std::optional(shownText(*raw)) : std::nullopt;
}

std::optional<QString> QVXMLParser::uuidForNode(XmlNode element, bool immediateChildOnly)
{
    static const XmlQuery child(QStringLiteral("./uuid[1]/text()"));
    static const XmlQuery anywhere(QStringLiteral(".//uuid[1]/text()"));
    std::optional<QString> raw = child.firstText(element);
    if (!raw && !immediateChildOnly)
        raw = anywhere.firstText(element);
    return raw ? std::optional(shownText(*raw)) : std::nullopt;
}

XmlNode QVXMLParser::parentWithName(XmlNode node, std::string_view name,
                                    std::initializer_list<std::string_view> limits)
{
    for (XmlNode up = node.parent(); up; up = up.parent()) {
        const bool limited = std::any_of(limits.begin(), limits.end(),
                                         [up](std::string_view limit) { return up.isElement(limit); });
        if (limited)
            return XmlNode();
        if (up.isElement(name))
            return up;
    }
    return XmlNode();
}

QString QVXMLParser::escapeQueryString(const QString &text)
{
    QString escaped(QStringLiteral(""));
    escaped.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text.at(i).unicode();
        if (unit >= 160)
            escaped += QStringLiteral("&#%1;").arg(int(unit));
        else if (unit == u'&')
            escaped += QStringView(text).sliced(i).startsWith(u"&amp;") ? QStringLiteral("&")
                                                                        : QStringLiteral("&amp;");
        else if (unit == u'\r')
            escaped += QStringLiteral("&#13;");
        else if (unit <= 19)
            QVLog::appendLog(u"Stripped character %C", unit);
        else
            escaped += QChar(unit);
    }
    return escaped;
}

QString QVXMLParser::evaluatedText(const QString &text)
{
    return unescapedReferences(escapeQueryString(text));
}

XmlNode QVXMLParser::nextSiblingForNode(XmlNode node)
{
    for (XmlNode up = node; up; up = up.parent()) {
        if (const XmlNode next = up.nextSibling())
            return next;
    }
    return XmlNode();
}

} // namespace vantrell
