#pragma once

#include <QStyledItemDelegate>

class QTableView;

namespace vantrell
{

/// Draws and edits the cells of a TableModel: texts in a field with the whole text selected, check boxes
/// by a click or the space bar, pop-up cells with a list that opens at once. What is left unchanged is not
/// written. Where the model tells what becomes of a text, that stands below the field while it is typed. The
/// arrows of pop-up cells show in the current row and in the one below the mouse.
class TableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// What the editor holds is to be written along with what belongs to the cell; see TableModel::AlongRole.
    static void setWritesAlong(QWidget &editor);

    /// The row below the mouse; -1 for none.
    static int hoveredRow(const QTableView &table);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QWidget *createPopUp(QWidget *parent, const QModelIndex &index) const;
    void paintCheckBox(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintText(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintPopUp(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
};

} // namespace vantrell
