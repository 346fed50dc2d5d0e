#pragma once

#include <QAbstractItemDelegate>
#include <QByteArray>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>

#include <functional>
#include <vector>

namespace vantrell
{

/// A table that lets its owner watch single keys, whose context menu acts on the clicked row alone, and
/// that shows a text while it has no rows. The tab key goes from cell to cell and leaves the table behind the
/// last one, with the control key at once. The end of an edit leaves the keyboard focus in the table. Main
/// thread.
class QVTableView : public QTableView
{
    Q_OBJECT

public:
    /// A key that is watched: its character, whatever the modifiers, and the name of the slot, without
    /// arguments, that it performs.
    struct WatchKey {
        char16_t keycode;
        QByteArray selector;
    };

    /// Handles a key; false when the table shall handle it as well.
    using KeyHandler = std::function<bool(QVTableView &table, QKeyEvent &event)>;

    explicit QVTableView(QWidget *parent = nullptr);

    const std::vector<WatchKey> &watchKeys() const { return m_watchKeys; }
    /// One entry for each character. The delegate becomes the watch delegate unless there is one.
    void addWatchKeys(const std::vector<char16_t> &keycodes, const QByteArray &selector);
    QObject *watchDelegate() const { return m_watchDelegate; }
    void setWatchDelegate(QObject *delegate) { m_watchDelegate = delegate; }

    /// The object that owns the table, and what it does with keys; without a handler it answers none.
    void setDelegateObject(QObject *delegate) { m_delegate = delegate; }
    void setKeyDownHandler(KeyHandler handler) { m_keyDown = std::move(handler); }
    void setKeyUpHandler(KeyHandler handler) { m_keyUp = std::move(handler); }

    /// The context menu, which the table does not own.
    void setMenu(QMenu *menu) { m_menu = menu; }
    /// Selects the row at the position alone and gives the menu; null where there is no row.
    QMenu *menuForEvent(const QPoint &position);
    QMenu *menu() const { return m_menu; }

    /// Shown in the table while it has no rows.
    QString placeholder() const { return m_placeholder; }
    void setPlaceholder(const QString &text);

    using QTableView::edit;
    bool isEditing() const { return state() == EditingState; }
    /// The cell that is being edited; invalid for none.
    QModelIndex editedCell() const { return isEditing() ? QModelIndex(m_edited) : QModelIndex(); }
    /// Ends the editing of a cell with what has been typed so far; nothing when none is edited.
    void commitEditing();
    /// The same for a text that takes along what belongs to it; see TableModel::AlongRole.
    void commitEditingAlong();
    /// Opens the cell's editor for such a text; nothing when the cell cannot be edited.
    void editAlong(const QModelIndex &index);

    /// The next or previous cell in reading order, as the columns stand; invalid behind the last and before
    /// the first one.
    QModelIndex cellBeside(const QModelIndex &index, bool next) const;

    /// Whether the mouse is pressed on the rows.
    bool isPressed() const;

    void reset() override;

Q_SIGNALS:
    void copyRequested();
    /// By the context menu key with the control key.
    void headerMenuRequested();
    /// A pop-up cell was to be edited, but cannot be or has no items.
    void popUpRefused();

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

protected Q_SLOTS:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    bool moveToCellBeside(bool next);
    bool holdsFocus() const;
    void performWatched(char16_t character);
    bool selectsCurrentRow(const QKeyEvent &event);
    void openPopUp(const QModelIndex &index);
    void setRowHeight();

    std::vector<WatchKey> m_watchKeys;
    QPointer<QObject> m_watchDelegate;
    QPointer<QObject> m_delegate;
    KeyHandler m_keyDown;
    KeyHandler m_keyUp;
    QPointer<QMenu> m_menu;
    bool m_isPressed = false;       ///< by a button of the mouse
    QPersistentModelIndex m_edited; // the cell whose editor was opened last
    QString m_placeholder;
};

} // namespace vantrell
