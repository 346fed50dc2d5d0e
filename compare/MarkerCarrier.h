#pragma once

#include "compare/MarkerPlaces.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace vantrell
{

class MarkerEditor;
class MyDocument;

/// What is to become of one marker, or became of it.
struct CarriedMarker {
    QString name; ///< "" without one
    MarkerSpan marker;
    MarkerPlace place;
    bool isThere = false; ///< the new cut has it at that place already: name, comment and frame are the same
    bool isAdded = false;

    /// "carried", "nearest", "gone" or "there".
    QString stateName() const;
};

/// Adds the markers of one cut to another. Main thread.
class MarkerCarrier
{
public:
    /// The markers of `before` and where they go in `after`.
    static std::vector<CarriedMarker> plan(const SequenceEvents &before, const SequenceEvents &after);

    /// What happens to markers that have no place.
    enum class WithoutPlace {
        Left,
        Added, ///< at the frame that they had
    };

    /// Adds the markers of the plan that are not there to the sequence, an item of the document's sequence
    /// menu, through the editor. Name, comment, colour, flags, fields and whatever else a marker holds come
    /// along as they are. Returns how many were added; a marker that cannot be made is logged and left out.
    /// The list under which a marker inside an item is shown is that of the sequence until the markers are
    /// listed again.
    static std::size_t carry(std::vector<CarriedMarker> &plan, const SequenceEvents &after,
                             MyDocument &document, MarkerEditor &editor, std::int64_t sequenceItem,
                             WithoutPlace withoutPlace = WithoutPlace::Left);
};

} // namespace vantrell
