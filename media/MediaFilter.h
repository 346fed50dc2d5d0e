#pragma once

#include "document/MyDocument.h"
#include "media/MediaDrives.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace vantrell
{

/// The media files on show: those of the inventory that the kind and drive menus leave, sorted as the
/// table is, with their statistics, labels and chart. Main thread unless a member says otherwise. The
/// document must be closed before the object goes away.
class MediaFilter
{
public:
    explicit MediaFilter(MyDocument &document);

    /// The actions of the kind menu and of the drive menu.
    void changeMediaFilter();
    void switchMediaFilter();

    /// Rebuilds the rows on show, the labels and the chart. Off the main thread it shows them only if
    /// neither a newer rebuild was started nor another tab chosen meanwhile. Any thread.
    void populateFilteredMediaData();

    /// What a file has to pass besides the menus, from the next rebuild on; empty for nothing. It may run on
    /// any thread.
    void setCondition(std::function<bool(const RowRecord &)> condition)
    {
        m_condition = std::move(condition);
    }

    /// Fills the labels of the filtered media and the chart from a record of statistics
    /// (MediaStatisticsKey).
    void updateMediaStats(const RowRecord &statistics);

    /// The statistics of the rows on show; empty before the first rebuild.
    const RowRecord &statistics() const { return m_statistics; }

    /// Refills the drive menu.
    static void populateDrivePopUp(std::vector<DriveItem> &menu) { vantrell::populateDrivePopUp(menu); }

private:
    struct View;
    struct Shown;

    View snapshot();
    static Shown filtered(const View &view);
    void show(Shown shown);

    MyDocument &m_document;
    std::function<bool(const RowRecord &)> m_condition;
    std::uint64_t m_rebuilds = 0; // started so far
    RowRecord m_statistics;
};

} // namespace vantrell
