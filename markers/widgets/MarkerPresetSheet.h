#pragma once

#include <QDialog>

class QLineEdit;

namespace vantrell
{

class MarkerPresets;
class SheetTable;

/// Makes a marker preset: its name and the labels of the eight colours. It stays until the preset is saved
/// or the user gives it up, and is closed by whoever opened it, as the presets ask. Opened with open().
class MarkerPresetSheet : public QDialog
{
    Q_OBJECT

public:
    /// The presets, which have filled their rows, outlive the sheet.
    explicit MarkerPresetSheet(MarkerPresets &presets, QWidget *parent);

    void reject() override;

private:
    void save();

    MarkerPresets &m_presets;
    QLineEdit *m_markerPresetNameText;
    SheetTable *m_table;
};

} // namespace vantrell
