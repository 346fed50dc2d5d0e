#pragma once

#include "compare/CutComparison.h"
#include "support/files/Result.h"

#include <cstddef>
#include <vector>

class QIODevice;

namespace vantrell
{

enum class ChangeListFormat {
    Csv,  ///< UTF-8 with a byte order mark; text is not altered, even if a spreadsheet takes it for a formula
    Html, ///< a page of its own
    Edl,  ///< the form of an edit decision list, with the changes as comments
};

/// "csv", "html" or "edl".
QString extensionOf(ChangeListFormat format);

/// Writes the changes with these indexes, in that order. In the form of an edit decision list an event has
/// the record times of the new cut, those of the old one when it was removed; its source times count from the
/// first frame of its file. Errors of the device are told. Any thread.
Result<void> writeChangeList(const CutComparison &comparison, const std::vector<std::size_t> &changes,
                             ChangeListFormat format, QIODevice &device);

} // namespace vantrell
