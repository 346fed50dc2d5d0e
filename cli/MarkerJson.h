#pragma once

#include "rows/RowRecord.h"

#include <QByteArray>

namespace vantrell::cli
{

/// The marker records as one JSON array, each with the texts of its In and Duration cells under "display".
QByteArray markersAsJson(const RowList &markers);

} // namespace vantrell::cli
