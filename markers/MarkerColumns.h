#pragma once

#include "markers/MarkerKeys.h"
#include "rows/TableColumn.h"

#include <algorithm>

namespace vantrell
{

/// The columns of the marker table, in order; those of custom fields follow.
inline const TableColumns markerColumns{
    {QStringLiteral("color"), QStringLiteral("")},
    {QStringLiteral("name"), QStringLiteral("Name")},
    {QStringLiteral("comment"), QStringLiteral("Comment")},
    {QStringLiteral("in"), QStringLiteral("In")},
    {QStringLiteral("out"), QStringLiteral("Duration")},
    {QStringLiteral("sequence"), QStringLiteral("Sequence")},
    {QStringLiteral("clip"), QStringLiteral("Clip")},
    {QStringLiteral("chapter"), QStringLiteral("Chapter"), true},
    {QStringLiteral("compression"), QStringLiteral("Compression"), true},
    {QStringLiteral("scoring"), QStringLiteral("Scoring"), true},
};

/// Whether the identifier is one of those or a custom field's.
inline bool isMarkerColumn(const QString &identifier)
{
    return identifier.startsWith(MarkerKey::customPrefix) ||
           std::any_of(markerColumns.begin(), markerColumns.end(),
                       [&identifier](const TableColumn &column) { return column.identifier == identifier; });
}

} // namespace vantrell
