#pragma once

#include "xml/XmlNode.h"

#include <QString>

#include <memory>
#include <vector>

namespace vantrell
{

/// One item of a pop-up menu over the project: its title, the name of its image and the element that it
/// stands for. "(none)" has neither image nor element.
struct MenuItem {
    QString title;
    QString image;
    XmlNode element;
};

/// The items in order; item 0 is "(none)". Immutable once shared.
using Menu = std::vector<MenuItem>;
using MenuPtr = std::shared_ptr<const Menu>;

} // namespace vantrell
