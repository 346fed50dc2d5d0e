#pragma once

#include "compare/PictureMap.h"

#include <cstdint>
#include <map>
#include <tuple>
#include <vector>

namespace vantrell
{

/// Where the frames of sources are seen in a cut, or heard where nothing is seen. The sequence and its map
/// outlive it. Any thread.
class SourcePlaces
{
public:
    SourcePlaces(const SequenceEvents &sequence, const PictureMap &map);

    /// One frame of a source that is looked for.
    struct Wanted {
        MediaSource source;
        bool isAudio = false;
        std::int64_t frame = 0;
        Ratio rate; ///< of the frames, per second; 0 when unknown
        /// Which of the frames of the sequence that showed it in the old cut, and of how many.
        std::int64_t repeat = 0;
        std::int64_t repeats = 1;
    };
    struct Place {
        std::int64_t frame;        ///< of the sequence
        std::size_t part;          ///< of the map
        std::int64_t distance = 0; ///< source frames from the one that is wanted
    };

    /// The places of the frame, one for each time that it is shown, in the order of time; where it is shown
    /// nowhere, those of the nearest frames of the source.
    std::vector<Place> find(const Wanted &wanted) const;

    /// The index of the part's event.
    std::size_t eventAt(std::size_t part) const { return m_map.parts()[part].event; }
    /// The frame where the picture of a part ends, which goes on while the source does.
    std::int64_t endOfPicture(std::size_t part) const;

private:
    struct Shown {
        std::int64_t first; ///< source frames
        std::int64_t last;
        std::int64_t highest; ///< of the last frames up to here in the list
        std::size_t part;
    };

    void addPlaces(const std::vector<Shown> &shown, const Wanted &wanted, std::vector<Place> &places) const;
    void addNearest(const std::vector<Shown> &shown, const Wanted &wanted, std::vector<Place> &places) const;
    void addPlaceIn(const Shown &shown, std::int64_t frame, std::int64_t distance, const Wanted &wanted,
                    std::vector<Place> &places) const;
    std::int64_t frameIn(const Shown &shown, const Wanted &wanted) const;
    const TrackEvent &eventOf(std::size_t part) const;

    const SequenceEvents &m_sequence;
    const PictureMap &m_map;
    SourceIndex m_sources;
    /// By source, media and rate; each list by first frame.
    std::map<std::tuple<int, bool, std::int64_t>, std::vector<Shown>> m_shown;
};

} // namespace vantrell
