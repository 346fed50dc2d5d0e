#include "table/widgets/SheetTable.h"

#include "support/widgets/CheckFrame.h"

#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>

#include <limits>

namespace vantrell
{

namespace
{

/// Edits texts of any length, and tells screen readers which cell is being edited.
class SheetDelegate final : public FramedCheckDelegate
{
public:
    using FramedCheckDelegate::FramedCheckDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        QWidget *const editor = FramedCheckDelegate::createEditor(parent, option, index);
        if (auto *const field = qobject_cast<QLineEdit *>(editor))
            field->setMaxLength(std::numeric_limits<int>::max());
        if (editor)
            editor->setAccessibleName(index.data(Qt::AccessibleDescriptionRole).toString());
        return editor;
    }
};

} // namespace

SheetTable::SheetTable(QAbstractItemModel *model, QWidget *parent)
    : QTableView(parent)
{
    setModel(model);
    setItemDelegate(new SheetDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(0);
    setRowHeight();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
}

int SheetTable::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void SheetTable::endEditing()
{
    if (state() != EditingState)
        return;
    if (QWidget *const editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void SheetTable::setRowHeight()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

void SheetTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setRowHeight();
}

QModelIndex SheetTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveNext && action != MovePrevious)
        return QTableView::moveCursor(action, modifiers);
    const int columns = model()->columnCount();
    const int cells = model()->rowCount() * columns;
    const int step = action == MoveNext ? 1 : -1;
    const QModelIndex current = currentIndex();
    for (int cell = current.row() * columns + current.column() + step; cell >= 0 && cell < cells;
         cell += step) {
        const QModelIndex index = model()->index(cell / columns, cell % columns);
        if (index.flags().testFlag(Qt::ItemIsEditable))
            return index;
    }
    return QModelIndex();
}

} // namespace vantrell
