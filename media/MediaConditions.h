#pragma once

#include "media/MediaUses.h"
#include "rows/RowRecord.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace vantrell
{

/// What the user wants to see of the media files, beside the kind and drive menus.
struct MediaConditions {
    QString search; ///< part of the file's path, in whatever case and Unicode form; empty for all
    bool missingOnly = false;
    /// Only files that no sequence uses; with sequences chosen, none of those.
    bool unusedOnly = false;
    /// Only files that these sequences use, by their indexes in the sequence menu; empty for all files.
    std::vector<int> sequences;

    bool needsUses() const { return unusedOnly || !sequences.empty(); }
};

/// The test that a media record has to pass; empty when all do. \a uses may be null unless they are needed.
/// The test may run on any thread.
std::function<bool(const RowRecord &)> mediaCondition(const MediaConditions &conditions,
                                                      const std::shared_ptr<const MediaUses> &uses);

} // namespace vantrell
