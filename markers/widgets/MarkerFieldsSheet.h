#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace vantrell
{

class MarkerFields;
class SheetTable;
class SheetTableModel;

/// Defines the custom marker fields. However it is closed, its definitions are stored and applied. A text
/// that would give a field the identifier of another one is refused, and the sheet stays to tell so. Opened
/// with open().
class MarkerFieldsSheet : public QDialog
{
    Q_OBJECT

public:
    /// The fields outlive the sheet.
    explicit MarkerFieldsSheet(MarkerFields &fields, QWidget *parent);

    /// hideMarkerFieldsDialog: also what is still being typed counts.
    void done(int result) override;
    void accept() override;
    void reject() override;

private:
    bool endEditing();
    void tell(const QString &conflict);
    void markerFieldAdd();
    void markerFieldRemove();
    void updateRemove();

    MarkerFields &m_fields;
    SheetTableModel *m_model;
    SheetTable *m_table;
    QPushButton *m_remove;
    QLabel *m_conflict;
    bool m_isDone = false;
};

} // namespace vantrell
