#pragma once

#include "rows/RowRecord.h"
#include "xml/XmlNode.h"

#include <QByteArray>
#include <QString>

#include <unordered_map>
#include <vector>

namespace vantrell
{

/// Marker records as one JSON array: each with its keys in their order, and with the texts of its In and
/// Duration cells under "display". Elements are location paths, those outside the tree null. It holds copies,
/// so that the text can be made on another thread.
class MarkerJson
{
public:
    /// On the thread that the tree belongs to.
    explicit MarkerJson(const RowList &markers);

    /// The array as UTF-8, with a line end. Any thread.
    QByteArray text() const;

private:
    std::vector<RowRecord> m_markers;
    std::unordered_map<XmlNode, QString> m_paths; ///< of the elements in the records; null outside the tree
};

} // namespace vantrell
