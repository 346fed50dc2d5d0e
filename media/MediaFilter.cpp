#include "media/MediaFilter.h"

#include "media/MediaColumns.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>

namespace vantrell
{

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

/// The files that the user wants to see, and their statistics. On the thread of one rebuild.
class Choice
{
public:
    Choice(const ViewState &state, const std::function<bool(const RowRecord &)> &condition)
        : m_type(wantedType(state.mediaKind))
        , m_drive(state.mediaDrive)
        , m_condition(condition)
    {
    }

    bool passes(const RowRecord &record)
    {
        if (!m_type.isNull() && record.get(MediaKey::filetype) != m_type)
            return false;
        if (!m_drive.isNull() && !isOnDrive(record, m_drive, volumesFolders()))
            return false;
        if (m_condition && !m_condition(record))
            return false;
        m_statistics.add(record);
        return true;
    }

    const Statistics &statistics() const { return m_statistics; }

private:
    /// Those that the root volume leaves out; asked for once, as a volume may be slow to answer.
    const QStringList &volumesFolders()
    {
        if (!m_volumesFolders) {
            m_volumesFolders.emplace();
            if (m_drive == QStringLiteral("/"))
                *m_volumesFolders << QStringLiteral("/Volumes") << answeringVolumesFolders();
        }
        return *m_volumesFolders;
    }

    QString m_type;  // null for every kind
    QString m_drive; // null for all
    std::function<bool(const RowRecord &)> m_condition;
    std::optional<QStringList> m_volumesFolders;
    Statistics m_statistics;
};

} // namespace

MediaFilter::MediaFilter(MyDocument &document)
    : m_document(document)
    , m_columns(mediaColumns)
{
    m_document.rowView(Tab::Media).setFilter(m_columns, [this] {
        const auto choice = std::make_shared<Choice>(m_document.viewState(), m_condition);
        return RowView::Filter{
            .passes = [choice](const RowRecord &record) { return choice->passes(record); },
            .shown = [this,
                      choice] { noteShown(choice->statistics().record(), choice->statistics().total()); }};
    });
}

void MediaFilter::setAdditionalColumns(const Columns &columns)
{
    m_columns = mediaColumns;
    m_columns.insert(m_columns.end(), columns.begin(), columns.end());
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
        if (m_document.rebuildRows(Tab::Media))
            QVLog::appendLog(u"Finished filtering media");
    });
}

void MediaFilter::noteShown(const RowRecord &statistics, std::uint64_t totalSize)
{
    m_statistics = statistics;
    updateMediaStats(m_statistics);
    m_document.setLabel(Label::MediaTotalSize,
                        formatText(u"Total size: %@", MediaFile::formatFileSize(double(totalSize))));
    m_document.setLabel(Label::MediaTotalFiles,
                        formatText(u"Total number of files: %i", m_document.mediaArray().size()));
}

void MediaFilter::updateMediaStats(const RowRecord &statistics)
{
    guarded("-[MyDocument updateMediaStats:]", [&] {
        using namespace MediaStatisticsKey;
        const double total = bytesOf(statistics, totalSize);
        m_document.setLabel(Label::MediaFilteredTotalSize, formatText(u"Total size of filtered media: %@",
                                                                      MediaFile::formatFileSize(total)));
        m_document.setLabel(
            Label::MediaFilteredTotalFiles,
            formatText(u"Number of filtered media files: %i", m_document.rowsOnShow(Tab::Media).size()));
        m_document.setLabel(Label::MediaLargestFile,
                            fileText(u"Largest", statistics, largestFile, largestFileSize));
        m_document.setLabel(Label::MediaSmallestFile,
                            fileText(u"Smallest", statistics, smallestFile, smallestFileSize));
        Q_EMIT chartChanged({total, freeSpace()});
    });
}

} // namespace vantrell
