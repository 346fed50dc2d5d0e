#pragma once

#include "media/PathMapping.h"
#include "table/widgets/TableModel.h"

#include <QStringList>

namespace vantrell
{

/// The table of the media files. Those that are missing stand out, and tell what is missing.
class MediaTableModel : public TableModel
{
    Q_OBJECT

public:
    explicit MediaTableModel(MyDocument &document, QObject *parent = nullptr);

    /// The volume that a folder lies on: "/", or the folder's first two components below the root when it
    /// begins with "/Volumes". Null for "/Volumes" itself. Other folders that hold the mounted volumes
    /// count as that one does.
    static QString volumeOf(const QString &directory, const QStringList &volumesFolders);
    QString volumeOf(const QString &directory) const { return volumeOf(directory, m_volumesFolders); }

    /// The paths of the drives that are there. Before it is called nothing is said about drives.
    void setDrives(const QStringList &paths) { m_drives = paths; }
    /// Where files are looked for.
    void setPathMappings(const PathMappings &mappings) { m_mappings = mappings; }

    /// The name of a missing file has a colour of its own.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    QString text(const RowRecord &record, const Column &column) const override;
    QIcon icon(const RowRecord &record, const Column &column) const override;
    /// The whole path of the file.
    QString toolTip(const RowRecord &record, const Column &column) const override;

private:
    void setVolumesFolders(const QStringList &answering);
    QString missingText(const RowRecord &record) const;

    QStringList m_volumesFolders;
    QStringList m_drives;
    PathMappings m_mappings;
};

} // namespace vantrell
