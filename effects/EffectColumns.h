#pragma once

#include "rows/Column.h"

namespace vantrell
{

/// The columns of the effects table, in order.
extern const Columns effectColumns;

} // namespace vantrell
