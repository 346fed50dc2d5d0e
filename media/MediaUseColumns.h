#pragma once

#include "media/MediaUses.h"
#include "media/SourceRange.h"
#include "rows/Column.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace vantrell
{

/// What the media table can show of a file beside what its record holds.
struct MediaUseFacts {
    std::int64_t uses = 0;              ///< see MediaUses::File
    std::int64_t used = 0;              ///< frames
    std::optional<std::int64_t> length; ///< frames, if the project says so
    std::optional<FrameRate> rate;      ///< of these frames, if the project says so
    QString sequences;                  ///< their names
    QString timecode;                   ///< of the first frame
    QString reel;
    QString notes; ///< "unused", "duplicate", "still"
};

/// By URL as it stands in the project.
using MediaUseTable = QHash<QString, MediaUseFacts>;

/// The facts of the files with these URLs. As MediaUses: on the main thread after the load or on a thread
/// while nobody edits the tree.
MediaUseTable mediaUseTable(MyDocument &document, const QStringList &urls);

/// The facts that columns show. Any thread.
class MediaUseIndex
{
public:
    void set(MediaUseTable table);
    /// Whether there are facts of all these records.
    bool holds(const RowList &records) const;
    /// Nothing before they are set, and for a file without.
    std::optional<MediaUseFacts> find(const RowRecord &record) const;

private:
    mutable std::mutex m_mutex; // guards the pointer
    std::shared_ptr<const MediaUseTable> m_table;
};

/// Columns of the media table that are shown on request and are in no report: source timecode, reel, length,
/// used duration, true number of uses, sequences, notes.
Columns mediaUseColumns(const std::shared_ptr<const MediaUseIndex> &index);

} // namespace vantrell
