#pragma once

#include "rows/TableColumn.h"

namespace vantrell
{

/// The columns of the media table, in order.
inline const TableColumns mediaColumns{
    {QStringLiteral("filename"), QStringLiteral("Name")},
    {QStringLiteral("filetype"), QStringLiteral("Kind")},
    {QStringLiteral("filesize"), QStringLiteral("Size")},
    {QStringLiteral("modDate"), QStringLiteral("Date Modified")},
    {QStringLiteral("usageCount"), QStringLiteral("Usage")},
    {QStringLiteral("missing"), QStringLiteral("Missing"), true},
    {QStringLiteral("directory"), QStringLiteral("Folder")},
};

} // namespace vantrell
