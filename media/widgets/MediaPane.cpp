#include "media/widgets/MediaPane.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "media/widgets/MediaTableModel.h"
#include "media/widgets/QVGraphView.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
#include "table/widgets/TableIcons.h"
#include "workbench/Workbench.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds prepareTime{4};
const QString useColumnsKey = QStringLiteral("mediaUseColumns");

} // namespace

MediaPane::MediaPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent)
    : TabPane(workbench, defaults, new MediaTableModel(workbench.document()), parent)
    , m_kinds(new QComboBox(this))
    , m_drives(new QComboBox(this))
    , m_reveal(new QPushButton(tr("&Reveal"), this))
    , m_relink(new QPushButton(tr("Re&link…"), this))
    , m_exportList(new QPushButton(tr("E&xport List…"), this))
    , m_chart(new QVGraphView(this))
    , m_defaults(defaults)
    , m_mediaSearch(workbench.document(), workbench.mediaFilter(), m_uses)
    , m_states(new QComboBox(this))
    , m_useColumns(mediaUseColumns(m_uses))
{
    workbench.mediaFilter().setAdditionalColumns(m_useColumns);
    makeControls();
    makeSearch();
    makeFooter();
    table().setAccessibleName(tr("Media files"));
    connect(&workbench.mediaFilter(), &MediaFilter::chartChanged, this, &MediaPane::setMediaChart);
    connect(&table(), &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        this->workbench().mediaInventory().mediaTableViewDoubleClick(index.row());
    });
    auto *menu = new QMenu(this);
    menu->addAction(tr("Open"), this, [this] {
        const std::vector<std::size_t> rows = selectedRows();
        if (rows.empty())
            showMessage(tr("No file is selected. Click its row first"));
        else
            this->workbench().mediaInventory().mediaTableViewDoubleClick(std::ptrdiff_t(rows.front()));
    });
    menu->addAction(tr("Reveal in File Browser"), this, &MediaPane::revealMediaInFinder);
    menu->addAction(tr("Copy"), this, &TabPane::copySelection);
    menu->addSeparator();
    QAction *const relink =
        menu->addAction(tr("Relink…"), this, [this] { Q_EMIT relinkRequested(selectedMissingUrl()); });
    connect(menu, &QMenu::aboutToShow, this,
            [this, relink] { relink->setEnabled(isEditingEnabled() && !selectedMissingUrl().isNull()); });
    table().setMenu(menu);
    QHeaderView *const header = table().horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &MediaPane::showHeaderMenu);
    // Relinking gives files other URLs.
    const MyDocument &document = workbench.document();
    for (const auto signal :
         {&MyDocument::inventoriesFinished, &MyDocument::historyChanged, &MyDocument::editingAllowedChanged})
        connect(&document, signal, this, &MediaPane::updateUses);
    restoreUseColumns();
    updateControls();
}

void MediaPane::makeControls()
{
    m_kinds->addItems({tr("All Files"), tr("Movie Clips"), tr("Audio Clips"), tr("Images")});
    m_kinds->setAccessibleName(tr("Kind of files"));
    m_kinds->setToolTip(tr("Show files of one kind only"));
    m_drives->addItem(tr("All Drives"));
    m_drives->setAccessibleName(tr("Drive"));
    m_drives->setToolTip(tr("Show the files of one drive only"));
    m_drives->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_reveal->setToolTip(tr("Show the selected file in the file browser"));
    m_relink->setToolTip(tr("Find the missing files in other folders"));
    m_exportList->setToolTip(tr("Write a list of the files to be sent, with checksums if wanted"));
    addControls({m_kinds, m_drives, m_reveal, nullptr, m_relink, m_exportList});
    connect(m_kinds, &QComboBox::activated, this, &MediaPane::applyFilters);
    connect(m_drives, &QComboBox::activated, this, &MediaPane::applyFilters);
    connect(m_reveal, &QPushButton::clicked, this, &MediaPane::revealMediaInFinder);
    connect(m_relink, &QPushButton::clicked, this, [this] { Q_EMIT relinkRequested(QString()); });
    connect(m_exportList, &QPushButton::clicked, this, &MediaPane::exportListRequested);
}

void MediaPane::makeSearch()
{
    SearchBar &bar = addSearchBar();
    bar.field().setAccessibleName(tr("Search the media files"));
    bar.field().setToolTip(tr("Show only files with this text in their name or folder"));
    m_states->addItems({tr("Any State"), tr("Missing"), tr("Unused"), tr("Unknown Kind")});
    m_states->setAccessibleName(tr("State of files"));
    m_states->setToolTip(
        tr("Show only files that are missing, that no sequence uses, or of an unknown kind"));
    bar.addPopUp(m_states);
}

void MediaPane::search()
{
    m_mediaSearch.setConditions(
        {.text = searchBar().text(), .state = MediaSearch::State(m_states->currentIndex())});
    updateUses();
}

bool MediaPane::prepareSearch()
{
    return m_mediaSearch.prepare(prepareTime);
}

QString MediaPane::countText(const QString &number, std::size_t count) const
{
    return count == 1 ? tr("%1 file").arg(number) : tr("%1 files").arg(number);
}

/// Of those that are there.
QString MediaPane::totalText(const RowList &rows) const
{
    double bytes = 0;
    for (const RowRecordPtr &row : rows)
        bytes += double(std::uint64_t(row->get(MediaKey::filesize)));
    return bytes > 0 ? MediaFile::formatFileSize(bytes) : QString();
}

void MediaPane::makeFooter()
{
    auto *labels = new QGridLayout;
    labels->setHorizontalSpacing(fontMetrics().averageCharWidth() * 4);
    labels->addWidget(makeLabel(Label::MediaTotalSize, this), 1, 0);
    labels->addWidget(makeLabel(Label::MediaTotalFiles, this), 2, 0);
    labels->addWidget(makeLabel(Label::MediaFilteredTotalSize, this), 1, 1);
    labels->addWidget(makeLabel(Label::MediaFilteredTotalFiles, this), 2, 1);
    labels->addWidget(makeLabel(Label::MediaLargestFile, this), 1, 2);
    labels->addWidget(makeLabel(Label::MediaSmallestFile, this), 2, 2);
    labels->setColumnStretch(2, 1);
    labels->setRowStretch(0, 1);
    labels->setRowStretch(3, 1);
    for (const Label file : {Label::MediaLargestFile, Label::MediaSmallestFile}) {
        // A long name must not widen the window.
        labelOf(file)->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    m_chart->setAccessibleName(tr("Chart of the media on show and the free space of the start-up volume"));
    auto *line = new QHBoxLayout;
    line->addLayout(labels, 1);
    line->addWidget(m_chart);
    footer().addLayout(line);
}

void MediaPane::prepareToShow()
{
    // A volume that does not answer must not hold up the window.
    BackgroundWork::run([pane = QPointer(this), count = ++m_driveLookups] {
        auto drives = std::make_shared<std::vector<DriveItem>>();
        MediaFilter::populateDrivePopUp(*drives);
        MainThread::post([pane, drives, count] {
            if (pane && count == pane->m_driveLookups)
                pane->setDrives(std::move(*drives));
        });
    });
}

void MediaPane::setDrives(std::vector<DriveItem> drives)
{
    const QString chosen = workbench().document().viewState().mediaDrive;
    m_driveItems = std::move(drives);
    m_drives->clear();
    int index = 0;
    for (std::size_t i = 0; i < m_driveItems.size(); ++i) {
        const DriveItem &drive = m_driveItems[i];
        const bool isNameless = drive.title == QLatin1Char('/');
        m_drives->addItem(drive.path.isNull() ? QIcon() : TableIcons::volume(drive.path),
                          drive.path.isNull() ? tr("All Drives")
                          : isNameless        ? tr("System Drive")
                                              : drive.title);
        if (!chosen.isNull() && drive.path == chosen)
            index = int(i);
    }
    m_drives->setCurrentIndex(index);
    if (!chosen.isNull() && index == 0 && workbench().document().viewState().selectedTab == Tab::Media)
        applyFilters(); // the chosen drive has gone
}

void MediaPane::applyFilters()
{
    ViewState &state = workbench().document().viewState();
    state.mediaKind = m_kinds->currentIndex();
    const auto drive = std::size_t(m_drives->currentIndex());
    state.mediaDrive = drive < m_driveItems.size() ? m_driveItems[drive].path : QString();
    workbench().mediaFilter().changeMediaFilter();
}

void MediaPane::setMediaChart(const std::vector<double> &values)
{
    m_chart->setValues(values);
    m_chart->refresh();
    if (values.size() != 2)
        return;
    const QString text = tr("Media on show: %1 (green)\nFree on the start-up volume: %2 (blue)")
                             .arg(MediaFile::formatFileSize(values[0]), MediaFile::formatFileSize(values[1]));
    m_chart->setToolTip(text);
    m_chart->setAccessibleDescription(text);
}

// What the sequences use

void MediaPane::setShowsUses(bool isShown)
{
    QStringList identifiers;
    if (isShown) {
        for (const Column &column : m_useColumns)
            identifiers.append(column.identifier);
    }
    storeUseColumns(identifiers);
}

void MediaPane::storeUseColumns(const QStringList &identifiers)
{
    m_defaults.setValue(useColumnsKey, identifiers.isEmpty() ? QVariant() : QVariant(identifiers));
}

void MediaPane::applyDefaultsChange(const QString &key)
{
    if (key == useColumnsKey)
        restoreUseColumns();
    TabPane::applyDefaultsChange(key);
}

void MediaPane::restoreUseColumns()
{
    QStringList stored;
    for (const QVariant &identifier : m_defaults.value(useColumnsKey).toList())
        stored.append(identifier.toString());
    m_shownUseColumns.clear();
    for (const Column &column : m_useColumns) {
        const bool isShown = stored.contains(column.identifier);
        const bool wasShown = model().columnOf(column.identifier) >= 0;
        if (isShown)
            m_shownUseColumns.append(column.identifier);
        if (isShown && !wasShown)
            addColumn(column);
        else if (!isShown && wasShown)
            removeColumn(column.identifier);
    }
    updateUses();
}

/// Reads them in the background when they are shown or searched and not known of all files.
void MediaPane::updateUses()
{
    MyDocument &document = workbench().document();
    const bool areWanted = showsUses() || m_mediaSearch.conditions().state == MediaSearch::State::Unused;
    if (!areWanted || m_readsUses || !document.xmlDoc() || document.isPopulating(Tab::Media) ||
        document.isPopulating(Tab::Effects) || document.isPopulating(Tab::Markers) ||
        m_uses->holds(document.mediaArray()))
        return;
    QStringList urls; // the records may change meanwhile
    for (const RowRecordPtr &record : document.mediaArray())
        urls.append(record->get(MediaKey::rawpath));
    m_readsUses = document.runInBackground(
        [&document, urls, uses = m_uses] { uses->set(mediaUseTable(document, urls)); },
        [pane = QPointer(this)] {
            if (!pane)
                return;
            pane->m_readsUses = false;
            pane->m_mediaSearch.forget();
            MyDocument &shown = pane->workbench().document();
            if (shown.isSelected(Tab::Media))
                pane->workbench().mediaFilter().populateFilteredMediaData(); // they may be sorted by the uses
        });
}

void MediaPane::showHeaderMenu(const QPoint &position)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Column &column : m_useColumns) {
        QAction *const action = menu->addAction(TableModel::shownName(column));
        action->setCheckable(true);
        action->setChecked(m_shownUseColumns.contains(column.identifier));
        connect(action, &QAction::toggled, this, [this, identifier = column.identifier](bool isShown) {
            QStringList identifiers = m_shownUseColumns;
            identifiers.removeAll(identifier);
            if (isShown)
                identifiers.append(identifier);
            storeUseColumns(identifiers);
        });
    }
    menu->popup(table().horizontalHeader()->mapToGlobal(position));
}

void MediaPane::revealMediaInFinder()
{
    workbench().mediaInventory().revealMediaInFinder();
}

void MediaPane::updateControls()
{
    m_reveal->setEnabled(table().selectionModel()->hasSelection());
    m_relink->setEnabled(isEditingEnabled());
    m_exportList->setEnabled(isEditingEnabled());
}

/// Of the first selected row; null when that is not missing, or has no URL.
QString MediaPane::selectedMissingUrl() const
{
    const std::vector<std::size_t> rows = selectedRows();
    if (rows.empty())
        return QString();
    const RowRecord &record = *model().recordAt(int(rows.front()));
    return record.get(MediaKey::missing) ? record.get(MediaKey::rawpath) : QString();
}

QString MediaPane::loadingText(std::size_t found) const
{
    return found == 0 ? tr("Looking for media…")
                      : tr("Looking for media: %1 so far…").arg(QLocale().toString(qulonglong(found)));
}

QString MediaPane::emptyText() const
{
    return tr("This project uses no media files.");
}

QString MediaPane::filteredText() const
{
    if (m_readsUses && m_mediaSearch.conditions().state == MediaSearch::State::Unused)
        return tr("Looking for what the sequences use…");
    return searchBar().isNarrowing() ? tr("No media file matches the search.")
                                     : tr("No media file is of this kind and on this drive.");
}

} // namespace vantrell
