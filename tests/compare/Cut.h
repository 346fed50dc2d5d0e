#pragma once

#include "tests/support/RandomProject.h"

#include <QByteArray>

#include <cstdint>
#include <utility>
#include <vector>

namespace vantrell
{

/// A picture: number of the source and its frame; source -1 for none.
using Picture = std::pair<int, std::int64_t>;

/// One clip of a made-up cut. Frame n of it shows what picture() says, which is written out frame by frame
/// and shares nothing with the program.
struct CutClip {
    enum class Speed {
        Plain,
        Conformed, ///< 24 frames of the source for 25 of the sequence
        Retimed,   ///< in and out count frames at the clip's speed
        Stretched, ///< in and out count frames of the source
        Reversed,
    };

    int source = 0;
    std::int64_t start = 0;
    std::int64_t length = 0;
    std::int64_t in = 0;
    Speed speed = Speed::Plain;
    int percent = 100;
    bool isEnabled = true;

    Picture picture(std::int64_t n) const;
    std::int64_t out() const;
    std::int64_t end() const { return start + length; }
    /// The clip without its first frames, which starts later; and without what follows those.
    CutClip after(std::int64_t frames) const;
    CutClip upTo(std::int64_t frames) const;
};

/// A cut of some video tracks. Sources from 100 on are generators, from 50 on nested sequences, and one is a
/// file of 24 frames a second.
struct Cut {
    static constexpr int conformed = 1; ///< where the sequence has 25
    static constexpr int firstNested = 50;
    static constexpr int firstGenerator = 100;

    std::vector<std::vector<CutClip>> tracks; ///< each in the order of time
    QByteArray rate = "<timebase>25</timebase><ntsc>FALSE</ntsc>";
    bool hasDropFrame = false;

    static Cut random(RandomNumbers &random);

    std::int64_t length() const;
    /// What is seen at each frame.
    std::vector<Picture> pictures() const;
    /// The project; markers at these frames.
    QByteArray xml(const std::vector<std::int64_t> &markers = {}) const;

    void recut(RandomNumbers &random);

    void splitAt(std::size_t track, std::int64_t frame);
    void splitAllAt(std::int64_t frame);
    void shift(std::size_t track, std::int64_t from, std::int64_t by);
    void clear(std::size_t track, std::int64_t from, std::int64_t to);
};

} // namespace vantrell
