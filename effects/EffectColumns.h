#pragma once

#include "rows/TableColumn.h"

namespace vantrell
{

/// The columns of the effects table, in order.
inline const TableColumns effectColumns{
    {QStringLiteral("enabled"), QStringLiteral("Enabled"), true},
    {QStringLiteral("name"), QStringLiteral("Name")},
    {QStringLiteral("effectType"), QStringLiteral("Type")},
    {QStringLiteral("mediaType"), QStringLiteral("Media")},
    {QStringLiteral("clip"), QStringLiteral("Clip")},
    {QStringLiteral("sequence"), QStringLiteral("Sequence")},
};

} // namespace vantrell
