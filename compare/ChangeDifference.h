#pragma once

#include "compare/CutComparison.h"

namespace vantrell
{

/// What a change amounts to: how far an event was moved or slipped, how much longer ("+") or shorter ("-") it
/// is at its head and tail, both its speeds or tracks, what it replaces, which filters came, went or were
/// switched; the length of what was added or removed. Lengths are timecodes at the new cut's rate, of what
/// was removed at the old one's. Empty when nothing changed. Any thread.
QString differenceOf(const CutComparison &comparison, const EventChange &change);

/// Frames with their sign, as a timecode: "+00:00:02:00".
QString signedTimecode(std::int64_t frames, const SequenceTiming &timing);

} // namespace vantrell
