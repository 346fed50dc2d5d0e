#pragma once

#include "table/widgets/TabPane.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class QDialog;

namespace vantrell
{

class MarkerOverviewPanel;
class MarkerPresetPopUp;
class MarkerTableModel;

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

public Q_SLOTS:
    void addMarker();
    /// Removes the selected markers after a question.
    void removeMarkers();
    /// Opens the sheet that offsets the in points of the selected markers.
    void showMarkerOffsetWindow();
    /// Opens the sheet that defines the custom fields.
    void showMarkerFieldsDialog();
    /// Opens the sheet that makes a preset.
    void showMarkerPresetDialog();
    void editCurrentCell();

protected:
    void commitEdit(int row, const QString &column, const QString &text) override;
    void columnMoved(const QString &identifier, int index) override;
    void setMessage(const QString &text) override;
    void updateControls() override;
    QString loadingText(std::size_t found) const override;
    QString emptyText() const override;
    QString filteredText() const override;

private:
    MarkerTableModel &markerModel() const;
    void makeMenus();
    void placeOverview();
    void setMarkerLabels(const QStringList &labels);
    void openPresetSheet();
    void closePresetSheet();

    UserDefaults &m_defaults;
    QComboBox *m_filter;
    QPushButton *m_add;
    QPushButton *m_remove;
    QPushButton *m_offset;
    MarkerPresetPopUp *m_markerPresetPopUp;
    QPushButton *m_fields;
    QCheckBox *m_ownOwners;
    QLabel *m_status;
    MarkerOverviewPanel *m_overview;
    QString m_message;
    QPointer<QDialog> m_presetSheet;
    QPointer<QDialog> m_fieldsSheet;
};

} // namespace vantrell
