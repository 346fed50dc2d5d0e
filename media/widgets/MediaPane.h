#pragma once

#include "media/MediaDrives.h"
#include "media/MediaSearch.h"
#include "media/MediaUseColumns.h"
#include "table/widgets/TabPane.h"

class QComboBox;

namespace vantrell
{

class MediaFooter;
class MediaTableModel;

/// The media files of the project, with their filters, totals and chart.
class MediaPane : public TabPane
{
    Q_OBJECT

public:
    MediaPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent = nullptr);

    /// Refills the drive menu; the chosen drive stays chosen while it is there.
    void prepareToShow() override;
    void applyDefaultsChange(const QString &key) override;
    /// Also adds and removes the columns of mediaUseColumns().
    void showColumn(const QString &identifier, bool isShown) override;

    /// Whether the table shows columns of mediaUseColumns(). The user default "mediaUseColumns" has their
    /// identifiers, for all windows.
    bool showsUses() const { return !m_shownUseColumns.isEmpty(); }
    /// Shows all of them, or none.
    void setShowsUses(bool isShown);

public Q_SLOTS:
    /// Shows the first selected file in the file browser.
    void revealMediaInFinder();

Q_SIGNALS:
    /// The user wants missing files found: the one at that URL, or any (null).
    void relinkRequested(const QString &url);
    void exportListRequested();

protected:
    void setEditingEnabled(bool enabled) override;
    void updateControls() override;
    Columns otherColumns() const override { return m_useColumns; }
    void search() override;
    bool prepareSearch() override;
    QString countText(const QString &number, std::size_t count) const override;
    QString totalText(const RowList &rows) const override;
    QString loadingText(std::size_t found) const override;
    QString emptyText() const override;
    QString filteredText() const override;

private:
    MediaTableModel &mediaModel() const;
    void setMediaChart(const std::vector<double> &values);
    void updateShares();
    QString driveNameOf(const QString &directory);
    void setDrives(std::vector<DriveItem> drives);
    Q_INVOKABLE void openSelectedFile();
    Q_INVOKABLE void explainDelete();
    void makeControls();
    void makeFooter();
    void makeSearch();
    void applyFilters();
    QString selectedMissingUrl() const;
    void restoreUseColumns();
    void storeUseColumns(const QStringList &identifiers);
    void updateUses();

    QComboBox *m_kinds;
    QComboBox *m_drives;
    QPushButton *m_reveal;
    QPushButton *m_relink;
    QPushButton *m_exportList;
    MediaFooter *m_mediaFooter = nullptr;
    QTimer *m_shareTimer;
    QHash<QString, QString> m_driveNames;  // by folder, of the files' shares
    QHash<QString, QString> m_volumeNames; // by path, as the drive menu has them
    std::vector<DriveItem> m_driveItems;
    int m_driveLookups = 0; // started so far

    UserDefaults &m_defaults;
    std::shared_ptr<MediaUseIndex> m_uses = std::make_shared<MediaUseIndex>();
    MediaSearch m_mediaSearch;
    QComboBox *m_states;
    Columns m_useColumns;
    QStringList m_shownUseColumns;
    bool m_readsUses = false; // in the background
    bool m_triesUses = true;  // unless they could not be read
};

} // namespace vantrell
