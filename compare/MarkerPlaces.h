#pragma once

#include "compare/EventMatch.h"
#include "compare/SourcePlaces.h"

#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace vantrell
{

/// A marker to be carried. One of the sequence counts frames from its first; one inside an item counts as the
/// item's in point does.
struct MarkerSpan {
    XmlNode element;
    std::int64_t in = 0;
    std::int64_t duration = 0;        ///< frames; 0 for none
    std::optional<std::size_t> event; ///< the old item that holds it; nothing for the sequence's own

    /// The markers of a sequence and of the items on its tracks, in the order of the file.
    static std::vector<MarkerSpan> of(const SequenceEvents &sequence);
};

/// Where a marker goes.
struct MarkerPlace {
    enum class State {
        Carried, ///< with its picture
        Nearest, ///< near it, or to a place that has to be looked at: the speed varies, or a gap has closed
        Gone,    ///< nowhere
    };

    State state = State::Gone;
    std::int64_t oldFrame = 0; ///< both of their sequence
    std::int64_t newFrame = 0; ///< unless it is gone
    /// What is to be written, counted as in the marker.
    std::int64_t in = 0;
    std::int64_t duration = 0;
    std::optional<std::size_t> event; ///< the new item that is to hold it
    QString file;                     ///< path, else name, of its source; null without one
    std::optional<std::int64_t> sourceFrame;
};

/// Where the markers of one cut go in another.
///
/// A marker of the sequence goes to where the picture that it is on is seen (see PictureMap, SourcePlaces).
/// Of several places it takes one between those of the markers around it that have only one place; of these
/// one in the same event; of these the nearest to where it would be, had it kept its distance to the marker
/// before it. A sound that has a picture over it now is found, too, to be looked at.
/// In a gap or over a generator it keeps its distance to the nearest clip that is in both cuts, a
/// clip beneath the generator being the nearest. Its duration ends where the picture ends. A marker inside an
/// item follows the item, or the part of it that has the marker's frame.
///
/// Any thread, while nobody edits the trees.
class MarkerPlaces
{
public:
    /// All outlive it.
    MarkerPlaces(const SequenceEvents &before, const SequenceEvents &after, const EventMatch &match);

    /// The places of the markers, in their order.
    std::vector<MarkerPlace> placesOf(const std::vector<MarkerSpan> &markers) const;

private:
    struct Search;

    Search search(const MarkerSpan &marker) const;
    void settle(Search &search, const Search *before, const Search *after) const;
    std::size_t chosenPlace(const Search &search, const Search *before, const Search *after) const;
    MarkerPlace besidePicture(const MarkerSpan &marker) const;
    std::optional<std::int64_t> frameOverClip(std::int64_t frame) const;
    std::optional<std::int64_t> frameBesideClip(std::int64_t frame) const;
    std::int64_t newFrameOf(std::size_t event, std::int64_t oldFrame) const;
    MarkerPlace inItem(const MarkerSpan &marker) const;
    int itemFor(const TrackEvent &item, int matched, std::int64_t source) const;
    const TrackEvent *matchedClip(std::size_t event) const;

    const SequenceEvents &m_old;
    const SequenceEvents &m_new;
    const EventMatch &m_match;
    const PictureMap m_oldMap;
    const PictureMap m_newMap;
    const PictureMap m_oldClips;
    const SourcePlaces m_places;
    const PictureMap m_newSounds;
    const SourcePlaces m_soundPlaces;
    std::vector<PictureMap::Part> m_keptParts; ///< of the old clips that are in both cuts
    const SourceIndex m_newSources;
    std::map<int, std::vector<int>> m_addedClips; ///< new events without a match, by source and in order
};

} // namespace vantrell
