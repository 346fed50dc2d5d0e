#pragma once

#include "compare/MarkerPlaces.h"
#include "document/EditHistory.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>
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
    bool isWanted = true; ///< whether it is to be added
    /// Where it is to be added to the sequence when it has no place; a frame of the new cut.
    std::optional<std::int64_t> statedFrame;
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
    static std::vector<CarriedMarker> plan(const SequenceEvents &before, const SequenceEvents &after,
                                           const EventMatch &match);

    /// What happens to markers that have no place and for which none is stated.
    enum class WithoutPlace {
        Left,
        Added, ///< at the frame that they had
    };

    /// Adds the wanted markers of the plan that are not there to the sequence, an item of the document's
    /// sequence menu, through the editor. Name, comment, colour, flags, fields and whatever else a marker
    /// holds come along as they are. Returns how many were added; a marker that cannot be made is logged and
    /// left out. The list under which a marker inside an item is shown is that of the sequence until the
    /// markers are listed again.
    static std::size_t carry(std::vector<CarriedMarker> &plan, const SequenceEvents &after,
                             MyDocument &document, MarkerEditor &editor, std::int64_t sequenceItem,
                             WithoutPlace withoutPlace = WithoutPlace::Left);

    /// How far a plan has been carried out.
    struct Progress {
        std::size_t next = 0; ///< of the plan
        std::size_t added = 0;
        EditGroup group = 0; ///< of the edits, which are one step to undo
    };
    /// The same a few at a time: goes on from `progress` for about that long. Done when `progress.next` is
    /// the size of the plan.
    static void carrySome(std::vector<CarriedMarker> &plan, const SequenceEvents &after, MyDocument &document,
                          MarkerEditor &editor, std::int64_t sequenceItem, Progress &progress,
                          std::optional<std::chrono::milliseconds> limit,
                          WithoutPlace withoutPlace = WithoutPlace::Left);

private:
    static bool add(CarriedMarker &one, const SequenceEvents &after, MyDocument &document,
                    MarkerEditor &editor, std::int64_t sequenceItem, WithoutPlace withoutPlace);
};

} // namespace vantrell
