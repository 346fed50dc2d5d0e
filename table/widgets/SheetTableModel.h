#pragma once

#include "rows/Column.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>

namespace vantrell
{

/// The small table of a sheet: columns by their identifiers, cells with a text that is edited or with an
/// image. What it shows belongs to somebody else. Main thread.
class SheetTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Around a change of the number of rows.
    void willReload() { beginResetModel(); }
    void didReload() { endResetModel(); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

protected:
    SheetTableModel(Columns columns, QObject *parent);

    virtual int rows() const = 0;
    virtual QString text(int row, const QString &column) const = 0;
    /// The text was typed, or left as it was.
    virtual void setText(int row, const QString &column, const QString &text) = 0;
    /// A cell that has one has no text.
    virtual QIcon icon(int, const QString &) const { return QIcon(); }
    /// What the cell is, in words; the title of its column unless that does not say enough.
    virtual QString description(int row, int column) const;

private:
    Columns m_columns;
};

} // namespace vantrell
