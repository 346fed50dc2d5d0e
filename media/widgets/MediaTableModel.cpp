#include "media/widgets/MediaTableModel.h"

#include "media/MediaColumns.h"
#include "media/MediaDrives.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "table/widgets/TableIcons.h"

namespace vantrell
{

namespace
{

/// The places of the columns in mediaColumns; no others are ever added.
enum MediaColumn { FileName, FileType, FileSize, ModDate, UsageCount, Missing, Directory };

} // namespace

MediaTableModel::MediaTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Media, mediaColumns, parent)
    , m_volumesFolders(QStringList(QStringLiteral("/Volumes")) + answeringVolumesFolders())
{
}

TableModel::Cell MediaTableModel::cellOf(int column) const
{
    return column == Missing ? Cell::CheckBox : Cell::Text;
}

QString MediaTableModel::volumeOf(const QString &directory, const QStringList &volumesFolders)
{
    for (const QString &folder : volumesFolders) {
        if (!directory.startsWith(folder))
            continue;
        const QStringList parts = directory.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        const qsizetype place = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts).size();
        return place < parts.size() ? folder + QLatin1Char('/') + parts[place] : QString();
    }
    return QStringLiteral("/");
}

bool MediaTableModel::isChecked(const RowRecord &record, int) const
{
    return record.get(MediaKey::missing);
}

QString MediaTableModel::text(const RowRecord &record, int column) const
{
    if (column == FileSize && record.contains(MediaKey::filesize))
        return MediaFile::formatFileSize(double(std::uint64_t(record.get(MediaKey::filesize))));
    if (column == Missing)
        return record.get(MediaKey::missing) ? tr("missing") : QString();
    return TableModel::text(record, column);
}

QIcon MediaTableModel::icon(const RowRecord &record, int column) const
{
    if (column == FileName && record.contains(MediaKey::filename))
        return TableIcons::file(record.get(MediaKey::filename));
    if (column == Directory && record.contains(MediaKey::directory)) {
        const QString volume = volumeOf(record.get(MediaKey::directory), m_volumesFolders);
        return volume.isNull() ? QIcon() : TableIcons::volume(volume);
    }
    return QIcon();
}

QString MediaTableModel::toolTip(const RowRecord &record, int column) const
{
    if (column == FileName || column == Directory)
        return MediaFile::joinedPath(record.get(MediaKey::directory), record.get(MediaKey::filename));
    return QString();
}

Qt::Alignment MediaTableModel::alignment(int column) const
{
    if (column == FileSize || column == UsageCount)
        return Qt::AlignRight | Qt::AlignVCenter;
    return column == Missing ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace vantrell
