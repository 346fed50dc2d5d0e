#pragma once

#include <QDialog>

class QPushButton;

namespace vantrell
{

class MarkerFields;
class SheetTable;
class SheetTableModel;

/// Defines the custom marker fields. However it is closed, its definitions are stored and applied. Opened
/// with open().
class MarkerFieldsSheet : public QDialog
{
    Q_OBJECT

public:
    /// The fields outlive the sheet.
    explicit MarkerFieldsSheet(MarkerFields &fields, QWidget *parent);

    /// hideMarkerFieldsDialog: also what is still being typed counts.
    void done(int result) override;

private:
    void markerFieldAdd();
    void markerFieldRemove();
    void updateRemove();

    MarkerFields &m_fields;
    SheetTableModel *m_model;
    SheetTable *m_table;
    QPushButton *m_remove;
    bool m_isDone = false;
};

} // namespace vantrell
