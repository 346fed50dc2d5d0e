#pragma once

#include "document/Menu.h"

#include <QStringList>

#include <memory>
#include <unordered_map>

namespace vantrell
{

/// The clips of each sequence as a pop-up menu, and their ids, each built once. Not thread-safe.
class ClipMenus
{
public:
    /// "(none)", then one item per clip item, clip and generator on the sequence's tracks.
    MenuPtr menuForSequence(XmlNode sequence);

    /// The ids of the menu's items: "" for "(none)" and for a clip without one.
    std::shared_ptr<const QStringList> idsForSequence(XmlNode sequence);

private:
    std::unordered_map<XmlNode, MenuPtr> m_menus;
    std::unordered_map<XmlNode, std::shared_ptr<const QStringList>> m_ids;
};

} // namespace vantrell
