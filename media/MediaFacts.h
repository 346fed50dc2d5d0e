#pragma once

#include "media/FileChecks.h"
#include "rows/RowRecord.h"

#include <optional>

namespace vantrell
{

/// Gives the record of a media file what the disk says about it, in place of what it had of that: size and
/// date, or the missing mark. None of these for a file whose volume has not answered.
void setFileFacts(RowRecord &record, const std::optional<FileFacts> &facts);

} // namespace vantrell
