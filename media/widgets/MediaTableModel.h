#pragma once

#include "table/widgets/TableModel.h"

#include <QStringList>

namespace vantrell
{

/// The table of the media files.
class MediaTableModel : public TableModel
{
    Q_OBJECT

public:
    explicit MediaTableModel(MyDocument &document, QObject *parent = nullptr);

    /// The volume that a folder lies on: "/", or the folder's first two components below the root when it
    /// begins with "/Volumes". Null for "/Volumes" itself. Other folders that hold the mounted volumes
    /// count as that one does.
    static QString volumeOf(const QString &directory, const QStringList &volumesFolders);

protected:
    QString text(const RowRecord &record, const Column &column) const override;
    QIcon icon(const RowRecord &record, const Column &column) const override;
    /// The whole path of the file.
    QString toolTip(const RowRecord &record, const Column &column) const override;

private:
    void setVolumesFolders(const QStringList &answering);

    QStringList m_volumesFolders;
};

} // namespace vantrell
