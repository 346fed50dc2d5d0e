#pragma once

#include "markers/OwnerIndexes.h"

namespace vantrell
{

/// Which sequence and clip markers are listed under.
enum class OwnerListing {
    ByPosition, ///< those that share a position in the project share what the first of them gave
    Own,        ///< each marker's nearest sequence, and the nearest clip inside that
};

/// The sequence and clip that really hold a marker.
struct OwnOwner {
    XmlNode sequence; ///< the nearest "sequence"; null outside all sequences
    XmlNode clip;     ///< the nearest "clipitem" or "clip" inside that; null when there is none

    /// Of the markers right below the element.
    static OwnOwner ofMarkersIn(XmlNode parent);

    // What they put into the record of such a marker

    /// \a uuid and \a name are the sequence's; nothing when it has none.
    RowRecord sequenceKeys(OwnerIndexes &indexes, const std::optional<QString> &uuid,
                           const std::optional<QString> &name) const;
    RowRecord clipKeys(OwnerIndexes &indexes) const;
};

} // namespace vantrell
