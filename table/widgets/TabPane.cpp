#include "table/widgets/TabPane.h"

#include "support/files/PropertyList.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TableDelegate.h"
#include "table/widgets/TableModel.h"
#include "workbench/Workbench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
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
const QString identifierKey = QStringLiteral("identifier");
const QString widthKey = QStringLiteral("width");

/// In characters of average width.
int defaultWidth(const QString &column)
{
    static const QHash<QString, int> widths{
        {QStringLiteral("filename"), 32},  {QStringLiteral("filetype"), 13},
        {QStringLiteral("filesize"), 13},  {QStringLiteral("modDate"), 24},
        {QStringLiteral("usageCount"), 9}, {QStringLiteral("missing"), 11},
        {QStringLiteral("directory"), 40}, {QStringLiteral("enabled"), 11},
        {QStringLiteral("name"), 28},      {QStringLiteral("effectType"), 13},
        {QStringLiteral("mediaType"), 10}, {QStringLiteral("clip"), 32},
        {QStringLiteral("sequence"), 34},  {QStringLiteral("color"), 7},
        {QStringLiteral("comment"), 32},   {QStringLiteral("in"), 15},
        {QStringLiteral("out"), 15},       {QStringLiteral("chapter"), 11},
        {QStringLiteral("scoring"), 11},   {QStringLiteral("compression"), 16}};
    return widths.value(column, 16);
}

QString layoutKey(Tab tab)
{
    return TableSorting::prefixOf(tab) + QStringLiteral("ColumnLayout");
}

/// A cell's text in a line of texts.
QString plain(QString text)
{
    for (const char16_t separator : {u'\t', u'\n', u'\r'})
        text.replace(QChar(separator), QLatin1Char(' '));
    return text;
}

} // namespace

TabPane::TabPane(Workbench &workbench, UserDefaults &defaults, TableModel *model,
                 SortValueOfColumn sortValues, QWidget *parent)
    : QWidget(parent)
    , m_workbench(workbench)
    , m_defaults(defaults)
    , m_sorting(workbench.document(), defaults, model->tab(), std::move(sortValues))
    , m_model(model)
    , m_table(new QVTableView(this))
    , m_controls(new QHBoxLayout)
    , m_footer(new QVBoxLayout)
    , m_busy(new QProgressBar(this))
    , m_busyText(new QLabel(this))
    , m_busyTimer(new QTimer(this))
    , m_message(new QLabel(this))
    , m_messageTime(new QTimer(this))
{
    m_model->setParent(this);
    m_model->setEdit([this](int row, const QString &column, const QString &text) {
        const QScopedValueRollback<bool> edits(m_edits, true);
        const std::vector<std::size_t> selected = selectedRows();
        // Of several rows only the first one moves to another owner: let it be the one that was clicked.
        const bool moves = column == QStringLiteral("sequence") || column == QStringLiteral("clip");
        const bool isSelected = moves
                                    ? !selected.empty() && selected.front() == std::size_t(row)
                                    : std::binary_search(selected.begin(), selected.end(), std::size_t(row));
        const bool isOneRow = moves || !isSelected;
        if (showsChoice(isOneRow ? std::vector{std::size_t(row)} : selected, column, text))
            return;
        if (!isSelected)
            selectRows({std::size_t(row)});
        commitEdit(row, column, text);
        const std::vector<std::size_t> edited = selectedRows();
        if (!edited.empty())
            m_model->rowsChanged(int(edited.front()), int(edited.back()));
    });
    m_table->setModel(m_model);
    m_table->setItemDelegate(new TableDelegate(m_table));
    m_table->setDelegateObject(this);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setFixedWidth(fontMetrics().averageCharWidth() * 14);
    m_busy->setAccessibleName(tr("Reading the project"));
    m_busy->hide();
    m_busyText->hide();
    m_busyTimer->setInterval(busyInterval);
    m_message->setTextFormat(Qt::PlainText);
    m_message->hide();
    m_messageTime->setSingleShot(true);
    m_messageTime->setInterval(messageMs);

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
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TabPane::noteSelectionChange);
    connect(m_table, &QVTableView::copyRequested, this, &TabPane::copySelection);
    connect(m_busyTimer, &QTimer::timeout, this, &TabPane::updateBusy);
    connect(m_messageTime, &QTimer::timeout, this, [this] { setMessage(QString()); });
    header->setSortIndicatorShown(true);
    restoreLayout();
    showSortIndicator();
}

TabPane::~TabPane() = default;

// The rows

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
    m_isFilled = m_workbench.document().tableTab() == tab();
    if (m_isFilled)
        restoreRows();
    showSortIndicator();
    updatePlaceholder();
    updateControls();
    Q_EMIT selectionChanged();
}

void TabPane::rememberRows()
{
    if (m_workbench.document().tableTab() != tab())
        return;
    m_keptSelection.clear();
    for (const std::size_t row : selectedRows())
        m_keptSelection.push_back(m_model->recordAt(int(row)));
    const QModelIndex current = m_table->currentIndex();
    m_keptCurrent = current.isValid() ? m_model->recordAt(current.row()) : nullptr;
    m_keptColumn = current.column();
    m_keptScroll = m_table->verticalScrollBar()->value();
}

void TabPane::restoreRows()
{
    std::vector<std::size_t> selected;
    std::ptrdiff_t current = -1;
    if (!m_keptSelection.empty() || m_keptCurrent) {
        const std::unordered_set<RowRecordPtr> kept(m_keptSelection.begin(), m_keptSelection.end());
        const RowList &rows = m_workbench.document().rowsOnShow(tab());
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (kept.contains(rows[row]))
                selected.push_back(row);
            if (rows[row] == m_keptCurrent)
                current = std::ptrdiff_t(row);
        }
    }
    m_selectionMuted = true;
    if (current >= 0 && m_keptColumn < m_model->columnCount())
        m_table->selectionModel()->setCurrentIndex(m_model->index(int(current), m_keptColumn),
                                                   QItemSelectionModel::NoUpdate);
    if (!selected.empty())
        selectRows(selected);
    m_selectionMuted = false;
    m_table->verticalScrollBar()->setValue(m_keptScroll);
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
    if (m_workbench.document().tableTab() != tab()) {
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
    // In two steps: what changes between two large selections is costly to tell.
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
    const int place = m_model->columnOf(column);
    if (place < 0 || m_model->cellOf(place) != TableModel::Cell::PopUp)
        return false;
    return std::all_of(rows.begin(), rows.end(), [&](std::size_t row) {
        return m_model->index(int(row), place).data(Qt::EditRole).toString() == item;
    });
}

void TabPane::editCell(std::size_t row, const QString &column)
{
    const int place = m_model->columnOf(column);
    if (place < 0 || row >= std::size_t(m_model->rowCount()))
        return;
    const QModelIndex index = m_model->index(int(row), place);
    m_table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_table->scrollTo(index);
    if (index.flags().testFlag(Qt::ItemIsEditable))
        m_table->edit(index);
}

void TabPane::noteSelectionChange()
{
    if (m_selectionMuted || m_reloads > 0)
        return;
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
    sortBy(m_model->identifierOf(section));
}

std::optional<SortDescriptor> TabPane::shownSort() const
{
    const MyDocument &document = m_workbench.document();
    const bool isSorted =
        document.tableTab() == tab() && document.tableOrder() == MyDocument::RowOrder::Sorted;
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
    for (int place = 0; place < m_model->columnCount(); ++place)
        identifiers.append(m_model->identifierOf(header->logicalIndex(place)));
    return identifiers;
}

void TabPane::addColumn(const QString &identifier, const QString &title)
{
    if (m_model->columnOf(identifier) >= 0) {
        m_model->addColumn(identifier, title);
        return;
    }
    m_model->addColumn(identifier, title);
    m_table->setColumnWidth(m_model->columnOf(identifier),
                            m_storedWidths.value(identifier, usualWidth(identifier)));
    if (storedOrder().contains(identifier)) {
        restoreOrder();
    } else {
        saveLayout(); // or it would stand elsewhere in a window that gets its columns in another order
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
    m_storedWidths.insert(identifier, m_table->columnWidth(column));
    m_model->removeColumn(identifier);
    showSortIndicator();
}

void TabPane::moveColumn(const QString &identifier, int index)
{
    if (!m_newColumns.remove(identifier))
        return;
    placeColumn(identifier, index);
    saveLayout();
}

void TabPane::placeColumn(const QString &identifier, int index)
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
    columnMoved(m_model->identifierOf(section), to);
}

void TabPane::saveLayout()
{
    // Columns that are not there now, but may come back, stay behind those that they stood behind.
    QStringList order = columns();
    qsizetype place = 0;
    for (const QString &identifier : storedOrder()) {
        const qsizetype present = order.indexOf(identifier);
        if (present < 0)
            order.insert(place++, identifier);
        else
            place = present + 1;
    }
    QVariantList layout;
    for (const QString &identifier : order) {
        const int present = m_model->columnOf(identifier);
        QVariantMap column;
        column.insert(identifierKey, identifier);
        column.insert(widthKey, present >= 0 ? m_table->columnWidth(present)
                                             : m_storedWidths.value(identifier, usualWidth(identifier)));
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

/// Columns that the stored order does not know come last, as they stand.
void TabPane::restoreOrder()
{
    int place = 0;
    for (const QString &identifier : storedOrder()) {
        if (m_model->columnOf(identifier) >= 0)
            placeColumn(identifier, place++);
    }
}

void TabPane::applyDefaultsChange(const QString &key)
{
    if (key != layoutKey(tab()) || m_storesLayout)
        return;
    m_newColumns.clear();
    restoreOrder();
}

/// In pixels.
int TabPane::usualWidth(const QString &column) const
{
    return defaultWidth(column) * fontMetrics().averageCharWidth();
}

void TabPane::restoreLayout()
{
    for (int column = 0; column < m_model->columnCount(); ++column)
        m_table->setColumnWidth(column, usualWidth(m_model->identifierOf(column)));
    const QVariant stored = m_defaults.value(layoutKey(tab()));
    for (const QVariant &entry : stored.toList()) {
        const QString identifier = entry.toMap().value(identifierKey).toString();
        const qint64 width = PropertyList::integer(entry.toMap().value(widthKey));
        const int column = m_model->columnOf(identifier);
        if (width > 0 && width < 10000) {
            m_storedWidths.insert(identifier, int(width));
            if (column >= 0)
                m_table->setColumnWidth(column, int(width));
        }
    }
    restoreOrder();
}

// What else the document and the window ask

void TabPane::setEditingEnabled(bool enabled)
{
    m_editingEnabled = enabled;
    m_model->setEditingEnabled(enabled);
    updateControls();
}

void TabPane::showMessage(const QString &text)
{
    setMessage(text);
    m_messageTime->start();
}

void TabPane::setMessage(const QString &text)
{
    m_message->setText(text.isEmpty() ? text : text + QLatin1Char('.'));
    m_message->setVisible(!text.isEmpty());
}

void TabPane::addControls(std::initializer_list<QWidget *> controls)
{
    QWidget *previous = nullptr;
    for (QWidget *control : controls) {
        if (!control) {
            m_controls->addSpacing(fontMetrics().averageCharWidth() * 3);
            continue;
        }
        m_controls->addWidget(control);
        if (previous)
            setTabOrder(previous, control);
        previous = control;
    }
    if (previous)
        setTabOrder(previous, m_table);
}

QLabel *TabPane::makeLabel(Label label, QWidget *parent)
{
    auto *widget = new QLabel(parent);
    widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_labels.insert(label, widget);
    return widget;
}

void TabPane::setLabel(Label label, const QString &text)
{
    if (QLabel *widget = m_labels.value(label))
        widget->setText(text);
}

void TabPane::setSpinning(bool spinning)
{
    m_spinning = spinning;
    m_isFilled = false;
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
    const std::size_t found = m_workbench.document().foundSoFar(tab());
    m_busyText->setText(m_spinning && found > 0 ? tr("%1 so far").arg(QLocale().toString(qulonglong(found)))
                                                : QString());
    updatePlaceholder();
}

void TabPane::updatePlaceholder()
{
    const MyDocument &document = m_workbench.document();
    if (m_spinning)
        m_table->setPlaceholder(loadingText(document.foundSoFar(tab())));
    else if (!document.xmlDoc())
        m_table->setPlaceholder(tr("No project is loaded."));
    else if (!m_isFilled)
        m_table->setPlaceholder(QString());
    else
        m_table->setPlaceholder(document.listOf(tab()).empty() ? emptyText() : filteredText());
}

void TabPane::commitEdit(int, const QString &, const QString &) {}

} // namespace vantrell
