#include "markers/widgets/MarkersPane.h"

#include "markers/MarkerKeys.h"
#include "markers/MarkerOffset.h"
#include "markers/MarkerTableValues.h"
#include "markers/MarkerTotals.h"
#include "markers/MenuTitles.h"
#include "markers/widgets/GoToTimecodeSheet.h"
#include "markers/widgets/MarkerAddSheet.h"
#include "markers/widgets/MarkerFieldsSheet.h"
#include "markers/widgets/MarkerOffsetSheet.h"
#include "markers/widgets/MarkerOverviewPanel.h"
#include "markers/widgets/MarkerPresetPopUp.h"
#include "markers/widgets/MarkerPresetSheet.h"
#include "markers/widgets/MarkerPresetsSheet.h"
#include "markers/widgets/MarkerStrip.h"
#include "markers/widgets/MarkerTableModel.h"
#include "markers/widgets/OverviewPopUp.h"
#include "support/files/FolderWatcher.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/WrappedLabel.h"
#include "table/widgets/ControlPopUp.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
#include "table/widgets/TableIcons.h"
#include "workbench/Workbench.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <chrono>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds prepareTime{4};

/// A sheet that was closed stays until events are dispatched.
bool isOpen(const QDialog *sheet)
{
    return sheet && sheet->isVisible();
}

} // namespace

MarkersPane::MarkersPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent)
    : TabPane(workbench, defaults, new MarkerTableModel(workbench.document()), parent)
    , m_defaults(defaults)
    , m_markerSearch(workbench.document())
    , m_filter(new ControlPopUp(this))
    , m_sequences(new ControlPopUp(this))
    , m_flags(new ControlPopUp(this))
    , m_add(new QPushButton(tr("&Add"), this))
    , m_addAt(new QPushButton(tr("A&dd…"), this))
    , m_remove(new QPushButton(tr("&Remove…"), this))
    , m_offset(new QPushButton(tr("&Offset…"), this))
    , m_markerPresetPopUp(new MarkerPresetPopUp(this))
    , m_fields(new QPushButton(tr("Fie&lds…"), this))
    , m_ownOwners(new QCheckBox(tr("Own se&quence and clip"), this))
    , m_status(new WrappedLabel(this))
    , m_overview(new MarkerOverviewPanel(*this, workbench.document()))
{
    m_filter->addItem(tr("All Colors"));
    for (int i = 0; i < markerModel().shownColorLabels().size(); ++i)
        m_filter->addItem(TableIcons::marker(i), markerModel().shownColorLabels()[i]);
    m_filter->setAccessibleName(tr("Color of markers"));
    m_filter->setToolTip(tr("Show markers of one color only"));
    m_add->setToolTip(tr("Add a marker to the first sequence"));
    m_addAt->setToolTip(tr("Add a marker to a sequence and at a timecode of your choice"));
    m_addAt->setAccessibleName(tr("Add at a sequence and timecode"));
    m_remove->setToolTip(tr("Remove the selected markers from the project"));
    m_offset->setToolTip(tr("Move the in points of the selected markers"));
    auto *const preset = new QLabel(tr("&Preset:"), this);
    preset->setBuddy(m_markerPresetPopUp);
    m_markerPresetPopUp->setAccessibleName(tr("Marker preset"));
    m_markerPresetPopUp->setToolTip(tr("Choose labels of your own for the colors"));
    m_fields->setToolTip(tr("Define columns of your own for the markers"));
    addControls({m_filter, preset, m_markerPresetPopUp, nullptr, m_add, m_addAt, m_remove, m_offset, nullptr,
                 m_fields});
    // Narrower than usual in a small window.
    for (QPushButton *const button : {m_add, m_addAt, m_remove, m_offset, m_fields})
        button->setMinimumWidth(
            std::min(button->sizeHint().width(), fontMetrics().horizontalAdvance(button->text()) +
                                                     fontMetrics().averageCharWidth() * 3 / 2));
    makeSearch();
    m_ownOwners->setToolTip(
        tr("List each marker under its own sequence and clip. Otherwise sequences at the same "
           "position in different bins share one name, and so do the clips of a track"));
    m_ownOwners->setChecked(defaults.boolean(MarkerInventory::ownOwnersDefault));
    returnFocusFrom(m_ownOwners);
    connect(m_ownOwners, &QCheckBox::clicked, this,
            [this](bool own) { m_defaults.setValue(MarkerInventory::ownOwnersDefault, own); });
    auto *const line = new QHBoxLayout;
    line->addWidget(m_status, 1);
    line->addWidget(m_ownOwners);
    footer().addLayout(line);

    connect(m_filter, &QComboBox::activated, this, [this](int item) {
        table().commitEditing();
        dropMessage();
        this->workbench().document().viewState().markerFilter = item;
        this->workbench().markerInventory().changeMarkerFilter();
    });
    connect(m_add, &QPushButton::clicked, this, &MarkersPane::addMarker);
    connect(m_addAt, &QPushButton::clicked, this, &MarkersPane::showMarkerAddDialog);
    connect(m_remove, &QPushButton::clicked, this, &MarkersPane::removeMarkers);
    connect(m_offset, &QPushButton::clicked, this, &MarkersPane::showMarkerOffsetWindow);

    table().setAccessibleName(tr("Markers"));
    connect(&workbench.document(), &MyDocument::sequenceMenuChanged, &markerModel(),
            &MarkerTableModel::sequenceMenuChanged);
    table().addWatchKeys({13, 3}, "editCurrentCell");
    table().addWatchKeys({8, 127}, "explainDelete");
    connect(&table(), &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        const bool isText = model().columnAt(index.column()).kind == Column::Kind::Text;
        if (isText && index.flags().testFlag(Qt::ItemIsEditable))
            table().edit(index);
        else
            tellWhyNotEditable();
    });
    connect(&table(), &QVTableView::popUpRefused, this, [this] {
        if (isEditingEnabled())
            showMessage(tr("There is no clip to choose: the marker is in no sequence"));
        else
            tellWhyNotEditable();
    });
    makeMenus();
    placeOverview();
    updateControls();

    MarkerPresets *const presets = &workbench.markerPresets();
    connect(presets, &MarkerPresets::menuChanged, m_markerPresetPopUp, &MarkerPresetPopUp::setMenu);
    connect(presets, &MarkerPresets::labelsChanged, this, &MarkersPane::setMarkerLabels);
    connect(presets, &MarkerPresets::sheetRequested, this, &MarkersPane::openPresetSheet);
    connect(presets, &MarkerPresets::sheetEnded, this, &MarkersPane::closePresetSheet);
    connect(m_markerPresetPopUp, &MarkerPresetPopUp::presetChosen, presets,
            &MarkerPresets::changeMarkerPreset);
    connect(m_markerPresetPopUp, &MarkerPresetPopUp::createRequested, this,
            &MarkersPane::showMarkerPresetDialog);
    connect(m_fields, &QPushButton::clicked, this, &MarkersPane::showMarkerFieldsDialog);
    auto *const presetFiles = new FolderWatcher(MarkerPresets::folder(), this);
    connect(presetFiles, &FolderWatcher::changed, presets, &MarkerPresets::refreshMarkerPresets);
}

void MarkersPane::makeSearch()
{
    SearchBar &bar = addSearchBar();
    bar.field().setAccessibleName(tr("Search the markers"));
    bar.field().setToolTip(
        tr("Show only markers with this text in their name, comment, custom fields, sequence or clip"));
    m_sequences->setAccessibleName(tr("Sequence of markers"));
    m_sequences->setToolTip(tr("Show markers of one sequence only"));
    m_flags->addItems({tr("All Flags"), tr("Chapter"), tr("Compression"), tr("Scoring")});
    m_flags->setAccessibleName(tr("Flag of markers"));
    m_flags->setToolTip(tr("Show only markers with this flag"));
    for (QComboBox *const popUp : {m_sequences, m_flags}) {
        bar.addPopUp(popUp);
        returnFocusFrom(popUp);
    }
    fillSequences();
    connect(&workbench().document(), &MyDocument::sequenceMenuChanged, this, &MarkersPane::fillSequences);
}

void MarkersPane::fillSequences()
{
    const MenuPtr menu = workbench().document().sequenceMenu();
    m_sequences->clear();
    m_sequences->addItem(tr("All Sequences"));
    m_sequences->addItems(MenuTitles::ofSequences(*menu).mid(1));
    m_sequences->setEnabled(menu->size() > 1);
}

void MarkersPane::search()
{
    MarkerSearch::Conditions conditions{.text = searchBar().text()};
    if (m_sequences->currentIndex() > 0)
        conditions.sequence = m_sequences->currentIndex();
    if (m_flags->currentIndex() > 0)
        conditions.flag = MarkerFlag(m_flags->currentIndex() - 1);
    m_markerSearch.setConditions(conditions);
    if (conditions.sequence)
        m_overview->follow(
            workbench().document().sequenceMenu()->at(std::size_t(*conditions.sequence)).element);
}

bool MarkersPane::prepareSearch()
{
    return m_markerSearch.prepare(prepareTime);
}

QString MarkersPane::countText(const QString &number, std::size_t count) const
{
    return count == 1 ? tr("%1 marker").arg(number) : tr("%1 markers").arg(number);
}

QString MarkersPane::totalText(const RowList &rows) const
{
    return totalDurationText(rows);
}

void MarkersPane::goToRow(std::size_t row)
{
    selectRows({row});
    scrollToRow(row);
    table().setFocus();
}

/// The current row if it is selected, else the first selected one; null without a selection.
RowRecordPtr MarkersPane::chosenRow() const
{
    const QModelIndex current = table().currentIndex();
    if (current.isValid() && table().selectionModel()->isSelected(current))
        return model().recordAt(current.row());
    const std::vector<std::size_t> selected = selectedRows();
    return selected.empty() ? nullptr : model().recordAt(int(selected.front()));
}

std::int64_t MarkersPane::overviewItem() const
{
    const XmlNode shown = m_overview->sequence();
    const MenuPtr menu = workbench().document().sequenceMenu();
    for (std::size_t item = 1; shown && item < menu->size(); ++item) {
        if ((*menu)[item].element == shown)
            return std::int64_t(item);
    }
    return 1;
}

void MarkersPane::showGoToTimecode()
{
    table().commitEditing();
    const RowList &rows = model().view().visibleRows();
    if (rows.empty()) {
        showMessage(tr("There is no marker to go to"));
        return;
    }
    RowRecordPtr start = chosenRow();
    if (!start || !start->get(MarkerKey::sequence)) {
        const XmlNode shown = m_overview->sequence();
        const auto findRow = [&rows](const auto &fits) {
            const auto found = std::find_if(rows.begin(), rows.end(), [&](const RowRecordPtr &row) {
                return fits(row->get(MarkerKey::sequence));
            });
            return found == rows.end() ? nullptr : *found;
        };
        if (shown)
            start = findRow([shown](XmlNode sequence) { return sequence == shown; });
        if (!start || !start->get(MarkerKey::sequence))
            start = findRow([](XmlNode sequence) { return bool(sequence); });
    }
    auto *const sheet = new GoToTimecodeSheet(rows, start ? start : rows.front(), this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        const RowList &shown = model().view().visibleRows();
        const auto found = std::find(shown.begin(), shown.end(), sheet->marker());
        if (found != shown.end())
            goToRow(std::size_t(found - shown.begin()));
    });
    sheet->open();
}

void MarkersPane::goToOfColor(MarkerNavigation::Direction direction)
{
    table().commitEditing();
    const int current = table().currentIndex().row();
    if (current < 0) {
        showMessage(tr("Select a marker first"));
        return;
    }
    const std::optional<std::size_t> row =
        MarkerNavigation::nextOfColor(model().view().visibleRows(), std::size_t(current), direction);
    if (row)
        goToRow(*row);
    else if (direction == MarkerNavigation::Direction::Down)
        showMessage(tr("No further marker of this color below"));
    else
        showMessage(tr("No further marker of this color above"));
}

MarkersPane::~MarkersPane()
{
    if (m_fieldsSheet)
        m_fieldsSheet->done(QDialog::Accepted);
}

void MarkersPane::makeMenus()
{
    auto *menu = new QMenu(this);
    menu->addAction(tr("&Offset…"), this, &MarkersPane::showMarkerOffsetWindow);
    menu->addAction(tr("&Remove…"), this, &MarkersPane::removeMarkers);
    menu->addAction(tr("&Duplicate"), this, &MarkersPane::duplicateMarkers);
    menu->addAction(tr("Move &In, Keep Duration"), this, &MarkersPane::moveInPoint);
    menu->addAction(tr("&Copy"), this, &TabPane::copySelection);
    table().setMenu(menu);
    QHeaderView *const header = table().horizontalHeader();
    connect(header->addAction(tr("Marker &Fields…")), &QAction::triggered, this,
            &MarkersPane::showMarkerFieldsDialog);
    connect(header->addAction(tr("Create Marker &Preset…")), &QAction::triggered, this,
            &MarkersPane::showMarkerPresetDialog);
    auto *const managePresets = new QAction(tr("&Manage Marker Presets…"), this);
    connect(managePresets, &QAction::triggered, this, &MarkersPane::showMarkerPresetsDialog);
    header->addAction(managePresets);
    m_markerPresetPopUp->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_markerPresetPopUp->addAction(managePresets);
}

/// Above the table, also for the keyboard.
void MarkersPane::placeOverview()
{
    auto *const content = static_cast<QBoxLayout *>(layout());
    content->insertWidget(content->indexOf(&table()), m_overview);
    m_overview->setVisible(MarkerOverviewPanel::isWanted(m_defaults));
    returnFocusFrom(&m_overview->popUp());
    setTabOrder(m_flags, &m_overview->popUp());
    setTabOrder(&m_overview->popUp(), &m_overview->strip());
    setTabOrder(&m_overview->strip(), &table());
}

MarkerTableModel &MarkersPane::markerModel() const
{
    return static_cast<MarkerTableModel &>(model());
}

void MarkersPane::setMarkerLabels(const QStringList &labels)
{
    if (labels == markerModel().colorLabels())
        return;
    markerModel().setColorLabels(labels);
    const QStringList &shown = markerModel().shownColorLabels();
    for (int i = 0; i < shown.size() && i + 1 < m_filter->count(); ++i)
        m_filter->setItemText(i + 1, shown[i]);
}

void MarkersPane::setMessage(const QString &text)
{
    m_message = text;
    updateControls();
}

void MarkersPane::addMarker()
{
    if (isEditingEnabled())
        workbench().markerEditor().addMarker();
}

void MarkersPane::showMarkerAddDialog()
{
    if (!isEditingEnabled())
        return;
    table().commitEditing();
    MyDocument &document = workbench().document();
    const MenuPtr sequences = document.sequenceMenu();
    if (sequences->size() < 2) {
        workbench().markerEditor().addMarker(); // which says why not
        return;
    }
    const RowRecordPtr row = chosenRow();
    const std::int64_t item = row ? row->get(MarkerKey::sequenceIndex) : 0;
    const bool hasSequence = item > 0 && item < std::int64_t(sequences->size());
    // That of a marker on a clip is no place in the sequence.
    const bool hasPlace = hasSequence && !row->get(MarkerKey::clip);
    const MarkerAddSheet::Start start{hasSequence ? item : overviewItem(),
                                      hasPlace ? MarkerTableValues::inText(*row) : QString()};
    auto *const sheet = new MarkerAddSheet(sequences, start, workbench().markerEditor().freeName(),
                                           markerModel().shownColorLabels(), this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        whenIdle([this, sequence = sheet->sequence(), marker = sheet->marker()] {
            if (const RowRecordPtr record = workbench().markerEditor().addMarkerAt(sequence, marker))
                selectAdded({record});
        });
    });
    sheet->open();
}

void MarkersPane::duplicateMarkers()
{
    if (!isEditingEnabled())
        return;
    table().commitEditing();
    if (!table().selectionModel()->hasSelection())
        showMessage(tr("Nothing was duplicated: no row is selected"));
    const RowList copies =
        workbench().markerEditor().duplicate(workbench().document().selectedRecords(Tab::Markers));
    selectAdded(copies);
    if (copies.size() == 1)
        showMessage(tr("1 marker duplicated"));
    else if (!copies.empty())
        showMessage(tr("%1 markers duplicated").arg(QLocale().toString(qulonglong(copies.size()))));
}

/// Selects rows that were added last, and shows them.
void MarkersPane::selectAdded(const RowList &added)
{
    const RowList &rows = workbench().document().rowsOnShow(Tab::Markers);
    if (added.empty() || rows.size() < added.size() || rows.back() != added.back())
        return;
    std::vector<std::size_t> selected;
    for (std::size_t row = rows.size() - added.size(); row < rows.size(); ++row)
        selected.push_back(row);
    selectRows(selected);
    scrollToRow(selected.back());
    scrollToRow(selected.front());
    table().setFocus();
}

void MarkersPane::moveInPoint()
{
    const int in = model().columnOf(MarkerKey::in.text());
    const QModelIndex edited = table().editedCell();
    const QModelIndex current = table().currentIndex();
    if (table().isColumnHidden(in)) {
        showMessage(tr("The column In is hidden. View ▸ Columns shows it again"));
        return;
    }
    if (edited.isValid() && edited.column() == in) {
        table().commitEditingAlong();
    } else if (!edited.isValid() && current.isValid()) {
        const QModelIndex cell = model().index(current.row(), in);
        table().selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
        table().scrollTo(cell);
        table().editAlong(cell);
    } else if (!edited.isValid()) {
        showMessage(tr("Select a marker first"));
    }
}

void MarkersPane::removeMarkers()
{
    if (!isEditingEnabled())
        return;
    if (!table().selectionModel()->hasSelection())
        showMessage(tr("Nothing was removed: no row is selected"));
    workbench().markerEditor().removeMarkers();
}

void MarkersPane::editCurrentCell()
{
    const QModelIndex index = table().currentIndex();
    if (!index.isValid())
        return;
    if (index.flags().testFlag(Qt::ItemIsUserCheckable))
        showMessage(tr("The space bar sets and clears the box"));
    else if (index.flags().testFlag(Qt::ItemIsEditable) || isEditingEnabled())
        table().edit(index);
    else
        tellWhyNotEditable();
}

void MarkersPane::explainDelete()
{
    showMessage(tr("This key removes no markers. Edit ▸ Remove… (Ctrl+Delete) does"));
}

void MarkersPane::showMarkerOffsetWindow()
{
    if (!isEditingEnabled())
        return;
    const MyDocument &document = workbench().document();
    auto *sheet = new MarkerOffsetSheet(
        MarkerOffset::rateText(document.rowsOnShow(Tab::Markers)),
        [&document](const QString &typed) {
            return MarkerOffset::preview(typed, document.selectedRecords(Tab::Markers),
                                         document.rowsOnShow(Tab::Markers));
        },
        this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        const RowList records = workbench().document().selectedRecords(Tab::Markers);
        const RowList table = workbench().document().rowsOnShow(Tab::Markers);
        whenIdle([this, records, table, offset = sheet->text()] {
            workbench().markerEditor().offset(records, offset, table);
            model().rowsChanged(0, model().rowCount() - 1);
        });
    });
    sheet->open();
}

void MarkersPane::showMarkerPresetDialog()
{
    if (!isOpen(m_presetSheet))
        workbench().markerPresets().showMarkerPresetDialog();
}

void MarkersPane::openPresetSheet()
{
    m_presetSheet = new MarkerPresetSheet(workbench().markerPresets(), this);
    m_presetSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_presetSheet->open();
}

void MarkersPane::closePresetSheet()
{
    if (m_presetSheet)
        m_presetSheet->done(QDialog::Accepted);
}

void MarkersPane::showMarkerPresetsDialog()
{
    if (isOpen(m_presetsSheet))
        return;
    auto *const sheet = new MarkerPresetsSheet(workbench().markerPresets(), this);
    connect(sheet, &MarkerPresetsSheet::labelsRequested, this, &MarkersPane::editPresetLabels);
    m_presetsSheet = sheet;
    m_presetsSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_presetsSheet->open();
}

/// In the sheet of a single preset, after which that of all presets comes back.
void MarkersPane::editPresetLabels(const QString &name)
{
    workbench().markerPresets().editMarkerPreset(name);
    if (!isOpen(m_presetSheet))
        return;
    const auto goBack = [this, name] {
        showMarkerPresetsDialog();
        static_cast<MarkerPresetsSheet &>(*m_presetsSheet).select(name);
    };
    connect(m_presetSheet, &QDialog::finished, this, goBack, Qt::QueuedConnection);
}

void MarkersPane::showMarkerFieldsDialog()
{
    if (isOpen(m_fieldsSheet))
        return;
    m_fieldsSheet = new MarkerFieldsSheet(workbench().markerFields(), this);
    m_fieldsSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_fieldsSheet->open();
}

void MarkersPane::applyDefaultsChange(const QString &key)
{
    TabPane::applyDefaultsChange(key);
    if (key == QStringLiteral("customMarkerFields"))
        workbench().markerFields().definitionsChanged();
    else if (key == QStringLiteral("selectedPreset") || key == QStringLiteral("selectedPresetIsNamedNone"))
        workbench().markerPresets().refreshMarkerPresets();
    else if (key == MarkerInventory::ownOwnersDefault)
        m_ownOwners->setChecked(m_defaults.boolean(key));
    else if (key == MarkerOverviewPanel::shownDefault)
        m_overview->setVisible(MarkerOverviewPanel::isWanted(m_defaults));
}

void MarkersPane::commitEdit(int, const QString &column, const QString &text)
{
    workbench().markerEditor().setObjectValue(text, column);
}

void MarkersPane::commitEditAlong(int row, const QString &column, const QString &text)
{
    if (column == MarkerKey::in.text())
        workbench().markerEditor().moveInPoints(workbench().document().selectedRecords(Tab::Markers), text);
    else
        commitEdit(row, column, text);
}

void MarkersPane::columnMoved(const QString &identifier, int index)
{
    workbench().markerFields().columnMoved(identifier, index);
}

void MarkersPane::setEditingEnabled(bool enabled)
{
    TabPane::setEditingEnabled(enabled);
    const QList<QAction *> actions = table().menu()->actions();
    for (QAction *action : actions.first(actions.size() - 1)) // all but Copy
        action->setEnabled(enabled);
}

void MarkersPane::updateControls()
{
    const bool hasSelection = table().selectionModel()->hasSelection();
    m_add->setEnabled(isEditingEnabled());
    m_addAt->setEnabled(isEditingEnabled());
    m_remove->setEnabled(isEditingEnabled() && hasSelection);
    m_offset->setEnabled(isEditingEnabled() && hasSelection);
    const std::size_t selected = hasSelection ? selectedRows().size() : 0;
    const int count = model().rowCount();
    const QLocale locale;
    QString text = count == 1 ? tr("1 marker") : tr("%1 markers").arg(locale.toString(count));
    if (selected > 0)
        text = tr("%1 (%2 selected)").arg(text, locale.toString(qulonglong(selected)));
    m_status->setWhole(m_message.isEmpty() ? text : tr("%1. %2.").arg(text, m_message));
}

QString MarkersPane::loadingText(std::size_t found) const
{
    return found == 0 ? tr("Looking for markers…")
                      : tr("Looking for markers: %1 so far…").arg(QLocale().toString(qulonglong(found)));
}

QString MarkersPane::emptyText() const
{
    return tr("This project has no markers yet.");
}

QString MarkersPane::filteredText() const
{
    return searchBar().isNarrowing() ? tr("No marker matches the search.") : tr("No marker has this color.");
}

} // namespace vantrell
