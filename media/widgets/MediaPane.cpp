#include "media/widgets/MediaPane.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "media/MediaShares.h"
#include "media/widgets/MediaFooter.h"
#include "media/widgets/MediaTableModel.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
#include "table/widgets/TableIcons.h"
#include "workbench/Workbench.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds prepareTime{4};
constexpr int shareMs = 30;
const QString useColumnsKey = QStringLiteral("mediaUseColumns");

QString sizeText(double bytes)
{
    return shownSize(MediaFile::formatFileSize(bytes));
}

} // namespace

MediaPane::MediaPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent)
    : TabPane(workbench, defaults, new MediaTableModel(workbench.document()), parent)
    , m_kinds(new QComboBox(this))
    , m_drives(new QComboBox(this))
    , m_reveal(new QPushButton(tr("&Reveal"), this))
    , m_relink(new QPushButton(tr("Re&link…"), this))
    , m_exportList(new QPushButton(tr("E&xport List…"), this))
    , m_shareTimer(new QTimer(this))
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
    menu->addAction(tr("Open"), this, &MediaPane::openSelectedFile);
    table().addWatchKeys({13, 3}, "openSelectedFile");
    table().addWatchKeys({8, 127}, "explainDelete");
    menu->addAction(tr("Reveal in File Browser"), this, &MediaPane::revealMediaInFinder);
    menu->addAction(tr("Copy"), this, &TabPane::copySelection);
    menu->addSeparator();
    QAction *const relink =
        menu->addAction(tr("Relink…"), this, [this] { Q_EMIT relinkRequested(selectedMissingUrl()); });
    connect(menu, &QMenu::aboutToShow, this,
            [this, relink] { relink->setEnabled(isEditingEnabled() && !selectedMissingUrl().isNull()); });
    table().setMenu(menu);
    // Relinking gives files other URLs.
    connect(&workbench.document(), &MyDocument::historyChanged, this, &MediaPane::updateUses);
    mediaModel().setPathMappings(PathMappings::stored(m_defaults));
    restoreUseColumns();
    updateControls();
}

void MediaPane::explainDelete()
{
    showMessage(tr("Files cannot be removed here: the list shows what the project uses"));
}

void MediaPane::openSelectedFile()
{
    const std::vector<std::size_t> rows = selectedRows();
    if (rows.empty())
        showMessage(tr("No file is selected. Click its row first"));
    else
        workbench().mediaInventory().mediaTableViewDoubleClick(std::ptrdiff_t(rows.front()));
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
    returnFocusFrom(m_states);
}

void MediaPane::search()
{
    m_mediaSearch.setConditions(
        {.text = searchBar().text(), .state = MediaSearch::State(m_states->currentIndex())});
    m_triesUses = true;
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

/// Of those that are there; beside the size of the rows on show that of all files.
QString MediaPane::totalText(const RowList &rows) const
{
    const auto sizeOf = [](const RowList &files) {
        double bytes = 0;
        for (const RowRecordPtr &file : files)
            bytes += double(std::uint64_t(file->get(MediaKey::filesize)));
        return bytes;
    };
    const RowView &view = model().view();
    const double bytes = sizeOf(rows);
    const QString size = bytes > 0 ? sizeText(bytes) : QString();
    if (&rows != &view.visibleRows() || rows.size() == view.list().size())
        return size;
    const double all = sizeOf(view.list());
    return all > 0 ? tr("%1 of %2", "sizes").arg(sizeText(bytes), sizeText(all)) : size;
}

void MediaPane::makeFooter()
{
    std::vector<QLabel *> labels;
    for (const Label label :
         {Label::MediaTotalSize, Label::MediaTotalFiles, Label::MediaFilteredTotalSize,
          Label::MediaFilteredTotalFiles, Label::MediaLargestFile, Label::MediaSmallestFile})
        labels.push_back(makeLabel(label, this));
    labels.front()->setToolTip(tr("The size of the files on show"));
    m_mediaFooter = new MediaFooter(labels, this);
    footer().addWidget(m_mediaFooter);
    m_shareTimer->setSingleShot(true);
    m_shareTimer->setInterval(shareMs);
    connect(m_shareTimer, &QTimer::timeout, this, &MediaPane::updateShares);
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
    for (DriveItem &drive : drives) {
        if (drive.path.isNull())
            drive.title = tr("All Drives");
        else if (drive.path == QLatin1Char('/') && drive.title == drive.path)
            drive.title = tr("System Drive");
    }
    const QStringList titles = driveTitles(drives);
    m_driveItems = std::move(drives);
    m_drives->clear();
    m_volumeNames.clear();
    QStringList paths;
    int index = 0;
    for (std::size_t i = 0; i < m_driveItems.size(); ++i) {
        const QString path = m_driveItems[i].path;
        const QString title = titles[qsizetype(i)];
        m_drives->addItem(path.isNull() ? QIcon() : TableIcons::volume(path), title);
        if (!path.isNull())
            m_volumeNames.insert(path, title);
        if (!chosen.isNull() && path == chosen)
            index = int(i);
        paths.append(path);
    }
    m_drives->setCurrentIndex(index);
    mediaModel().setDrives(paths);
    m_driveNames.clear();
    m_shareTimer->start();
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
    m_mediaFooter->setChart(values);
    m_shareTimer->start();
}

MediaTableModel &MediaPane::mediaModel() const
{
    return static_cast<MediaTableModel &>(model());
}

/// Shows the shares of the rows on show in the bars.
void MediaPane::updateShares()
{
    const RowList &rows = model().view().visibleRows();
    const QHash<QString, QString> kindNames{{MediaKind::movieClip, tr("Movie Clips")},
                                            {MediaKind::audioClip, tr("Audio Clips")},
                                            {MediaKind::image, tr("Images")}};
    const QString unknownKind = tr("Unknown Kind");
    const QHash<QString, QColor> kindColors{{tr("Movie Clips"), QColor(62, 126, 190)},
                                            {tr("Audio Clips"), QColor(84, 156, 84)},
                                            {tr("Images"), QColor(214, 140, 46)}};
    const std::array<QColor, 6> driveColors{QColor(118, 104, 184), QColor(60, 152, 156),
                                            QColor(196, 104, 132), QColor(156, 140, 60),
                                            QColor(96, 130, 168),  QColor(170, 116, 80)};
    const QColor other(136, 136, 136);
    const auto show = [](SharesBar &bar, const std::vector<MediaShare> &shares, const auto &colorOf) {
        std::vector<SharesBar::Share> shown;
        for (const MediaShare &share : shares) {
            const QString number = QLocale().toString(qulonglong(share.files));
            const QString files = share.files == 1 ? tr("%1 file").arg(number) : tr("%1 files").arg(number);
            shown.push_back({.name = share.name,
                             .figure = shares.front().bytes > 0 ? sizeText(share.bytes) : files,
                             .part = share.part,
                             .color = colorOf(share.name, shown.size())});
        }
        bar.setShares(std::move(shown));
    };
    show(m_mediaFooter->kinds(),
         mediaShares(
             rows,
             [&](const RowRecord &row) { return kindNames.value(row.get(MediaKey::filetype), unknownKind); }),
         [&](const QString &name, std::size_t) { return kindColors.value(name, other); });
    show(
        m_mediaFooter->drives(),
        mediaShares(rows, [this](const RowRecord &row) { return driveNameOf(row.get(MediaKey::directory)); }),
        [&](const QString &, std::size_t i) { return i < driveColors.size() ? driveColors[i] : other; });
}

QString MediaPane::driveNameOf(const QString &directory)
{
    const auto known = m_driveNames.constFind(directory);
    if (known != m_driveNames.constEnd())
        return *known;
    const QString volume = mediaModel().volumeOf(directory);
    QString name = m_volumeNames.value(volume);
    if (name.isEmpty())
        name = volume == QLatin1Char('/') ? tr("System Drive") : volume.section(QLatin1Char('/'), -1);
    if (directory.isEmpty() || name.isEmpty())
        name = tr("Unknown Drive");
    m_driveNames.insert(directory, name);
    return name;
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
    else if (key == PathMappings::defaultsKey)
        mediaModel().setPathMappings(PathMappings::stored(m_defaults));
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
    m_triesUses = true;
    updateUses();
}

void MediaPane::setEditingEnabled(bool enabled)
{
    TabPane::setEditingEnabled(enabled);
    // What the window does next comes first, for nothing is edited while the uses are read.
    if (enabled)
        QMetaObject::invokeMethod(this, &MediaPane::updateUses, Qt::QueuedConnection);
}

/// Reads them in the background when they are shown or searched and not known of all files, unless something
/// may be changing the project.
void MediaPane::updateUses()
{
    MyDocument &document = workbench().document();
    const bool areWanted = showsUses() || m_mediaSearch.conditions().state == MediaSearch::State::Unused;
    if (!areWanted || m_readsUses || !m_triesUses || !isEditingEnabled() ||
        m_uses->holds(document.mediaArray()))
        return;
    QStringList urls; // the records may change meanwhile
    for (const RowRecordPtr &record : document.mediaArray())
        urls.append(record->get(MediaKey::rawpath));
    const auto areRead = std::make_shared<bool>(false);
    m_readsUses = document.runInBackground(
        [&document, urls, areRead, uses = m_uses] {
            uses->set(mediaUseTable(document, urls));
            *areRead = true;
        },
        [pane = QPointer(this), areRead] {
            if (!pane)
                return;
            pane->m_readsUses = false;
            pane->m_triesUses = *areRead;
            pane->m_mediaSearch.forget();
            MyDocument &shown = pane->workbench().document();
            if (shown.isSelected(Tab::Media))
                pane->workbench().mediaFilter().populateFilteredMediaData(); // they may be sorted by the uses
        });
}

void MediaPane::showColumn(const QString &identifier, bool isShown)
{
    if (!findColumn(m_useColumns, identifier)) {
        TabPane::showColumn(identifier, isShown);
        return;
    }
    QStringList identifiers = m_shownUseColumns;
    identifiers.removeAll(identifier);
    if (isShown)
        identifiers.append(identifier);
    storeUseColumns(identifiers);
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
