#pragma once

#include "compare/SourceMapping.h"
#include "xml/XmlNode.h"

#include <QString>

#include <cstdint>

namespace vantrell
{

/// One thing on a track of a sequence, or the gap between two. A value.
struct TrackEvent {
    enum class Kind {
        Clip,      ///< of a file, a nested sequence or a multiclip
        Generator, ///< made by the editing application
        Transition,
        Gap, ///< without an element
    };

    Kind kind = Kind::Clip;
    bool isAudio = false;
    bool isEnabled = true; ///< itself and its track
    int track = 0;         ///< counts from 0 among the tracks of the same media
    int source = -1;       ///< index of the sources; -1 without one
    XmlNode element;
    QString name; ///< "" without one
    /// Its frames, counted from the sequence's first: `start` up to but without `end`. Between two events
    /// joined by a transition they end and start at the cut, where they would meet without it.
    std::int64_t start = 0;
    std::int64_t end = 0;
    SourceMapping mapping; ///< of clips and generators
    /// Its filters by name, whether each is enabled, and whether the event itself is.
    QString effects;

    std::int64_t length() const { return end - start; }
    bool isItem() const { return kind == Kind::Clip || kind == Kind::Generator; }
    /// "V1" or "A2".
    QString trackName() const
    {
        return (isAudio ? QLatin1Char('A') : QLatin1Char('V')) + QString::number(track + 1);
    }
};

} // namespace vantrell
