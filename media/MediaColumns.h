#pragma once

#include "rows/Column.h"

namespace vantrell
{

/// The columns of the media table, in order.
extern const Columns mediaColumns;

} // namespace vantrell
