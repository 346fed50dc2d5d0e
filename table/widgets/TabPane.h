#pragma once

#include "document/TableSorting.h"
#include "rows/RowRecord.h"

#include <QHash>
#include <QPoint>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <array>
#include <initializer_list>
#include <optional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QTimer;
class QVBoxLayout;

namespace vantrell
{

class ColumnLayout;
class FocusReturn;
class MessageLine;
class QVTableView;
class SearchBar;
class TableModel;
class UserDefaults;
class Workbench;

/// One of the three panes of a document window: its table with the controls above and below it. The
/// window makes all three, shows one, and forwards to them what the document asks of its interface; they
/// connect to the document's signals themselves. Main thread; the workbench and the defaults outlive the
/// pane.
class TabPane : public QWidget
{
    Q_OBJECT

public:
    ~TabPane() override;

    Tab tab() const { return m_sorting.tab(); }
    QVTableView &table() const { return *m_table; }
    TableModel &model() const { return *m_model; }

    /// What the window does before it shows the pane.
    virtual void prepareToShow() {}

    // What a document asks of its interface

    /// Indexes of visible rows, ascending; empty while another tab's rows are visible.
    std::vector<std::size_t> selectedRows() const;
    void selectRows(const std::vector<std::size_t> &rows);
    /// Scrolls the row into view and makes it the current one; nothing when it is not there.
    void scrollToRow(std::size_t row);
    /// Begins editing the cell with its text selected; nothing when it is not there.
    void editCell(std::size_t row, const QString &column);
    /// What the visible rows are sorted by, as the arrow in the header shows; nothing while they are in
    /// document order.
    std::optional<SortDescriptor> shownSort() const;
    /// Does what a click on the column's title does: sorts by it, or reverses the order if the rows are
    /// sorted by it already.
    void sortBy(const QString &identifier);

    /// The identifiers of the columns from left to right, and changes to them. Adding a column that is
    /// present changes its title. The position of one that the stored layout contains comes from the layout;
    /// moveColumn() moves only a column that is new to the layout, and only once.
    QStringList columns() const;
    void addColumn(const Column &column);
    void removeColumn(const QString &identifier);
    void moveColumn(const QString &identifier, int index);

    // What the user asks of the columns; hidden ones stay in columns(). All of it is stored with the layout.

    bool isColumnShown(const QString &identifier) const;
    /// Nothing happens when the column cannot be hidden.
    virtual void showColumn(const QString &identifier, bool isShown);
    /// As wide as its title and the cells on show.
    void fitColumn(const QString &identifier);
    void fitAllColumns();
    /// Shows all columns in the order and with the widths of a new table.
    void resetColumns();
    /// Lists the columns to be shown and hidden, and what changes their widths: that of the clicked column,
    /// or of the current cell's when it is empty.
    void fillColumnMenu(QMenu &menu, const QString &clicked = QString());

    // What the window asks

    /// Puts the keyboard focus into the search field, with its text selected.
    void focusSearch();

    /// Whether the project may be changed; false until all its inventories are there.
    virtual void setEditingEnabled(bool enabled);

    /// Shows a message below the table for a while: until the next edit of the project or another selection.
    /// What follows in the same call of the event loop belongs to what the message tells of.
    void showMessage(const QString &text);
    /// The same with a button that copies the path that the message is about.
    void showMessage(const QString &text, const QString &path);

    /// Order and widths of the columns and which are hidden, kept in the user defaults under
    /// "%@ColumnLayout", which decides on the order and the hidden ones in all windows. It is stored with
    /// each change that the user makes, and restored by the constructor.
    void saveLayout();
    void restoreLayout();
    /// A setting that all documents share changed.
    virtual void applyDefaultsChange(const QString &key);

    /// The selected rows, one a line: the texts of the columns from left to right, separated by tabs.
    /// copySelection() copies them to the clipboard.
    QString selectionText() const;

    /// What takes over the answers of the pane's sheets, until the project may be edited; without it they
    /// are applied at once.
    using WhenIdle = std::function<void(std::function<void()> answer)>;
    void setWhenIdle(WhenIdle whenIdle) { m_whenIdle = std::move(whenIdle); }

public Q_SLOTS:
    void copySelection();

Q_SIGNALS:
    void selectionChanged();

protected:
    /// Applies what a sheet was answered with, now or when the project may be edited again.
    void whenIdle(std::function<void()> answer);
    /// The model becomes the pane's.
    TabPane(Workbench &workbench, UserDefaults &defaults, TableModel *model, QWidget *parent);

    Workbench &workbench() const { return m_workbench; }
    /// Puts the controls above the table, from the left, with a gap where one is null; the keyboard reaches
    /// them in this order, then the table.
    void addControls(std::initializer_list<QWidget *> controls);
    /// Such a control, and one elsewhere, leaves the focus to the table when it was used with the mouse.
    void returnFocusFrom(QWidget *control);
    /// Adds the line between the controls and the table that narrows the rows and counts them; after
    /// addControls(), once.
    SearchBar &addSearchBar();
    SearchBar &searchBar() const { return *m_search; }
    /// Below the table.
    QVBoxLayout &footer() const { return *m_footer; }
    /// A line below the table that shows the label's text.
    QLabel *makeLabel(Label label, QWidget *parent);
    QLabel *labelOf(Label label) const { return m_labels.value(label); }
    bool isEditingEnabled() const { return m_editingEnabled; }
    /// Tells below the table why nothing can be edited now; nothing while editing is enabled.
    void tellWhyNotEditable();

    /// A cell was edited: writes it into the project. The row is selected.
    virtual void commitEdit(int row, const QString &column, const QString &text);
    /// The same with what belongs to the cell; see TableModel::AlongRole.
    virtual void commitEditAlong(int row, const QString &column, const QString &text)
    {
        commitEdit(row, column, text);
    }
    /// The user moved a column; the index is its new position from the left.
    virtual void columnMoved(const QString &, int) {}
    /// Columns that showColumn() can add to the table; those that are there may be among them.
    virtual Columns otherColumns() const { return {}; }
    /// Shows the text of showMessage(), empty when its time is up. A pane with a status line of its own
    /// overrides it.
    virtual void setMessage(const QString &text);
    /// Takes away a message that tells of something earlier.
    void dropMessage();
    /// The selection or the rows changed.
    virtual void updateControls() {}
    /// Shows the rows that fulfil the conditions of the search bar.
    virtual void search() = 0;
    /// Prepares the rows for a search for a few milliseconds; true when that is done.
    virtual bool prepareSearch() { return true; }
    /// That many rows, which the text tells, such as "3 of 12": "3 of 12 markers".
    virtual QString countText(const QString &number, std::size_t count) const = 0;
    /// What the rows come to together; may be empty.
    virtual QString totalText(const RowList &) const { return QString(); }
    /// Shown in a table without rows: during a load, and when the list is empty.
    virtual QString loadingText(std::size_t found) const = 0;
    virtual QString emptyText() const = 0;
    /// When the list is not empty but no row passes the filters.
    virtual QString filteredText() const = 0;

private:
    using Commit = void (TabPane::*)(int row, const QString &column, const QString &text);

    void writeCell(int row, const QString &column, const QString &text, Commit commit);
    void tableWillReload();
    void tableDidReload();
    void setSpinning(bool spinning);
    bool showsChoice(const std::vector<std::size_t> &rows, const QString &column, const QString &item) const;
    void clickHeader(int section);
    void showSortIndicator();
    QStringList storedOrder() const;
    void restoreOrder();
    void moveColumnTo(const QString &identifier, int index);
    void restoreHidden();
    void showHeaderMenu(const QPoint &position);
    void moveSection(int section, int from, int to);
    void noteSelectionChange();
    void clearMessage();
    void endMessage();
    void updateBusy();
    void updatePlaceholder();
    void updateCounts();
    void prepareSoon();
    void rememberRows();
    void rememberPlace();
    void restoreRows();

    Workbench &m_workbench;
    UserDefaults &m_defaults;
    TableSorting m_sorting;
    TableModel *m_model;
    QVTableView *m_table;
    FocusReturn *m_focusReturn;
    ColumnLayout *m_columnLayout = nullptr;
    QHBoxLayout *m_controls;
    SearchBar *m_search = nullptr;
    QTimer *m_countTimer;
    QTimer *m_prepareTimer;
    QWidget *m_lastControl = nullptr; // of those above the table
    QVBoxLayout *m_footer;
    QProgressBar *m_busy;
    QLabel *m_busyText;
    QTimer *m_busyTimer;
    MessageLine *m_message;
    QTimer *m_messageTime;
    QTimer *m_newMessage; // runs while what is told of may go on
    QHash<Label, QLabel *> m_labels;
    QSet<QString> m_newColumns; // added without a position in the stored layout

    bool m_spinning = false;
    bool m_editingEnabled = false;
    WhenIdle m_whenIdle;
    bool m_isFilled = false;     // the table has got the rows of its list
    bool m_movesColumns = false; // by the program
    bool m_storesLayout = false;
    bool m_edits = false; // an edit of a cell is in progress
    int m_reloads = 0;    // in progress
    bool m_selectionMuted = false;
    RowList m_keptSelection;
    RowRecordPtr m_keptCurrent;
    std::array<RowRecordPtr, 2> m_keptBeside; // takes the place of the current row when that goes
    int m_keptColumn = 0;
    QPoint m_keptScroll;        // of the scroll bars
    RowRecordPtr m_keptInPlace; // a selected row on the screen
    int m_keptInPlaceAt = 0;    // its index
    int m_keptCount = 0;        // of all rows
};

} // namespace vantrell
