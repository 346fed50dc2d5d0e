#pragma once

#include "xml/XmlNode.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace vantrell
{

/// One of the eight marker colours.
struct MarkerColor {
    QString name;  ///< lower case
    QString label; ///< while no preset is chosen
    int red;       ///< 0 to 255, as are the other two
    int green;
    int blue;

    /// The name of its icon.
    QString icon() const { return QStringLiteral("marker-") + label.toLower(); }
};

/// The marker colours by their indexes 0 to 7, and how a "color" element holds one. Any thread.
namespace MarkerColors
{

constexpr std::size_t count = 8;

const std::array<MarkerColor, count> &table();

/// The index of the colour that the element holds; 0 for one that is not in the table and for null.
int indexOfElement(XmlNode color);

/// Makes the element hold the colour; an index outside the table is red. Its children of other names
/// stay.
void setXMLMarkerColorIndex(std::int64_t index, XmlNode color);

/// The index of the colour of that name in whatever case; nothing for a name outside the table.
std::optional<int> find(const QString &name);

/// The same with 0 for a name outside the table.
int indexOfName(const QString &name);

} // namespace MarkerColors
} // namespace vantrell
