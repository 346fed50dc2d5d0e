#pragma once

#include "xml/XmlNode.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace vantrell
{

/// Queries and naming rules for project trees. Stateless; any thread, while nobody edits the tree.
/// Every operation accepts a null node and then gives back nothing. Nothing means "not found"; an
/// empty text means that what was found is empty. Nodes come in document order.
///
/// The operations that take a query first pass it through escapeQueryString(); references that this
/// puts into the query count as the characters that they stand for.
class QVXMLParser
{
public:
    /// The string values of all nodes found; nothing when none is.
    static std::optional<QStringList> stringValuesForQuery(const QString &query, XmlNode node);
    static std::optional<QString> stringValueForQuery(const QString &query, XmlNode element);
    /// The nodes found, empty when none is; nothing on a query error, which is logged.
    static std::optional<XmlNodeList> nodesForQuery(const QString &query, XmlNode element);
    static XmlNode nodeForQuery(const QString &query, XmlNode element);

    /// The element's id, percent-decoded; nothing without an id or when its decoding fails.
    static std::optional<QString> idAttributeForNode(XmlNode element);
    /// The percent-decoded path of a URL; nothing when the text is no valid URL.
    static std::optional<QString> filenameFromPathURLString(const QString &url);

    /// The results of all queries in first-seen order, each node once. Once a query failed, each later
    /// one logs its error again.
    static XmlNodeList nodesFromQueries(XmlNode node, const QStringList &queries);
    /// The results on each node in turn, duplicates kept.
    static XmlNodeList queryNodes(const XmlNodeList &nodes, const QString &query);

    /// The track item and the neighbours joined to it by transitions, in track order.
    static XmlNodeList affectedNodesForClip(XmlNode trackItem);
    /// The same; the range that the group covers goes to the arguments that are given, in frames, -1
    /// when it is open.
    static XmlNodeList affectedNodesForClip(XmlNode trackItem, std::int64_t *rangeStart,
                                            std::int64_t *rangeEnd);

    /// The display name: of the name child, else of the first name at any depth, else the id.
    static std::optional<QString> nameForNode(XmlNode element);
    static std::optional<QString> nameForNode(XmlNode element, bool immediateChildOnly);
    static std::optional<QString> uuidForNode(XmlNode element);
    static std::optional<QString> uuidForNode(XmlNode element, bool immediateChildOnly);

    /// The nearest ancestor of that name; the node itself is none.
    static XmlNode parentWithName(XmlNode node, std::string_view name);
    /// The same, but nothing once an ancestor is named by one of the limits.
    static XmlNode parentWithName(XmlNode node, std::string_view name,
                                  std::initializer_list<std::string_view> limits);

    /// The text with its characters from 160 on as decimal references per UTF-16 unit, "&" and carriage
    /// returns as references, and units 0 to 19 otherwise dropped and logged.
    static QString escapeQueryString(const QString &text);
    /// The text as the evaluation of a query that holds it sees it: escaped, and its references read back
    /// as the characters that they stand for.
    static QString evaluatedText(const QString &text);

    /// The next node in document order after everything that the node holds.
    static XmlNode nextSiblingForNode(XmlNode node);
};

} // namespace vantrell
