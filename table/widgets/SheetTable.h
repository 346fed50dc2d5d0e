#pragma once

#include <QTableView>

namespace vantrell
{

/// The table of a sheet, whose rows are edited in place: by a double click, F2 or typing; the tab key goes
/// on to the next cell that can be edited. Main thread.
class SheetTable : public QTableView
{
    Q_OBJECT

public:
    /// The model outlives the table, or is its child.
    SheetTable(QAbstractItemModel *model, QWidget *parent);

    /// The row that is selected; -1 for none.
    int selectedRow() const;
    /// Takes over what is being typed.
    void endEditing();

protected:
    void changeEvent(QEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void setRowHeight();
};

} // namespace vantrell
