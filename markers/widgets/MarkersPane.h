#pragma once

#include "markers/MarkerNavigation.h"
#include "markers/MarkerSearch.h"
#include "table/widgets/TabPane.h"

#include <QPointer>

#include <cstdint>

class QCheckBox;
class QComboBox;
class QDialog;

namespace vantrell
{

class MarkerOverviewPanel;
class MarkerPresetPopUp;
class MarkerTableModel;
class WrappedLabel;

/// The markers of the project, where they are edited.
class MarkersPane : public TabPane
{
    Q_OBJECT

public:
    MarkersPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent = nullptr);
    /// Closes the sheet of the fields.
    ~MarkersPane() override;

    void setEditingEnabled(bool enabled) override;
    void applyDefaultsChange(const QString &key) override;

    MarkerOverviewPanel &overview() const { return *m_overview; }
    /// The item of the sequence menu that the overview shows; the first sequence without an overview.
    std::int64_t overviewItem() const;

public Q_SLOTS:
    void addMarker();
    /// Opens the sheet that adds a marker at a chosen sequence and timecode.
    void showMarkerAddDialog();
    /// Adds a copy of each selected marker.
    void duplicateMarkers();
    /// Edits the in point of the current row so that durations stay; ends such an edit.
    void moveInPoint();
    /// Removes the selected markers after a question.
    void removeMarkers();
    /// Opens the sheet that offsets the in points of the selected markers.
    void showMarkerOffsetWindow();
    /// Opens the sheet that defines the custom fields.
    void showMarkerFieldsDialog();
    /// Opens the sheet that makes a preset.
    void showMarkerPresetDialog();
    /// Opens the sheet that renames and deletes presets.
    void showMarkerPresetsDialog();
    void editCurrentCell();
    /// Tells what removes markers, since this key does not.
    void explainDelete();
    /// Opens the sheet that asks for a timecode, and goes to the nearest marker on show.
    void showGoToTimecode();
    /// Go to the next marker of the current one's colour, below or above it.
    void goToNextOfColor() { goToOfColor(MarkerNavigation::Direction::Down); }
    void goToPreviousOfColor() { goToOfColor(MarkerNavigation::Direction::Up); }

protected:
    void commitEdit(int row, const QString &column, const QString &text) override;
    void commitEditAlong(int row, const QString &column, const QString &text) override;
    void columnMoved(const QString &identifier, int index) override;
    void setMessage(const QString &text) override;
    void updateControls() override;
    void search() override;
    bool prepareSearch() override;
    QString countText(const QString &number, std::size_t count) const override;
    QString totalText(const RowList &rows) const override;
    QString loadingText(std::size_t found) const override;
    QString emptyText() const override;
    QString filteredText() const override;

private:
    MarkerTableModel &markerModel() const;
    void makeMenus();
    void makeSearch();
    void fillSequences();
    RowRecordPtr chosenRow() const;
    void goToRow(std::size_t row);
    void goToOfColor(MarkerNavigation::Direction direction);
    void placeOverview();
    void setMarkerLabels(const QStringList &labels);
    void selectAdded(const RowList &added);
    void openPresetSheet();
    void editPresetLabels(const QString &name);
    void closePresetSheet();

    UserDefaults &m_defaults;
    MarkerSearch m_markerSearch;
    QComboBox *m_filter;
    QComboBox *m_sequences;
    QComboBox *m_flags;
    QPushButton *m_add;
    QPushButton *m_addAt;
    QPushButton *m_remove;
    QPushButton *m_offset;
    MarkerPresetPopUp *m_markerPresetPopUp;
    QPushButton *m_fields;
    QCheckBox *m_ownOwners;
    WrappedLabel *m_status;
    MarkerOverviewPanel *m_overview;
    QString m_message;
    QPointer<QDialog> m_presetSheet;
    QPointer<QDialog> m_fieldsSheet;
    QPointer<QDialog> m_presetsSheet;
};

} // namespace vantrell
