#pragma once

#include "document/MyDocument.h"
#include "rows/Column.h"
#include "table/widgets/TableDates.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

/// What is told about a text while it is typed.
struct EntryNote {
    QString text;
    QStringList warnings = {};
};

/// One choice of a pop-up cell.
struct PopUpItem {
    QString title;
    QIcon icon;
    bool isEnabled = true; ///< can be chosen
};

/// A table of the visible rows of its tab, which has none while another tab's are visible. Cells are edited
/// through the function that the owner sets; the model changes no record. Main thread; the document outlives
/// the model.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Writes what was typed or chosen: a text, "1" or "0" of a check box, the index in a pop-up menu.
    using Edit = std::function<void(int row, const QString &column, const QString &text)>;

    /// The role of a text that is written together with what belongs to the cell: with an in point the out
    /// point moves, so that the duration stays. In a column that has nothing of the kind, Qt::EditRole.
    static constexpr int AlongRole = Qt::UserRole + 1;

    Tab tab() const { return m_tab; }
    MyDocument &document() const { return m_document; }
    RowView &view() const { return m_document.rowView(m_tab); }

    // Columns, in the order in which they were added

    const Columns &columns() const { return m_columns; }
    const Column &columnAt(int column) const { return m_columns[std::size_t(column)]; }
    /// What the column is called in the window's language; a custom field as the user called it.
    static QString shownName(const Column &column);
    /// -1 when there is no such column.
    int columnOf(const QString &identifier) const;
    /// Changes the title of a column that is present.
    void addColumn(const Column &column);
    void removeColumn(const QString &identifier);

    // Rows

    const RowRecordPtr &recordAt(int row) const;
    /// Before and after the visible rows are replaced.
    void willReload();
    void didReload();
    /// The records of these rows changed.
    void rowsChanged(int first, int last);

    // Cells

    /// The choices of a pop-up cell.
    virtual std::vector<PopUpItem> popUpItems(const QModelIndex &) const { return {}; }
    /// What the text, written in that role, would make of the cell; told while it is typed. Nothing in a
    /// column whose texts are written as they are typed.
    virtual std::optional<EntryNote> entryNote(const QModelIndex &, const QString &, int) const
    {
        return std::nullopt;
    }
    /// The text of the cell as it is copied and read aloud; "1" or "0" of a check box.
    QString cellText(const QModelIndex &index) const;

    void setEdit(Edit edit) { m_edit = std::move(edit); }
    /// How texts in the AlongRole are written.
    void setEditAlong(Edit edit) { m_editAlong = std::move(edit); }
    bool isEditingEnabled() const { return m_editingEnabled; }
    void setEditingEnabled(bool enabled);

    /// How dates are shown from now on; the caller announces the change.
    void setDateFormat(TableDates::Format format) { m_dateFormat = format; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

protected:
    /// With the columns of the tab's view.
    TableModel(MyDocument &document, Tab tab, QObject *parent);

    static bool isChecked(const RowRecord &record, const Column &column);
    /// The index of a pop-up cell's choice, -1 for none.
    virtual int popUpIndex(const RowRecord &, const Column &) const { return -1; }
    virtual QString text(const RowRecord &record, const Column &column) const;
    virtual QIcon icon(const RowRecord &, const Column &) const { return QIcon(); }
    /// Of a column that has tool tips.
    virtual QString toolTip(const RowRecord &record, const Column &column) const
    {
        return column.textOf(record);
    }

private:
    bool contains(const QModelIndex &index) const;

    MyDocument &m_document;
    Tab m_tab;
    Columns m_columns;
    Edit m_edit;
    Edit m_editAlong;
    bool m_editingEnabled = false;
    TableDates::Format m_dateFormat = TableDates::Format::System;
};

} // namespace vantrell
