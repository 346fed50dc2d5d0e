#include "markers/MarkerNavigation.h"

#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"

namespace vantrell::MarkerNavigation
{

std::optional<std::size_t> nextOfColor(const RowList &rows, std::size_t row, Direction direction)
{
    if (row >= rows.size())
        return std::nullopt;
    const std::int64_t color = rows[row]->get(MarkerKey::color);
    const bool isDown = direction == Direction::Down;
    while (isDown ? row + 1 < rows.size() : row > 0) {
        row = isDown ? row + 1 : row - 1;
        if (rows[row]->get(MarkerKey::color) == color)
            return row;
    }
    return std::nullopt;
}

std::optional<std::size_t> nearestRow(const RowList &rows, const RowRecord &marker, std::int64_t frame)
{
    const XmlNode sequence = marker.get(MarkerKey::sequence);
    std::optional<std::size_t> nearest;
    quint64 smallest = 0;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (!(rows[row]->get(MarkerKey::sequence) == sequence))
            continue;
        const std::int64_t in = integerValue(rows[row]->get(MarkerKey::in));
        const quint64 distance = in > frame ? quint64(in) - quint64(frame) : quint64(frame) - quint64(in);
        if (nearest && distance >= smallest)
            continue;
        nearest = row;
        smallest = distance;
    }
    return nearest;
}

} // namespace vantrell::MarkerNavigation
