#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

namespace vantrell
{

class MarkerPresets;

/// Renames and deletes marker presets. Opened with open().
class MarkerPresetsSheet : public QDialog
{
    Q_OBJECT

public:
    /// The presets outlive the sheet.
    explicit MarkerPresetsSheet(MarkerPresets &presets, QWidget *parent);

private:
    void fill();
    void rename();
    void editLabels();
    void remove();
    void nameTyped(int row, const QString &name);
    void tell(const QString &failure);
    void updateButtons();

    MarkerPresets &m_presets;
    QListWidget *m_list;
    QLabel *m_hint; ///< while there are no presets
    QLabel *m_failure;
    QPushButton *m_rename;
    QPushButton *m_edit;
    QPushButton *m_delete;
    QStringList m_names; // as they stand in the list
};

} // namespace vantrell
