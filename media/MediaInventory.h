#pragma once

#include "document/MyDocument.h"
#include "media/FileChecks.h"
#include "media/MediaFilter.h"
#include "media/MediaUsage.h"
#include "media/PathMapping.h"
#include "support/log/OperationQueue.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace vantrell
{

/// The list of all media files that the project's clips point to, and what the media table does with the
/// files themselves. The document must be closed before the object goes away.
class MediaInventory
{
public:
    /// A path that gets no answer from the disk is waited for this long after the last answer.
    static constexpr std::chrono::seconds patience{15};
    /// The same for a file that the user wants to see.
    static constexpr std::chrono::seconds rowPatience{4};

    MediaInventory(MyDocument &document, MediaFilter &filter);

    /// Rebuilds the document's list of media files and the two labels of its totals, then the rows on
    /// show when the Media tab is chosen. Leaves the list as it is when the document closes meanwhile.
    /// A file whose volume does not answer has neither size nor date and is not marked missing. On a
    /// thread of its own, one run at a time.
    void populateMediaData();

    /// One file to be counted.
    struct ClipSettings {
        QString filename;      ///< the URL as it stands in the project
        QString clipID;        ///< of the file element
        std::size_t index = 0; ///< among the project's files; of two with one URL the later one counts
        const MediaUsage &usage;
    };
    /// Counts one file into the usage table of the run. On the threads of the run's queue.
    void populateUsageCountForClipWithSettings(const ClipSettings &settings);

    /// Shows the file of the first selected row of the media table in the file browser, opens the file of
    /// the clicked row (-1 for none) with its default application. Neither waits for the disk. Where nothing
    /// happens, the tab tells why: without a row, without a file at its path, when the volume does not answer
    /// within the patience for rows, and when there is no program that could show it. Main thread.
    void revealMediaInFinder();
    void mediaTableViewDoubleClick(std::ptrdiff_t clickedRow);

    /// Where files are looked for, from the next run on. The records keep the paths of the project. Main
    /// thread, while no run goes on.
    void setPathMappings(PathMappings mappings) { m_mappings = std::move(mappings); }
    const PathMappings &pathMappings() const { return m_mappings; }

    /// The paths of the records' files on this machine; null for a record without a path. Main thread.
    QStringList placesOf(const RowList &records) const;

    /// Replaces how files are looked at, and the patience. Before a run.
    void setFileCheck(const FileChecks::Check &check, std::chrono::milliseconds checkPatience);

private:
    struct File;
    struct Usage {
        std::size_t index = 0; ///< of the file
        std::int64_t count = 0;
    };

    void build();
    bool collect(std::vector<File> &files, XmlNodeList &sequences) const;
    void countUsage(const std::vector<File> &files, const MediaUsage &usage);
    RowList recordsOf(const std::vector<File> &files, const FileChecks::Answers &answers,
                      std::uint64_t &total) const;
    void withFileOfRow(std::size_t row, bool (*action)(const QString &), const QString &failure);
    void tell(const QString &text) const;
    QString projectFolder() const;
    QString pathOfRow(std::size_t row) const;

    MyDocument &m_document;
    MediaFilter &m_filter;
    FileChecks::Check m_check = FileChecks::lookUp;
    std::chrono::milliseconds m_patience = patience;
    PathMappings m_mappings;

    /// As wide as the machine has processors; made and ended by each run, on whose thread alone it is
    /// touched. Cancelled when the run notices that the document closes.
    std::unique_ptr<OperationQueue> m_mediaOpQueue;

    std::mutex m_usageMutex;               // guards m_tempUsageDict while the queue runs
    QHash<QString, Usage> m_tempUsageDict; ///< by URL; read once the queue has ended
};

} // namespace vantrell
