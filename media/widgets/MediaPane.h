#pragma once

#include "media/MediaDrives.h"
#include "table/widgets/TabPane.h"

class QComboBox;

namespace vantrell
{

class QVGraphView;

/// The media files of the project, with their filters, totals and chart.
class MediaPane : public TabPane
{
    Q_OBJECT

public:
    MediaPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent = nullptr);

    /// Refills the drive menu; the chosen drive stays chosen while it is there.
    void prepareToShow() override;

public Q_SLOTS:
    /// Shows the first selected file in the file browser.
    void revealMediaInFinder();

protected:
    void updateControls() override;
    QString loadingText(std::size_t found) const override;
    QString emptyText() const override;
    QString filteredText() const override;

private:
    void setMediaChart(const std::vector<double> &values);
    void setDrives(std::vector<DriveItem> drives);
    void makeControls();
    void makeFooter();
    void applyFilters();

    QComboBox *m_kinds;
    QComboBox *m_drives;
    QPushButton *m_reveal;
    QVGraphView *m_chart;
    std::vector<DriveItem> m_driveItems;
    int m_driveLookups = 0; // started so far
};

} // namespace vantrell
