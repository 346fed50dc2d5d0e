#pragma once

#include "compare/EventMatch.h"

#include <QString>

#include <optional>
#include <vector>

namespace vantrell
{

/// What became of one event from one cut to another.
struct EventChange {
    /// Of several changes an event has the first that holds; Unchanged when none does.
    enum class Kind {
        Unchanged,
        Replaced, ///< by another source, or a transition by another one, in its place
        Speed,    ///< or its direction
        Slipped,  ///< as long as before, other frames of the source
        Trimmed,  ///< at its head, its tail or both; of a gap or transition: its length
        Track,
        Moved,
        Effects, ///< a filter added, removed or switched, or the event itself switched
        Added,
        Removed,
    };

    Kind kind = Kind::Unchanged;
    std::optional<std::size_t> before; ///< index of the old sequence's event; nothing when it was added
    std::optional<std::size_t> after;  ///< of the new one's; nothing when it was removed
    std::int64_t by = 0;               ///< frames that it was moved by; otherwise 0

    /// "moved" and so on.
    QString kindName() const;
};

/// All events of both sequences, each once: video tracks first, from the lowest on, each in the order of time
/// of the new sequence; what was removed stands after what it stood after. Any thread.
std::vector<EventChange> changesBetween(const SequenceEvents &before, const SequenceEvents &after,
                                        const EventMatch &match);

} // namespace vantrell
