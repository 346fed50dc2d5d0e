#include "table/widgets/TabPane.h"

#include "support/files/PropertyList.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/ElidedLabel.h"
#include "support/widgets/MessageLine.h"
#include "support/widgets/SelectableLabel.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/ColumnLayout.h"
#include "table/widgets/FocusReturn.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
#include "table/widgets/TableDates.h"
#include "table/widgets/TableDelegate.h"
#include "table/widgets/TableModel.h"
#include "workbench/Workbench.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QProgressBar>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

constexpr int busyInterval = 150; // milliseconds
constexpr int messageMs = 30000;
constexpr int countMs = 30;
constexpr int restMs = 1000; // before rows are prepared for a search that may come
const QString identifierKey = QStringLiteral("identifier");
const QString widthKey = QStringLiteral("width");
const QString characterKey = QStringLiteral("characterWidth");
const QString hiddenKey = QStringLiteral("hidden");

QString layoutKey(Tab tab)
{
    return TableSorting::prefixOf(tab) + QStringLiteral("ColumnLayout");
}

/// A cell's text on one line, without tabs.
QString plain(QString text)
{
    for (const char16_t separator : {u'\t', u'\n', u'\r'})
        text.replace(QChar(separator), QLatin1Char(' '));
    return text;
}

} // namespace

TabPane::TabPane(Workbench &workbench, UserDefaults &defaults, TableModel *model, QWidget *parent)
    : QWidget(parent)
    , m_workbench(workbench)
    , m_defaults(defaults)
    , m_sorting(workbench.document(), defaults, model->tab())
    , m_model(model)
    , m_table(new QVTableView(this))
    , m_focusReturn(new FocusReturn(m_table))
    , m_controls(new QHBoxLayout)
    , m_countTimer(new QTimer(this))
    , m_prepareTimer(new QTimer(this))
    , m_footer(new QVBoxLayout)
    , m_busy(new QProgressBar(this))
    , m_busyText(new QLabel(this))
    , m_busyTimer(new QTimer(this))
    , m_message(new MessageLine(this))
    , m_messageTime(new QTimer(this))
    , m_newMessage(new QTimer(this))
{
    m_model->setParent(this);
    m_model->setDateFormat(TableDates::storedFormat(m_defaults));
    m_model->setEdit([this](int row, const QString &column, const QString &text) {
        writeCell(row, column, text, &TabPane::commitEdit);
    });
    m_model->setEditAlong([this](int row, const QString &column, const QString &text) {
        writeCell(row, column, text, &TabPane::commitEditAlong);
    });
    m_table->setModel(m_model);
    m_columnLayout = new ColumnLayout(*m_table, *m_model, this);
    m_table->setItemDelegate(new TableDelegate(m_table));
    m_table->setDelegateObject(this);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setFixedWidth(fontMetrics().averageCharWidth() * 14);
    m_busy->setAccessibleName(tr("Reading the project"));
    m_busy->hide();
    m_busyText->hide();
    m_busyTimer->setInterval(busyInterval);
    m_messageTime->setSingleShot(true);
    m_newMessage->setSingleShot(true);
    m_newMessage->setInterval(0);
    m_countTimer->setSingleShot(true);
    m_countTimer->setInterval(countMs);

    auto *top = new QHBoxLayout;
    top->addLayout(m_controls);
    top->addStretch();
    top->addWidget(m_busyText);
    top->addWidget(m_busy);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_table, 1);
    layout->addLayout(m_footer);
    layout->addWidget(m_message);

    QHeaderView *header = m_table->horizontalHeader();
    connect(header, &QHeaderView::sectionClicked, this, &TabPane::clickHeader);
    connect(header, &QHeaderView::sectionMoved, this, &TabPane::moveSection);
    connect(m_columnLayout, &ColumnLayout::resized, this, &TabPane::saveLayout);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &TabPane::showHeaderMenu);
    connect(m_table, &QVTableView::headerMenuRequested, this, [this] { showHeaderMenu(QPoint()); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TabPane::noteSelectionChange);
    connect(m_table, &QVTableView::copyRequested, this, &TabPane::copySelection);
    connect(m_busyTimer, &QTimer::timeout, this, &TabPane::updateBusy);
    connect(m_countTimer, &QTimer::timeout, this, &TabPane::updateCounts);
    connect(this, &TabPane::selectionChanged, m_countTimer, qOverload<>(&QTimer::start));
    connect(m_model, &QAbstractItemModel::dataChanged, m_countTimer, qOverload<>(&QTimer::start));
    connect(m_prepareTimer, &QTimer::timeout, this, [this] {
        if (prepareSearch())
            m_prepareTimer->stop();
        else
            m_prepareTimer->setInterval(0);
    });
    connect(m_messageTime, &QTimer::timeout, this, &TabPane::endMessage);
    connect(&m_workbench.document(), &MyDocument::historyChanged, this, &TabPane::dropMessage);
    const RowView &view = m_model->view();
    connect(&view, &RowView::willReload, this, &TabPane::tableWillReload);
    connect(&view, &RowView::didReload, this, &TabPane::tableDidReload);
    connect(&view, &RowView::populatingChanged, this, &TabPane::setSpinning);
    const MyDocument &document = m_workbench.document();
    connect(&document, &MyDocument::labelChanged, this, [this](Label label, const QString &text) {
        if (QLabel *widget = m_labels.value(label))
            widget->setText(shownMessage(text));
    });
    connect(&document, &MyDocument::messageGiven, this, [this](Tab given, const QString &text) {
        if (given == tab())
            showMessage(text);
    });
    connect(&document, &MyDocument::historyChanged, this, &TabPane::prepareSoon); // texts may have changed
    header->setSortIndicatorShown(true);
    restoreLayout();
    showSortIndicator();
}

TabPane::~TabPane()
{
    if (m_search) // it loses the keyboard focus when it goes
        m_search->disconnect(this);
}

// The rows

void TabPane::writeCell(int row, const QString &column, const QString &text, Commit commit)
{
    const QScopedValueRollback<bool> edits(m_edits, true);
    const std::vector<std::size_t> selected = selectedRows();
    // An edit that writes to a single row writes to the one that was clicked.
    const Column &edited = m_model->columnAt(m_model->columnOf(column));
    const bool editsOne = edited.edits == Column::Edits::FirstRow;
    const bool isSelected = editsOne ? !selected.empty() && selected.front() == std::size_t(row)
                                     : std::binary_search(selected.begin(), selected.end(), std::size_t(row));
    const bool isOneRow = editsOne || !isSelected;
    if (showsChoice(isOneRow ? std::vector{std::size_t(row)} : selected, column, text))
        return;
    if (!isSelected)
        selectRows({std::size_t(row)});
    (this->*commit)(row, column, text);
    const std::vector<std::size_t> changed = selectedRows();
    if (!changed.empty())
        m_model->rowsChanged(int(changed.front()), int(changed.back()));
}

void TabPane::tableWillReload()
{
    if (m_reloads == 0 && !m_edits)
        m_table->commitEditing(); // or it would be lost with the rows
    if (m_reloads++ > 0)
        return;
    rememberRows();
    m_model->willReload();
}

void TabPane::tableDidReload()
{
    if (m_reloads == 0 || --m_reloads > 0)
        return;
    m_model->didReload();
    m_isFilled = m_model->view().isVisible();
    if (m_isFilled)
        restoreRows();
    prepareSoon();
    showSortIndicator();
    updatePlaceholder();
    updateControls();
    Q_EMIT selectionChanged();
}

void TabPane::rememberRows()
{
    if (!m_model->view().isVisible())
        return;
    m_keptSelection.clear();
    const std::vector<std::size_t> selected = selectedRows();
    for (const std::size_t row : selected)
        m_keptSelection.push_back(m_model->recordAt(int(row)));
    const QModelIndex current = m_table->currentIndex();
    m_keptCurrent = current.isValid() ? m_model->recordAt(current.row()) : nullptr;
    m_keptBeside = {};
    if (current.isValid()) {
        // The next row and the one before, but for those that are selected: they may go as well.
        const auto isSelected = [&](int row) {
            return std::binary_search(selected.begin(), selected.end(), std::size_t(row));
        };
        int below = current.row() + 1;
        while (isSelected(below))
            ++below;
        int above = current.row() - 1;
        while (above >= 0 && isSelected(above))
            --above;
        if (below < m_model->rowCount())
            m_keptBeside[0] = m_model->recordAt(below);
        if (above >= 0)
            m_keptBeside[1] = m_model->recordAt(above);
    }
    m_keptColumn = current.column();
    m_keptScroll = {m_table->horizontalScrollBar()->value(), m_table->verticalScrollBar()->value()};
    rememberPlace();
}

/// A selected row on the screen, the current one if it can be, stays where it is when rows above it come and
/// go, as with another filter.
void TabPane::rememberPlace()
{
    m_keptInPlace = nullptr;
    m_keptCount = m_model->rowCount();
    const int first = m_table->rowAt(0);
    if (first < 0)
        return;
    const int below = m_table->rowAt(m_table->viewport()->height() - 1);
    const int last = below < 0 ? m_keptCount - 1 : below;
    const QItemSelectionModel &selection = *m_table->selectionModel();
    int row = m_table->currentIndex().row();
    if (row < first || row > last || !selection.rowIntersectsSelection(row)) {
        row = first;
        while (row <= last && !selection.rowIntersectsSelection(row))
            ++row;
    }
    if (row > last)
        return;
    m_keptInPlace = m_model->recordAt(row);
    m_keptInPlaceAt = row;
}

void TabPane::restoreRows()
{
    std::vector<std::size_t> selected;
    std::ptrdiff_t current = -1;
    std::array<std::ptrdiff_t, 2> beside = {-1, -1};
    std::ptrdiff_t moved = 0; // rows
    if (!m_keptSelection.empty() || m_keptCurrent) {
        const std::unordered_set<RowRecordPtr> kept(m_keptSelection.begin(), m_keptSelection.end());
        const RowList &rows = m_model->view().visibleRows();
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (kept.contains(rows[row]))
                selected.push_back(row);
            if (rows[row] == m_keptCurrent)
                current = std::ptrdiff_t(row);
            for (std::size_t i = 0; i < beside.size(); ++i) {
                if (rows[row] == m_keptBeside[i])
                    beside[i] = std::ptrdiff_t(row);
            }
            if (rows[row] == m_keptInPlace && int(rows.size()) != m_keptCount)
                moved = std::ptrdiff_t(row) - m_keptInPlaceAt;
        }
    }
    if (current < 0)
        current = beside[0] < 0 ? beside[1] : beside[0];
    m_selectionMuted = true;
    m_table->setAutoScroll(false); // to the current row
    if (current >= 0 && m_keptColumn < m_model->columnCount())
        m_table->selectionModel()->setCurrentIndex(m_model->index(int(current), m_keptColumn),
                                                   QItemSelectionModel::NoUpdate);
    if (!selected.empty())
        selectRows(selected);
    m_selectionMuted = false;
    m_table->setAutoScroll(true);
    static_cast<QAbstractItemView *>(m_table)->doItemsLayout(); // the scroll bars reach to the last row again
    m_table->horizontalScrollBar()->setValue(m_keptScroll.x());
    const int step = m_table->verticalScrollMode() == QAbstractItemView::ScrollPerItem
                         ? 1
                         : m_table->verticalHeader()->defaultSectionSize();
    m_table->verticalScrollBar()->setValue(m_keptScroll.y() + int(moved) * step);
}

std::vector<std::size_t> TabPane::selectedRows() const
{
    std::vector<std::size_t> rows;
    for (const QItemSelectionRange &range : m_table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(std::size_t(row));
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void TabPane::selectRows(const std::vector<std::size_t> &rows)
{
    if (!m_model->view().isVisible()) {
        m_keptSelection.clear();
        return;
    }
    const int lastColumn = m_model->columnCount() - 1;
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size();) {
        const std::size_t first = rows[i];
        std::size_t last = first;
        while (++i < rows.size() && rows[i] == last + 1)
            ++last;
        last = std::min(last, std::size_t(m_model->rowCount()) - 1);
        if (first <= last && m_model->rowCount() > 0)
            selection.append(
                QItemSelectionRange(m_model->index(int(first), 0), m_model->index(int(last), lastColumn)));
    }
    // In two steps: it is costly to find out what changes between two large selections.
    QItemSelectionModel *selectionModel = m_table->selectionModel();
    const bool wasMuted = std::exchange(m_selectionMuted, true);
    selectionModel->clearSelection();
    selectionModel->select(selection, QItemSelectionModel::Select);
    m_selectionMuted = wasMuted;
    noteSelectionChange();
}

/// Whether the pop-up cells of all these rows show the item already.
bool TabPane::showsChoice(const std::vector<std::size_t> &rows, const QString &column,
                          const QString &item) const
{
    const int section = m_model->columnOf(column);
    if (section < 0 || m_model->columnAt(section).kind != Column::Kind::PopUp)
        return false;
    return std::all_of(rows.begin(), rows.end(), [&](std::size_t row) {
        return m_model->index(int(row), section).data(Qt::EditRole).toString() == item;
    });
}

void TabPane::scrollToRow(std::size_t row)
{
    if (row >= std::size_t(m_model->rowCount()))
        return;
    const int current = std::clamp(m_table->currentIndex().column(), 0, m_model->columnCount() - 1);
    const int column = m_table->isColumnHidden(current) ? m_model->columnOf(m_columnLayout->key()) : current;
    const QModelIndex index = m_model->index(int(row), column);
    m_table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_table->scrollTo(index);
}

void TabPane::editCell(std::size_t row, const QString &column)
{
    const int section = m_model->columnOf(column);
    if (section < 0 || row >= std::size_t(m_model->rowCount()))
        return;
    const QModelIndex index = m_model->index(int(row), section);
    m_table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_table->scrollTo(index);
    if (index.flags().testFlag(Qt::ItemIsEditable))
        m_table->edit(index);
}

void TabPane::noteSelectionChange()
{
    if (m_selectionMuted || m_reloads > 0)
        return;
    dropMessage();
    updateControls();
    Q_EMIT selectionChanged();
}

QString TabPane::selectionText() const
{
    const QStringList identifiers = columns();
    QString text;
    for (const std::size_t row : selectedRows()) {
        QStringList cells;
        for (const QString &identifier : identifiers)
            cells.append(plain(m_model->cellText(m_model->index(int(row), m_model->columnOf(identifier)))));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

void TabPane::copySelection()
{
    const QString text = selectionText();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
    else
        showMessage(tr("Nothing was copied: no row is selected"));
}

// Sorting

void TabPane::sortBy(const QString &identifier)
{
    m_table->commitEditing(); // what is being typed counts in the order
    m_sorting.tableViewDidClickTableColumn(identifier);
    showSortIndicator();
}

void TabPane::clickHeader(int section)
{
    sortBy(m_model->columnAt(section).identifier);
    // The selected row stays in view.
    const std::vector<std::size_t> selected = selectedRows();
    const QModelIndex current = m_table->currentIndex();
    if (!selected.empty() && current.isValid()) {
        const bool isSelected = m_table->selectionModel()->isSelected(current);
        m_table->scrollTo(m_model->index(isSelected ? current.row() : int(selected.front()), section));
    }
}

std::optional<SortDescriptor> TabPane::shownSort() const
{
    const RowView &view = m_model->view();
    const bool isSorted = view.isVisible() && view.order() == RowView::Order::Sorted;
    const auto &descriptors = m_sorting.descriptors();
    return isSorted && !descriptors.empty() ? std::optional(descriptors.front()) : std::nullopt;
}

void TabPane::showSortIndicator()
{
    const std::optional<SortDescriptor> sort = shownSort();
    const int section = sort ? m_model->columnOf(sort->column) : -1;
    m_table->horizontalHeader()->setSortIndicator(section, sort && sort->descending ? Qt::DescendingOrder
                                                                                    : Qt::AscendingOrder);
}

// Columns

QStringList TabPane::columns() const
{
    const QHeaderView *header = m_table->horizontalHeader();
    QStringList identifiers;
    for (int position = 0; position < m_model->columnCount(); ++position)
        identifiers.append(m_model->columnAt(header->logicalIndex(position)).identifier);
    return identifiers;
}

void TabPane::addColumn(const Column &column)
{
    const QString &identifier = column.identifier;
    const bool isPresent = m_model->columnOf(identifier) >= 0;
    m_model->addColumn(column);
    if (isPresent)
        return;
    m_columnLayout->apply();
    if (storedOrder().contains(identifier)) {
        restoreOrder();
    } else {
        saveLayout(); // or its position would differ in a window that adds its columns in another order
        m_newColumns.insert(identifier);
    }
    showSortIndicator();
}

void TabPane::removeColumn(const QString &identifier)
{
    const int column = m_model->columnOf(identifier);
    if (column < 0)
        return;
    m_table->commitEditing();
    m_model->removeColumn(identifier);
    m_columnLayout->apply();
    showSortIndicator();
}

void TabPane::moveColumn(const QString &identifier, int index)
{
    if (!m_newColumns.remove(identifier))
        return;
    moveColumnTo(identifier, index);
    saveLayout();
}

void TabPane::moveColumnTo(const QString &identifier, int index)
{
    QHeaderView *header = m_table->horizontalHeader();
    const int column = m_model->columnOf(identifier);
    if (column < 0 || index < 0 || index >= header->count())
        return;
    const QScopedValueRollback<bool> moves(m_movesColumns, true);
    header->moveSection(header->visualIndex(column), index);
}

void TabPane::moveSection(int section, int, int to)
{
    if (m_movesColumns)
        return;
    m_newColumns.clear();
    saveLayout(); // at once: other windows follow
    columnMoved(m_model->columnAt(section).identifier, to);
}

void TabPane::saveLayout()
{
    // Columns that are absent now, but may come back, stay after those that they followed.
    QStringList order = columns();
    qsizetype next = 0;
    for (const QString &identifier : storedOrder()) {
        const qsizetype present = order.indexOf(identifier);
        if (present < 0)
            order.insert(next++, identifier);
        else
            next = present + 1;
    }
    QVariantList layout;
    for (const QString &identifier : order) {
        QVariantMap column;
        column.insert(identifierKey, identifier);
        // Usual widths are not stored: they follow the language of the titles.
        if (m_columnLayout->hasOwnWidth(identifier)) {
            column.insert(widthKey, m_columnLayout->width(identifier));
            column.insert(characterKey, m_columnLayout->characterWidth());
        }
        if (m_columnLayout->isHidden(identifier))
            column.insert(hiddenKey, true);
        layout.emplace_back(column);
    }
    const QScopedValueRollback<bool> stores(m_storesLayout, true);
    m_defaults.setValue(layoutKey(tab()), layout);
}

QStringList TabPane::storedOrder() const
{
    QStringList order;
    const QVariant stored = m_defaults.value(layoutKey(tab()));
    for (const QVariant &entry : stored.toList()) {
        const QString identifier = entry.toMap().value(identifierKey).toString();
        if (!identifier.isEmpty() && !order.contains(identifier))
            order.append(identifier);
    }
    return order;
}

/// Columns that the stored order does not contain come last, in their present order.
void TabPane::restoreOrder()
{
    int position = 0;
    for (const QString &identifier : storedOrder()) {
        if (m_model->columnOf(identifier) >= 0)
            moveColumnTo(identifier, position++);
    }
}

void TabPane::applyDefaultsChange(const QString &key)
{
    if (key == TableDates::formatKey) {
        m_model->setDateFormat(TableDates::storedFormat(m_defaults));
        m_model->rowsChanged(0, m_model->rowCount() - 1);
    }
    if (key != layoutKey(tab()) || m_storesLayout)
        return;
    m_newColumns.clear();
    restoreOrder();
    restoreHidden();
}

void TabPane::restoreHidden()
{
    QStringList hidden;
    const QVariant stored = m_defaults.value(layoutKey(tab()));
    for (const QVariant &entry : stored.toList()) {
        const QVariantMap column = entry.toMap();
        if (column.value(hiddenKey).toBool())
            hidden.append(column.value(identifierKey).toString());
    }
    m_columnLayout->setHidden(hidden);
    m_columnLayout->apply();
}

void TabPane::restoreLayout()
{
    const QVariant stored = m_defaults.value(layoutKey(tab()));
    for (const QVariant &entry : stored.toList()) {
        const QString identifier = entry.toMap().value(identifierKey).toString();
        qint64 width = PropertyList::integer(entry.toMap().value(widthKey));
        // Stored with a font of another size.
        const qint64 character = PropertyList::integer(entry.toMap().value(characterKey));
        if (character > 0 && character < 1000 && width > 0 && width < 10000)
            width = width * m_columnLayout->characterWidth() / character;
        if (width > 0 && width < 10000)
            m_columnLayout->setWidth(identifier, int(width));
    }
    restoreOrder();
    restoreHidden();
}

// What else the document and the window ask

void TabPane::setEditingEnabled(bool enabled)
{
    m_editingEnabled = enabled;
    m_model->setEditingEnabled(enabled);
    updateControls();
}

void TabPane::whenIdle(std::function<void()> answer)
{
    if (m_whenIdle)
        m_whenIdle(std::move(answer));
    else
        answer();
}

void TabPane::showMessage(const QString &text)
{
    m_message->setMessage(QString());
    setMessage(shownMessage(text));
    m_messageTime->start(messageMs);
    m_newMessage->start();
}

void TabPane::clearMessage()
{
    m_messageTime->stop();
    m_message->setMessage(QString());
    setMessage(QString());
}

/// Takes the message away, but not while the mouse is pressed: with its line the rows would move away from
/// under the mouse, between press and release or between the clicks of a double click.
void TabPane::endMessage()
{
    if (!m_table->isPressed())
        clearMessage();
    else
        m_messageTime->start(QApplication::doubleClickInterval());
}

void TabPane::dropMessage()
{
    if (m_messageTime->isActive() && !m_newMessage->isActive())
        endMessage();
}

void TabPane::showMessage(const QString &text, const QString &path)
{
    showMessage(QString()); // wherever the pane shows it
    m_message->setMessage(shownMessage(text), path);
}

void TabPane::setMessage(const QString &text)
{
    m_message->setMessage(text);
}

void TabPane::addControls(std::initializer_list<QWidget *> controls)
{
    QWidget *previous = nullptr;
    for (QWidget *control : controls) {
        if (!control) {
            m_controls->addSpacerItem(
                new QSpacerItem(fontMetrics().averageCharWidth() * 3, 0, QSizePolicy::Maximum));
            continue;
        }
        m_controls->addWidget(control);
        returnFocusFrom(control);
        if (previous)
            setTabOrder(previous, control);
        previous = control;
    }
    if (previous)
        setTabOrder(previous, m_table);
    m_lastControl = previous;
}

void TabPane::returnFocusFrom(QWidget *control)
{
    m_focusReturn->watch(control);
}

SearchBar &TabPane::addSearchBar()
{
    m_search = new SearchBar(this);
    static_cast<QVBoxLayout *>(layout())->insertWidget(layout()->indexOf(m_table), m_search);
    if (m_lastControl)
        setTabOrder(m_lastControl, &m_search->field());
    setTabOrder(&m_search->field(), m_table);
    connect(m_search, &SearchBar::changed, this, [this] {
        dropMessage();
        search();
    });
    connect(m_search, &SearchBar::left, this, [this] { m_table->setFocus(Qt::OtherFocusReason); });
    connect(m_search, &SearchBar::entered, m_prepareTimer, [this] { m_prepareTimer->start(0); });
    return *m_search;
}

/// Prepares the rows for a search when the window is at rest, or at once when somebody searches.
void TabPane::prepareSoon()
{
    if (!m_search || !m_isFilled)
        return;
    const bool isSearched = m_search->field().hasFocus() || !m_search->text().isEmpty();
    m_prepareTimer->start(isSearched ? 0 : restMs);
}

void TabPane::focusSearch()
{
    m_search->field().setFocus(Qt::ShortcutFocusReason);
    m_search->field().selectAll();
}

/// Tells what is shown and what is selected.
void TabPane::updateCounts()
{
    const RowView &view = m_model->view();
    if (!m_search || !m_isFilled || m_spinning) {
        if (m_search)
            m_search->setCounts(QString());
        return;
    }
    const auto withTotal = [this](const QString &text, const RowList &rows) {
        const QString total = totalText(rows);
        return total.isEmpty() ? text : tr("%1, %2", "count and total").arg(text, total);
    };
    const auto number = [](std::size_t count) { return QLocale().toString(qulonglong(count)); };
    const RowList &shown = view.visibleRows();
    const std::size_t all = view.list().size();
    const QString shownNumber =
        shown.size() == all ? number(all) : tr("%1 of %2").arg(number(shown.size()), number(all));
    const auto both = [](const QString &counted, const QString &chosen) {
        return tr("%1 · %2", "shown and selected").arg(counted, chosen);
    };
    QString shorter = countText(shownNumber, all);
    QString text = withTotal(shorter, shown);
    const std::vector<std::size_t> selected = selectedRows();
    if (!selected.empty()) {
        RowList rows;
        rows.reserve(selected.size());
        for (const std::size_t row : selected) {
            if (row < shown.size())
                rows.push_back(shown[row]);
        }
        const QString chosen = tr("%1 selected").arg(number(selected.size()));
        text = both(text, withTotal(chosen, rows));
        shorter = both(shorter, chosen);
    }
    m_search->setCounts(text, shorter);
}

QLabel *TabPane::makeLabel(Label label, QWidget *parent)
{
    auto *widget = new ElidedLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    makeSelectable(*widget);
    m_labels.insert(label, widget);
    return widget;
}

void TabPane::setSpinning(bool spinning)
{
    m_spinning = spinning;
    m_isFilled = false;
    m_countTimer->start();
    m_busy->setVisible(spinning);
    m_busyText->setVisible(spinning);
    if (spinning)
        m_busyTimer->start();
    else
        m_busyTimer->stop();
    updateBusy();
}

void TabPane::updateBusy()
{
    const std::size_t found = m_model->view().foundSoFar();
    m_busyText->setText(m_spinning && found > 0 ? tr("%1 so far").arg(QLocale().toString(qulonglong(found)))
                                                : QString());
    updatePlaceholder();
}

void TabPane::updatePlaceholder()
{
    const RowView &view = m_model->view();
    if (m_spinning)
        m_table->setPlaceholder(loadingText(view.foundSoFar()));
    else if (!m_workbench.document().xmlDoc())
        m_table->setPlaceholder(tr("No project is loaded."));
    else if (!m_isFilled)
        m_table->setPlaceholder(QString());
    else
        m_table->setPlaceholder(view.list().empty() ? emptyText() : filteredText());
}

void TabPane::tellWhyNotEditable()
{
    if (m_editingEnabled)
        return;
    const MyDocument &document = m_workbench.document();
    const bool isLoading = document.isPopulating(Tab::Media) || document.isPopulating(Tab::Effects) ||
                           document.isPopulating(Tab::Markers);
    showMessage(isLoading ? tr("Nothing can be edited yet, as the project is still being read")
                          : tr("Nothing can be edited until the operation that is going on has ended"));
}

void TabPane::commitEdit(int, const QString &, const QString &) {}

} // namespace vantrell
