#pragma once

#include "document/widgets/TabPane.h"

class QComboBox;

namespace vantrell
{

class MarkerTableModel;

/// The markers of the project, where they are edited.
class MarkersPane : public TabPane
{
    Q_OBJECT

public:
    MarkersPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent = nullptr);

    void setSequenceMenu(const MenuPtr &menu) override;
    void setEditingEnabled(bool enabled) override;

    /// The eight labels that the colour filter and the colour cells show, by colour index.
    void setColorLabels(const QStringList &labels);

    /// Shows in the status line, for a while, what was done.
    void showMessage(const QString &text);

public Q_SLOTS:
    void addMarker();
    /// Removes the selected markers after a question.
    void removeMarkers();
    /// Opens the sheet that offsets the in points of the selected markers.
    void showMarkerOffsetWindow();
    void editCurrentCell();

protected:
    void commitEdit(int row, const QString &column, const QString &text) override;
    void columnMoved(const QString &identifier, int index) override;
    void updateControls() override;
    QString loadingText(std::size_t found) const override;
    QString emptyText() const override;
    QString filteredText() const override;

private:
    MarkerTableModel &markerModel() const;

    QComboBox *m_filter;
    QPushButton *m_add;
    QPushButton *m_remove;
    QPushButton *m_offset;
    QLabel *m_status;
    QString m_message;
    QTimer *m_messageTime;
};

} // namespace vantrell
