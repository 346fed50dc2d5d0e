#pragma once

#include "document/MyDocument.h"
#include "media/FrameRanges.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

/// What the sequences use of the project's media files: which frames, how often and where. A sequence uses
/// what its clip items show, and so what the sequences and multiclips nested in it use. Unlike the usage
/// count of a media record, audio counts in every sequence of a project.
///
/// Made in one pass over the tree, on the main thread after the load or on a thread while nobody edits the
/// tree. Immutable once made; then any thread.
class MediaUses
{
public:
    explicit MediaUses(MyDocument &document);

    /// What is asked for.
    struct Choice {
        /// Only what these sequences use, by their indexes in the sequence menu; empty for all of the menu.
        std::vector<int> sequences;
        /// Added to each range at both ends, as far as the file has them.
        std::int64_t handles = 0;
    };

    /// One file; definitions with one path are one file.
    struct File {
        QString path;                       ///< the URL's; the text in the project when that is no URL
        std::vector<FrameRange> ranges;     ///< the used frames, at the file's rate, ascending and apart
        std::optional<std::int64_t> length; ///< in frames, if the project says so
        std::int64_t uses = 0;              ///< video clip items, or audio ones where there are none
        std::vector<int> sequences;         ///< menu indexes, ascending
        bool isStill = false;
        bool isDuplicate = false; ///< another path has the same file name and length
    };

    /// All files in the order of their first definitions.
    std::vector<File> files(const Choice &choice) const;

    /// The index among files() of a definition's URL as it stands in the project; nothing for one that no
    /// definition has.
    std::optional<std::size_t> indexOf(const QString &url) const;

    /// The same for the definitions whose text is no URL, in document order: those of the records without a
    /// path.
    const std::vector<std::size_t> &indexesWithoutPath() const { return m_withoutPath; }

private:
    struct Definition {
        QString path;
        std::optional<std::int64_t> length;
        bool isStill = false;
        bool isDuplicate = false;
    };
    struct Use {
        std::size_t file = 0;
        bool isVideo = false;
        FrameRange range;
    };
    /// A sequence or a multiclip.
    struct Container {
        std::vector<Use> uses;
        std::vector<std::size_t> nested;
        int menuIndex = 0; ///< 0 for none
    };
    class Builder;

    void markDuplicates();
    void visit(std::size_t container, const std::function<void(const Container &)> &action) const;

    std::vector<Definition> m_files;
    QHash<QString, std::size_t> m_byUrl;
    std::vector<std::size_t> m_withoutPath;
    std::vector<Container> m_containers;
    std::vector<std::size_t> m_menu; ///< containers of the menu's sequences that have tracks, ascending
};

} // namespace vantrell
