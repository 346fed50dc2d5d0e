#pragma once

#include "rows/Column.h"

namespace vantrell
{

/// The columns of the marker table, in order; those of custom fields follow.
extern const Columns markerColumns;

/// The column of a custom field.
Column markerFieldColumn(const QString &identifier, const QString &title);

/// Whether the identifier is that of a custom field's column.
bool isMarkerField(const QString &identifier);

/// Whether the marker table may have a column with the identifier.
inline bool isMarkerColumn(const QString &identifier)
{
    return isMarkerField(identifier) || findColumn(markerColumns, identifier);
}

} // namespace vantrell
