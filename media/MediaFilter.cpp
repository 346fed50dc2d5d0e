#include "media/MediaFilter.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "rows/RowSort.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <algorithm>
#include <filesystem>

namespace vantrell
{

/// What a rebuild is made of, taken on the main thread.
struct MediaFilter::View {
    std::uint64_t rebuild = 0;
    int kind = 0;
    QString drive; ///< null for all
    std::function<bool(const RowRecord &)> condition;
    std::vector<SortDescriptor> sort;
    RowList rows;
};

struct MediaFilter::Shown {
    RowList rows;
    std::uint64_t totalSize = 0; ///< bytes
    RowRecord statistics;
};

namespace
{

/// Null for every kind.
QString wantedType(int kind)
{
    switch (kind) {
    case 1:
        return MediaKind::movieClip;
    case 2:
        return MediaKind::audioClip;
    case 3:
        return MediaKind::image;
    default:
        return QString();
    }
}

/// Text prefixes alone decide: a drive also keeps the files of one whose name only begins like its own. The
/// root volume keeps nothing of the folders that hold the others.
bool isOnDrive(const RowRecord &record, const QString &drive, const QStringList &volumesFolders)
{
    const QString directory = record.get(MediaKey::directory);
    if (directory.isNull())
        return false;
    const auto isPrefix = [&directory](const QString &folder) { return directory.startsWith(folder); };
    if (std::any_of(volumesFolders.begin(), volumesFolders.end(), isPrefix))
        return false;
    return directory.startsWith(drive);
}

/// Total, largest and smallest of the files that have a size; among equal ones the earlier file counts.
class Statistics
{
public:
    void add(const RowRecord &record)
    {
        const RecordValue *value = record.find(MediaKey::filesize);
        if (!value)
            return;
        const auto size = std::uint64_t(record.get(MediaKey::filesize));
        if (size > m_largestSize) {
            m_largestName = record.get(MediaKey::filename);
            m_largestSize = size;
        }
        m_total += size;
        if (size < m_smallestSize || m_smallestName.isEmpty()) {
            m_smallestName = record.get(MediaKey::filename);
            m_smallestSize = size;
        }
    }

    std::uint64_t total() const { return m_total; }

    RowRecord record() const
    {
        RowRecord record;
        record.set(MediaStatisticsKey::totalSize, std::int64_t(m_total));
        record.set(MediaStatisticsKey::largestFileSize, std::int64_t(m_largestSize));
        if (m_largestName.isNull())
            return record;
        record.set(MediaStatisticsKey::largestFile, m_largestName);
        record.set(MediaStatisticsKey::smallestFileSize, std::int64_t(m_smallestSize));
        if (!m_smallestName.isNull())
            record.set(MediaStatisticsKey::smallestFile, m_smallestName);
        return record;
    }

private:
    std::uint64_t m_total = 0;
    std::uint64_t m_largestSize = 0;
    std::uint64_t m_smallestSize = 0;
    QString m_largestName = QStringLiteral("");
    QString m_smallestName = QStringLiteral("");
};

double bytesOf(const RowRecord &statistics, TypedKey<std::int64_t> key)
{
    return double(std::uint64_t(statistics.get(key)));
}

QString fileText(QStringView what, const RowRecord &statistics, TypedKey<QString> name,
                 TypedKey<std::int64_t> size)
{
    if (!statistics.contains(name))
        return formatText(u"%@ file: Unknown", what);
    return formatText(u"%@ file: %@ (%@)", what, statistics.get(name),
                      MediaFile::formatFileSize(bytesOf(statistics, size)));
}

/// Bytes free on the root volume; 0 when that cannot be read.
double freeSpace()
{
    std::error_code error;
    const std::filesystem::space_info space = std::filesystem::space("/", error);
    return error ? 0 : double(space.available);
}

} // namespace

MediaFilter::MediaFilter(MyDocument &document)
    : m_document(document)
{
}

void MediaFilter::changeMediaFilter()
{
    populateFilteredMediaData();
}

void MediaFilter::switchMediaFilter()
{
    populateFilteredMediaData();
}

void MediaFilter::populateFilteredMediaData()
{
    guarded("-[MyDocument populateFilteredMediaData]", [this] {
        QVLog::appendLog(u"Started filtering media...");
        View view;
        if (!m_document.mainThread()->runAndWait([&] { view = snapshot(); }))
            return;
        Shown shown = filtered(view);
        const bool isWorker = !MainThread::isMainThread();
        m_document.mainThread()->runAndWait([&] {
            const bool isOutdated = isWorker && m_document.viewState().selectedTab != Tab::Media;
            if (view.rebuild == m_rebuilds && !isOutdated)
                show(std::move(shown));
        });
        QVLog::appendLog(u"Finished filtering media");
    });
}

MediaFilter::View MediaFilter::snapshot()
{
    const ViewState &state = m_document.viewState();
    return {++m_rebuilds,
            state.mediaKind,
            state.mediaDrive,
            m_condition,
            m_document.interface().sortDescriptors(Tab::Media),
            m_document.mediaArray()};
}

MediaFilter::Shown MediaFilter::filtered(const View &view)
{
    Shown shown;
    Statistics statistics;
    const QString type = wantedType(view.kind);
    QStringList volumesFolders;
    if (view.drive == QStringLiteral("/"))
        volumesFolders = QStringList(QStringLiteral("/Volumes")) + answeringVolumesFolders();
    for (const RowRecordPtr &record : view.rows) {
        if (!type.isNull() && record->get(MediaKey::filetype) != type)
            continue;
        if (!view.drive.isNull() && !isOnDrive(*record, view.drive, volumesFolders))
            continue;
        if (view.condition && !view.condition(*record))
            continue;
        statistics.add(*record);
        shown.rows.push_back(record);
    }
    shown.rows = sortedRows(std::move(shown.rows), view.sort);
    shown.totalSize = statistics.total();
    shown.statistics = statistics.record();
    return shown;
}

void MediaFilter::show(Shown shown)
{
    m_statistics = std::move(shown.statistics);
    m_document.setTableArray(Tab::Media, std::move(shown.rows));
    updateMediaStats(m_statistics);
    DocumentInterface &interface = m_document.interface();
    interface.setLabel(Label::MediaTotalSize,
                       formatText(u"Total size: %@", MediaFile::formatFileSize(double(shown.totalSize))));
    interface.setLabel(Label::MediaTotalFiles,
                       formatText(u"Total number of files: %i", m_document.mediaArray().size()));
}

void MediaFilter::updateMediaStats(const RowRecord &statistics)
{
    guarded("-[MyDocument updateMediaStats:]", [&] {
        using namespace MediaStatisticsKey;
        DocumentInterface &interface = m_document.interface();
        const double total = bytesOf(statistics, totalSize);
        interface.setLabel(Label::MediaFilteredTotalSize,
                           formatText(u"Total size of filtered media: %@", MediaFile::formatFileSize(total)));
        interface.setLabel(
            Label::MediaFilteredTotalFiles,
            formatText(u"Number of filtered media files: %i", m_document.rowsOnShow(Tab::Media).size()));
        interface.setLabel(Label::MediaLargestFile,
                           fileText(u"Largest", statistics, largestFile, largestFileSize));
        interface.setLabel(Label::MediaSmallestFile,
                           fileText(u"Smallest", statistics, smallestFile, smallestFileSize));
        interface.setMediaChart({total, freeSpace()});
    });
}

} // namespace vantrell
