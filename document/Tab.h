#pragma once

namespace vantrell
{

/// The three tabs of a document, each with one table.
enum class Tab { Media, Effects, Markers };

/// Texts that a tab shows beside its table.
enum class Label {
    MediaTotalSize,
    MediaTotalFiles,
    MediaFilteredTotalSize,
    MediaFilteredTotalFiles,
    MediaLargestFile,
    MediaSmallestFile,
    EffectStatus,
};

} // namespace vantrell
