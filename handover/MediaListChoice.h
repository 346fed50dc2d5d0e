#pragma once

namespace vantrell
{

/// The forms of a list of media files.
enum class MediaListFormat {
    Csv,        ///< a table
    Paths,      ///< for rsync, ended by line feeds
    PathsByNul, ///< for rsync --from0
    Checksums,  ///< a media hash list
};

/// Which media files a list holds.
struct MediaListScope {
    enum class Files {
        All,
        OnShow,     ///< those that the tab shows
        OfSequence, ///< those that a sequence uses
    };
    Files files = Files::All;
    int sequence = 0; ///< its index in the sequence menu
};

} // namespace vantrell
