#pragma once

#include "xml/XmlNode.h"

#include <QString>

#include <unordered_map>

namespace vantrell
{

/// Location paths of many elements of a tree that nobody edits meanwhile. The children of an element are
/// counted only once. One thread.
class XmlLocationPaths
{
public:
    /// As XmlNode::locationPath(); null for an element that is not attached to its document.
    QString pathOf(XmlNode element);

private:
    int indexOf(XmlNode element);

    std::unordered_map<XmlNode, QString> m_parents; // paths of elements used as parents
    std::unordered_map<XmlNode, int> m_indexes;     // of their children
};

} // namespace vantrell
