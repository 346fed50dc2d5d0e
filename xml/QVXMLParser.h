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

/// Queries and naming rules for project trees. Stateless; any thread, while nobody edits the tree. Every
/// operation accepts a null node and then returns nothing. An empty optional means "not found"; an empty text
/// means that a node was found and is empty. Nodes come in document order.
///
/// The operations that take a query first pass it through escapeQueryString(); character references in the
/// result are resolved before the evaluation.
class QVXMLParser
{
public:
    /// The string values of all nodes found; nullopt when there are none.
    static std::optional<QStringList> stringValuesForQuery(const QString &query, XmlNode node);
    static std::optional<QString> stringValueForQuery(const QString &query, XmlNode element);
    /// The nodes found, possibly none; nullopt on a query error, which is logged.
    static std::optional<XmlNodeList> nodesForQuery(const QString &query, XmlNode element);
    static XmlNode nodeForQuery(const QString &query, XmlNode element);

    /// The element's id, percent-decoded; nullopt without an id or when decoding fails.
    static std::optional<QString> idAttributeForNode(XmlNode element);
    /// The percent-decoded path of a URL; nullopt when the text is not a valid URL.
    static std::optional<QString> filenameFromPathURLString(const QString &url);

    /// The results of all queries in first-seen order, each node once. After a query has failed, each later
    /// one logs that error again.
    static XmlNodeList nodesFromQueries(XmlNode node, const QStringList &queries);
    /// The results for each node in turn, with duplicates.
    static XmlNodeList queryNodes(const XmlNodeList &nodes, const QString &query);

    /// The track item and the neighbours joined to it by transitions, in track order. The range of the group,
    /// in frames, is stored in the arguments that are not null; -1 when open.
    static XmlNodeList affectedNodesForClip(XmlNode trackItem, std::int64_t *rangeStart = nullptr,
                                            std::int64_t *rangeEnd = nullptr);

    /// The display name: the name child, else the first name at any depth, else the id.
    static std::optional<QString> nameForNode(XmlNode element, bool immediateChildOnly = false);
    static std::optional<QString> uuidForNode(XmlNode element, bool immediateChildOnly = false);

    /// The nearest ancestor of that name, never the node itself; null when one with a limiting name comes
    /// first.
    static XmlNode parentWithName(XmlNode node, std::string_view name,
                                  std::initializer_list<std::string_view> limits = {});

    /// Replaces UTF-16 units from 160 on by decimal references, "&" and carriage returns by references; other
    /// units from 0 to 19 are dropped and logged.
    static QString escapeQueryString(const QString &text);
    /// The text as a query that contains it is evaluated: escaped, then with its references resolved.
    static QString evaluatedText(const QString &text);

    /// The next node in document order after the node's subtree.
    static XmlNode nextSiblingForNode(XmlNode node);
};

} // namespace vantrell
