#pragma once

#include "document/MyDocument.h"
#include "media/MediaDrives.h"
#include "rows/Column.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace vantrell
{

/// The media files on show: those of the inventory that the kind and drive menus leave, sorted as the
/// table is, with their statistics, labels and chart. Main thread unless a member says otherwise. The
/// document must be closed before the object goes away.
class MediaFilter : public QObject
{
    Q_OBJECT

public:
    explicit MediaFilter(MyDocument &document);

    /// The actions of the kind menu and of the drive menu.
    void changeMediaFilter();
    void switchMediaFilter();

    /// Rebuilds the rows on show, the labels and the chart; see MyDocument::rebuildRows(). Any thread.
    void populateFilteredMediaData();

    /// What a file has to pass besides the menus, from the next rebuild on; empty for nothing. It may run on
    /// any thread.
    void setCondition(std::function<bool(const RowRecord &)> condition)
    {
        m_condition = std::move(condition);
    }

    /// Columns that the rows can be sorted by besides those of the table. Before the document is loaded.
    void setAdditionalColumns(const Columns &columns);

    /// Fills the labels of the filtered media and the chart from a record of statistics
    /// (MediaStatisticsKey).
    void updateMediaStats(const RowRecord &statistics);

    /// The statistics of the rows on show; empty before the first rebuild.
    const RowRecord &statistics() const { return m_statistics; }

    /// Refills the drive menu.
    static void populateDrivePopUp(std::vector<DriveItem> &menu) { vantrell::populateDrivePopUp(menu); }

Q_SIGNALS:
    /// The values of the media chart: bytes of the files on show and free bytes of the start-up volume.
    void chartChanged(const std::vector<double> &values);

private:
    void noteShown(const RowRecord &statistics, std::uint64_t totalSize);

    MyDocument &m_document;
    Columns m_columns;
    std::function<bool(const RowRecord &)> m_condition;
    RowRecord m_statistics;
};

} // namespace vantrell
