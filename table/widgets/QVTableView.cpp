#include "table/widgets/QVTableView.h"

#include "support/log/QVLog.h"
#include "table/widgets/TableDelegate.h"
#include "table/widgets/TableModel.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace vantrell
{

namespace
{

/// The first character of the key without its modifiers; 0 for a key without one.
char16_t characterOf(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
        return 9;
    case Qt::Key_Enter:
        return 3;
    case Qt::Key_Return:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Delete:
        return 127;
    default:
        break;
    }
    const QString text = event.text();
    if (!text.isEmpty() && text.front().isPrint())
        return text.front().unicode();
    const bool isCharacter = event.key() >= Qt::Key_Space && event.key() <= Qt::Key_ydiaeresis;
    return isCharacter ? QChar(char16_t(event.key())).toLower().unicode() : u'\0';
}

bool isEditable(const QModelIndex &index, Column::Kind kind)
{
    const auto *model = qobject_cast<const TableModel *>(index.model());
    return model && model->columnAt(index.column()).kind == kind &&
           model->flags(index).testFlag(Qt::ItemIsEditable);
}

bool isPopUp(const QModelIndex &index)
{
    return isEditable(index, Column::Kind::PopUp);
}

/// Whether a click on the cell does more than select its row.
bool actsOnClick(const QModelIndex &index)
{
    return index.flags().testFlag(Qt::ItemIsUserCheckable) || isPopUp(index);
}

void updateRow(const QTableView &table, int row)
{
    if (row >= 0)
        table.viewport()->update(0, table.rowViewportPosition(row), table.viewport()->width(),
                                 table.rowHeight(row));
}

/// Leaves room behind titles at the right, as the cells below them do.
class TableHeader final : public QHeaderView
{
public:
    explicit TableHeader(QWidget *parent)
        : QHeaderView(Qt::Horizontal, parent)
    {
    }

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int section) const override
    {
        QHeaderView::initStyleOptionForIndex(option, section);
        if (option->textAlignment.testFlag(Qt::AlignRight))
            option->text += gap;
    }
    QSize sectionSizeFromContents(int section) const override
    {
        QSize size = QHeaderView::sectionSizeFromContents(section);
        const Qt::Alignment alignment(
            model()->headerData(section, orientation(), Qt::TextAlignmentRole).toInt());
        if (alignment.testFlag(Qt::AlignRight))
            size.rwidth() += fontMetrics().horizontalAdvance(gap);
        return size;
    }

private:
    const QString gap{2, QChar::Nbsp};
};

/// Repaints the row below the mouse, and the one that it has left, also when not the mouse has moved but the
/// rows, or when the table has come up below it.
class HoveredRow final : public QObject
{
public:
    explicit HoveredRow(QTableView *table)
        : QObject(table)
        , m_table(table)
    {
        m_table->viewport()->setMouseTracking(true);
        m_table->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *viewport, QEvent *event) override
    {
        if (!qobject_cast<QTableView *>(viewport->parent()))
            return false; // the table is being destroyed, and its viewport is left by the mouse
        if (event->type() == QEvent::MouseMove || event->type() == QEvent::Paint)
            moveTo(TableDelegate::hoveredRow(*m_table));
        else if (event->type() == QEvent::Leave)
            moveTo(-1);
        return false;
    }

private:
    void moveTo(int row)
    {
        if (row == m_row)
            return;
        for (const int changed : {std::exchange(m_row, row), row})
            updateRow(*m_table, changed);
    }

    QTableView *m_table;
    int m_row = -1;
};

} // namespace

QVTableView::QVTableView(QWidget *parent)
    : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setHorizontalHeader(new TableHeader(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView *header = horizontalHeader();
    header->setSectionsMovable(true);
    header->setFirstSectionMovable(true);
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->setMinimumSectionSize(fontMetrics().height() * 2);
    setRowHeight();
    new HoveredRow(this);
    connect(this, &QAbstractItemView::clicked, this, &QVTableView::openPopUp);
}

void QVTableView::addWatchKeys(const std::vector<char16_t> &keycodes, const QByteArray &selector)
{
    for (const char16_t keycode : keycodes)
        m_watchKeys.push_back({keycode, selector});
    if (!m_watchDelegate)
        m_watchDelegate = m_delegate;
}

QMenu *QVTableView::menuForEvent(const QPoint &position)
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return nullptr;
    // Unlike QTableView's setCurrentIndex() and selectRow(), whatever keys are held.
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return m_menu;
}

void QVTableView::setPlaceholder(const QString &text)
{
    if (m_placeholder == text)
        return;
    m_placeholder = text;
    setAccessibleDescription(text);
    viewport()->update();
}

bool QVTableView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (index.isValid() && isColumnHidden(index.column()))
        return false;
    const bool starts = trigger == AllEditTriggers || trigger == EditKeyPressed;
    const bool needsSelecting = starts && index.isValid() && index.flags().testFlag(Qt::ItemIsEditable) &&
                                !selectionModel()->isSelected(index);
    if (needsSelecting) {
        selectRow(index.row());
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
    const QPersistentModelIndex cell = index;
    const bool edits = QTableView::edit(index, trigger, event); // also without an editor for the cell
    if (edits)
        m_edited = cell;
    const auto *const shown = qobject_cast<const TableModel *>(cell.model());
    if (starts && !isEditing() && shown && shown->columnAt(cell.column()).kind == Column::Kind::PopUp)
        Q_EMIT popUpRefused();
    return edits;
}

void QVTableView::commitEditing()
{
    QWidget *const editor = isEditing() ? indexWidget(m_edited) : nullptr;
    if (!editor)
        return;
    const QPointer<QWidget> open(editor);
    commitData(editor);
    if (open) // unless the edit exchanged the rows
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void QVTableView::commitEditingAlong()
{
    if (QWidget *const editor = isEditing() ? indexWidget(m_edited) : nullptr)
        TableDelegate::setWritesAlong(*editor);
    commitEditing();
}

void QVTableView::editAlong(const QModelIndex &index)
{
    if (!index.flags().testFlag(Qt::ItemIsEditable))
        return;
    edit(index);
    if (QWidget *const editor = indexWidget(index))
        TableDelegate::setWritesAlong(*editor);
}

/// The editor takes the focus with it when the rows are replaced.
void QVTableView::reset()
{
    const bool heldFocus = holdsFocus();
    QTableView::reset();
    if (heldFocus)
        setFocus();
}

/// The arrows of a row's pop-up cells come and go with its being the current one.
void QVTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (current.row() == previous.row())
        return;
    updateRow(*this, previous.row());
    updateRow(*this, current.row());
}

void QVTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool next = hint == QAbstractItemDelegate::EditNextItem;
    const bool moves = next || hint == QAbstractItemDelegate::EditPreviousItem;
    const bool heldFocus = holdsFocus();
    QTableView::closeEditor(editor, moves ? QAbstractItemDelegate::NoHint : hint);
    if (heldFocus)
        setFocus();
    if (moves && moveToCellBeside(next) && isEditable(currentIndex(), Column::Kind::Text))
        edit(currentIndex());
}

bool QVTableView::holdsFocus() const
{
    const QWidget *const focus = window()->focusWidget();
    return focus && (focus == this || isAncestorOf(focus));
}

QModelIndex QVTableView::cellBeside(const QModelIndex &index, bool next) const
{
    if (!index.isValid())
        return QModelIndex();
    const QHeaderView &header = *horizontalHeader();
    const int step = next ? 1 : -1;
    int position = header.visualIndex(index.column()) + step;
    for (int row = index.row(); row >= 0 && row < model()->rowCount(); row += step) {
        for (; position >= 0 && position < header.count(); position += step) {
            const int column = header.logicalIndex(position);
            if (!header.isSectionHidden(column))
                return model()->index(row, column);
        }
        position = next ? 0 : header.count() - 1;
    }
    return QModelIndex();
}

/// Makes that cell the current one, and its row the only selected one unless it is selected already; false
/// when there is no such cell.
bool QVTableView::moveToCellBeside(bool next)
{
    const QModelIndex cell = cellBeside(currentIndex(), next);
    if (!cell.isValid())
        return false;
    const bool staysSelected = selectionModel()->isSelected(cell);
    selectionModel()->setCurrentIndex(cell, staysSelected ? QItemSelectionModel::NoUpdate
                                                          : QItemSelectionModel::ClearAndSelect |
                                                                QItemSelectionModel::Rows);
    scrollTo(cell);
    return true;
}

/// Also called for an editor that is hidden with the focus in it.
bool QVTableView::focusNextPrevChild(bool next)
{
    return (hasFocus() && !isEditing() && moveToCellBeside(next)) || QTableView::focusNextPrevChild(next);
}

/// A table without a current row makes the first one it; what is in view stays there.
void QVTableView::focusInEvent(QFocusEvent *event)
{
    setAutoScroll(false);
    QTableView::focusInEvent(event);
    setAutoScroll(true);
}

bool QVTableView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        m_isPressed = true;
    else if (event->type() == QEvent::MouseButtonRelease)
        m_isPressed = false;
    return QTableView::viewportEvent(event);
}

bool QVTableView::isPressed() const
{
    return m_isPressed && QGuiApplication::mouseButtons() != Qt::NoButton;
}

void QVTableView::keyPressEvent(QKeyEvent *event)
{
    if (isEditing()) {
        QTableView::keyPressEvent(event);
        return;
    }
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isTab && event->modifiers().testFlag(Qt::ControlModifier)) {
        QTableView::focusNextPrevChild(event->key() == Qt::Key_Tab &&
                                       !event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        Q_EMIT copyRequested();
        return;
    }
    if (selectsCurrentRow(*event))
        return;
    if (m_keyDown && !m_keyDown(*this, *event))
        QTableView::keyPressEvent(event);
    if (const char16_t character = characterOf(*event))
        performWatched(character);
    if (!m_keyDown)
        QTableView::keyPressEvent(event);
}

/// Without a selected row the arrow keys select the current one, which is the first row of a new table.
bool QVTableView::selectsCurrentRow(const QKeyEvent &event)
{
    const bool isArrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!isArrow || !isPlain || !currentIndex().isValid() || selectionModel()->hasSelection())
        return false;
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(currentIndex());
    return true;
}

void QVTableView::performWatched(char16_t character)
{
    for (const WatchKey &key : m_watchKeys) {
        if (key.keycode != character)
            continue;
        const bool answers = m_watchDelegate && m_watchDelegate->metaObject()->indexOfMethod(
                                                    (key.selector + "()").constData()) >= 0;
        if (answers) {
            QMetaObject::invokeMethod(m_watchDelegate, key.selector.constData(), Qt::DirectConnection);
            return;
        }
        QVLog::appendLogAndPrint(u"Selector %@ doesn't exist", key.selector);
    }
}

void QVTableView::keyReleaseEvent(QKeyEvent *event)
{
    if (!isEditing() && m_keyUp && m_keyUp(*this, *event))
        return;
    QTableView::keyReleaseEvent(event);
}

void QVTableView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
    if (isKey && event->modifiers().testFlag(Qt::ControlModifier)) {
        Q_EMIT headerMenuRequested();
        return;
    }
    QMenu *menu = event->reason() == QContextMenuEvent::Mouse ? menuForEvent(event->pos()) : m_menu.data();
    if (menu)
        menu->popup(event->globalPos());
}

void QVTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_placeholder.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

void QVTableView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setRowHeight();
}

/// Rows that act on a click stay selected together; everywhere else a click leaves one row selected.
QItemSelectionModel::SelectionFlags QVTableView::selectionCommand(const QModelIndex &index,
                                                                  const QEvent *event) const
{
    const bool isMouse =
        event && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease);
    if (isMouse && index.isValid() && actsOnClick(index) && selectionModel()->isSelected(index) &&
        static_cast<const QMouseEvent *>(event)->modifiers() == Qt::NoModifier)
        return QItemSelectionModel::NoUpdate;
    return QTableView::selectionCommand(index, event);
}

void QVTableView::openPopUp(const QModelIndex &index)
{
    if (isPopUp(index) && QGuiApplication::keyboardModifiers() == Qt::NoModifier)
        edit(index);
}

void QVTableView::setRowHeight()
{
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

} // namespace vantrell
