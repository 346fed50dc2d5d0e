#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

namespace vantrell
{

/// The files of one kind, or on one drive.
struct MediaShare {
    QString name;
    double bytes = 0; ///< of those that have a size
    std::size_t files = 0;
    double part = 0; ///< of all bytes, from 0 to 1; of all files when none has a size

    friend bool operator==(const MediaShare &, const MediaShare &) = default;
};

/// The shares of the groups that the media records belong to, the largest first, equal ones in the order in
/// which they appear; empty without records. Any thread.
std::vector<MediaShare> mediaShares(const RowList &files,
                                    const std::function<QString(const RowRecord &file)> &groupOf);

} // namespace vantrell
