#include "table/widgets/TableDelegate.h"

#include "support/widgets/CheckFrame.h"
#include "table/widgets/EntryHint.h"
#include "table/widgets/PopUpCell.h"
#include "table/widgets/TableModel.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QTableView>
#include <QTimer>

#include <limits>

namespace vantrell
{

namespace
{

constexpr int iconSide = 16;
constexpr const char *writesAlong = "writesAlong"; // property of an editor

const TableModel &modelOf(const QModelIndex &index)
{
    return *static_cast<const TableModel *>(index.model());
}

const Column &columnOf(const QModelIndex &index)
{
    return modelOf(index).columnAt(index.column());
}

QStyle &styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

/// About the arrow of a pop-up cell.
int arrowMargin(const QStyleOptionViewItem &option)
{
    return styleOf(option).pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 2;
}

int arrowRoom(const QStyleOptionViewItem &option)
{
    return iconSide / 2 + 2 * arrowMargin(option);
}

QRect checkBoxRect(const QStyleOptionViewItem &option)
{
    const QStyle &style = styleOf(option);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

/// In which the editor's text is written.
int roleOf(const QWidget &editor)
{
    return editor.property(writesAlong).toBool() ? TableModel::AlongRole : Qt::EditRole;
}

/// What is told while the text is typed; also how many rows it is written to.
std::optional<EntryNote> noteOf(const QModelIndex &cell, const QString &typed, const QLineEdit &field)
{
    std::optional<EntryNote> note = modelOf(cell).entryNote(cell, typed, roleOf(field));
    const auto *const view = qobject_cast<const QAbstractItemView *>(field.parentWidget()->parentWidget());
    if (!note || !view || columnOf(cell).edits != Column::Edits::Rows)
        return note;
    const qsizetype rows = view->selectionModel()->selectedRows(cell.column()).size();
    if (rows > 1)
        note->text =
            TableDelegate::tr("%1, in all %2 selected rows").arg(note->text, QLocale().toString(rows));
    return note;
}

/// Whether the cell is in the current row, or in that below the mouse.
bool isCurrentOrHovered(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *view = qobject_cast<const QTableView *>(option.widget);
    return !view || view->currentIndex().row() == index.row() ||
           TableDelegate::hoveredRow(*view) == index.row();
}

/// Frames the whole current cell.
void paintFocus(QPainter *painter, const QStyleOptionViewItem &cell, const QRect &rect)
{
    constexpr int width = 2; // styles draw a hair line, which is lost in a selected row
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const QColor color = cell.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
    painter->save();
    painter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    painter->restore();
}

} // namespace

int TableDelegate::hoveredRow(const QTableView &table)
{
    const QWidget *const viewport = table.viewport();
    const QPoint mouse = viewport->mapFromGlobal(QCursor::pos());
    return viewport->underMouse() && viewport->rect().contains(mouse) ? table.rowAt(mouse.y()) : -1;
}

void TableDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationSize = QSize(iconSide, iconSide);
    if (columnOf(index).elidesMiddle)
        option->textElideMode = Qt::ElideMiddle;
}

/// With the room that the text leaves for the arrow, or for the next column.
QSize TableDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (columnOf(index).kind == Column::Kind::PopUp)
        size.rwidth() += arrowRoom(option);
    else if (columnOf(index).alignment == Qt::AlignRight)
        size.rwidth() += option.fontMetrics.averageCharWidth();
    return size;
}

void TableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    switch (columnOf(index).kind) {
    case Column::Kind::CheckBox:
        paintCheckBox(painter, option, index);
        break;
    case Column::Kind::PopUp:
        paintPopUp(painter, option, index);
        break;
    case Column::Kind::Text:
        paintText(painter, option, index);
        break;
    }
}

void TableDelegate::paintText(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    if (columnOf(index).alignment != Qt::AlignRight) {
        QStyleOptionViewItem unfocused = option;
        unfocused.state &= ~QStyle::State_HasFocus;
        QStyledItemDelegate::paint(painter, unfocused, index);
        if (option.state.testFlag(QStyle::State_HasFocus))
            paintFocus(painter, option, option.rect);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = styleOf(cell);
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    // Or the numbers would stand close to the text of the next column.
    cell.rect.adjust(0, 0, -cell.fontMetrics.averageCharWidth(), 0);
    cell.backgroundBrush = QBrush();
    const bool hasFocus = cell.state.testFlag(QStyle::State_HasFocus);
    cell.state &= ~QStyle::State_HasFocus;
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    if (hasFocus)
        paintFocus(painter, cell, option.rect);
}

void TableDelegate::paintCheckBox(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const bool isChecked = cell.checkState == Qt::Checked;
    const QStyle &style = styleOf(cell);
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    cell.state &= ~QStyle::State_HasFocus;
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    cell.rect = checkBoxRect(option);
    cell.state &= ~QStyle::State_MouseOver;
    cell.state |= isChecked ? QStyle::State_On : QStyle::State_Off;
    const bool isDim = !isChecked && !index.flags().testFlag(Qt::ItemIsUserCheckable);
    cell.state.setFlag(QStyle::State_Enabled, !isDim);
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &cell, painter, cell.widget);
    paintCheckFrame(*painter, cell, CheckShape::Box, isDim);
    if (option.state.testFlag(QStyle::State_HasFocus))
        paintFocus(painter, option, option.rect);
}

void TableDelegate::paintPopUp(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = styleOf(cell);
    const QRect whole = cell.rect;
    const int arrow = iconSide / 2;
    const int margin = arrowMargin(cell);
    const bool hasChoices = !cell.text.isEmpty() || !cell.icon.isNull();
    const bool hasArrow =
        hasChoices && index.flags().testFlag(Qt::ItemIsEditable) && isCurrentOrHovered(option, index);
    // The background goes over the whole cell; icon and text leave room for the arrow where there is one.
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    if (hasArrow)
        cell.rect.adjust(0, 0, -arrowRoom(cell), 0);
    cell.backgroundBrush = QBrush();
    const bool hasFocus = cell.state.testFlag(QStyle::State_HasFocus);
    cell.state &= ~QStyle::State_HasFocus;
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    if (hasFocus)
        paintFocus(painter, cell, whole);
    if (!hasArrow)
        return;
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    QColor ink = cell.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    ink.setAlphaF(0.55F);
    const QPointF tip(whole.right() - margin - arrow / 2.0, whole.center().y() + arrow / 4.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(ink, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(
        QPolygonF({tip - QPointF(arrow / 2.0, arrow / 2.0), tip, tip + QPointF(arrow / 2.0, -arrow / 2.0)}));
    painter->restore();
}

QWidget *TableDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                     const QModelIndex &index) const
{
    QWidget *editor = nullptr;
    if (columnOf(index).kind == Column::Kind::PopUp) {
        editor = createPopUp(parent, index);
    } else if (columnOf(index).kind == Column::Kind::Text) {
        auto *field = new QLineEdit(parent);
        field->setMaxLength(std::numeric_limits<int>::max()); // or a long text would lose its end
        field->setText(index.data(Qt::EditRole).toString());
        field->selectAll();
        if (modelOf(index).entryNote(index, field->text(), Qt::EditRole))
            new EntryHint(*field, [field, cell = QPersistentModelIndex(index)](const QString &typed) {
                return cell.isValid() ? noteOf(cell, typed, *field) : std::nullopt;
            });
        editor = field;
    }
    if (editor)
        editor->setAccessibleName(TableModel::shownName(columnOf(index)));
    return editor;
}

QWidget *TableDelegate::createPopUp(QWidget *parent, const QModelIndex &index) const
{
    std::vector<PopUpItem> items = modelOf(index).popUpItems(index);
    if (items.empty())
        return nullptr;
    auto *list = new PopUpCell(std::move(items), parent);
    list->setCurrentIndex(index.data(Qt::EditRole).toInt());
    list->setMaxVisibleItems(20);
    auto *self = const_cast<TableDelegate *>(this);
    connect(list, &PopUpCell::chosen, self, [self, list] {
        Q_EMIT self->commitData(list);
        // An edit that replaces the rows has closed it already.
        if (!list->isHidden())
            Q_EMIT self->closeEditor(list);
    });
    connect(
        list, &PopUpCell::popupHidden, list,
        [self, list] {
            if (!list->isChosen() && !list->isHidden())
                Q_EMIT self->closeEditor(list, RevertModelCache);
        },
        Qt::QueuedConnection);
    QTimer::singleShot(0, list, &QComboBox::showPopup);
    return list;
}

/// An editor keeps what it was made with, and what was typed since.
void TableDelegate::setEditorData(QWidget *, const QModelIndex &) const {}

void TableDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *list = qobject_cast<PopUpCell *>(editor)) {
        if (list->isChosen())
            model->setData(index, list->currentIndex());
    } else if (auto *field = qobject_cast<QLineEdit *>(editor)) {
        if (field->isModified())
            model->setData(index, field->text(), roleOf(*field));
    }
}

void TableDelegate::setWritesAlong(QWidget &editor)
{
    editor.setProperty(writesAlong, true);
}

void TableDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                         const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

/// Return with the Alt key writes along. A pop-up cell is closed by its list, not by the focus, which changes
/// between the two.
bool TableDelegate::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        auto *const field = qobject_cast<QLineEdit *>(object);
        if (field && isReturn && key->modifiers().testFlag(Qt::AltModifier))
            setWritesAlong(*field);
    }
    const bool isFocus = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide;
    if (isFocus && qobject_cast<PopUpCell *>(object))
        return false;
    return QStyledItemDelegate::eventFilter(object, event);
}

bool TableDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                                const QModelIndex &index)
{
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
        return false;
    bool toggles = false;
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QRect box = checkBoxRect(option).adjusted(-4, -4, 4, 4);
        toggles = mouse->button() == Qt::LeftButton && box.contains(mouse->position().toPoint());
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        toggles = key == Qt::Key_Space || key == Qt::Key_Select;
    }
    if (!toggles)
        return false;
    const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, int(isOn ? Qt::Unchecked : Qt::Checked), Qt::CheckStateRole);
}

} // namespace vantrell
