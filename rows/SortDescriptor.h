#pragma once

#include <QString>

namespace vantrell
{

/// A column that a table is sorted by.
struct SortDescriptor {
    QString column;
    bool descending = false;

    bool operator==(const SortDescriptor &) const = default;
};

} // namespace vantrell
