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

    /// Makes the preset the current one, if there is one of that name.
    void select(const QString &name);

Q_SIGNALS:
    /// The labels of that preset are to be edited in a sheet that takes the place of this one.
    void labelsRequested(const QString &name);

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
