#include "compare/widgets/CompareWindow.h"

#include "compare/widgets/CarriedMarkerModel.h"
#include "compare/widgets/ChangeColors.h"
#include "compare/widgets/ChangeTableModel.h"
#include "compare/widgets/CutStrips.h"
#include "support/files/FileUtilities.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "support/widgets/AlertBox.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/SheetTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <chrono>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds progressDelay{300}; // shorter comparisons show none
constexpr int filtersInRow = 5;

QString counted(std::size_t count)
{
    return QLocale().toString(qulonglong(count));
}

/// Frees what has been compared away from the main thread.
void release(std::shared_ptr<const CutComparison> comparison)
{
    if (comparison && comparison.use_count() == 1)
        BackgroundWork::run([kept = std::move(comparison)]() mutable { kept.reset(); });
}

} // namespace

CompareWindow::CompareWindow(const Project &own, const Project &other, bool isSame, const CutGuess &guess,
                             const QString &folder, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_own(own)
    , m_other(other)
    , m_isSame(isSame)
    , m_folder(folder)
    , m_guess(guess)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(isSame ? tr("Compare Sequences of “%1”").arg(own.name)
                          : tr("Compare “%1” with “%2”").arg(own.name, other.name));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 10);
    makeHeader();
    makeNotice();
    makeFilters();
    makeTables();
    makeButtons();
    fillSequences();
    updateCounts();
    updateButtons();
    m_progressDelay.setSingleShot(true);
    m_progressDelay.setInterval(progressDelay);
    connect(&m_progressDelay, &QTimer::timeout, m_progress, &QWidget::show);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    resize(QSize(1180, 860).boundedTo(screen()->availableSize() * 0.9));
    m_changes->setFocus();
}

CompareWindow::~CompareWindow()
{
    m_strips->setComparison(nullptr, false);
    m_changeModel->setComparison(nullptr);
    m_markerModel->setComparison(nullptr);
    release(std::exchange(m_comparison, nullptr));
}

void CompareWindow::makeHeader()
{
    const auto makeProject = [this] {
        auto *const label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        return label;
    };
    const auto makeSequences = [this](const QString &name, QLabel *label) {
        auto *const box = new QComboBox(this);
        box->setAccessibleName(name);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(16);
        label->setBuddy(box);
        connect(box, &QComboBox::activated, this, &CompareWindow::compare);
        return box;
    };
    m_oldProject = makeProject();
    m_newProject = makeProject();
    m_oldSequences = makeSequences(tr("Old sequence"), m_oldProject);
    m_newSequences = makeSequences(tr("New sequence"), m_newProject);
    m_swap = new QPushButton(tr("&Swap"), this);
    m_swap->setToolTip(tr("Make the old cut the new one"));
    connect(m_swap, &QPushButton::clicked, this, &CompareWindow::swapCuts);
    auto *const grid = new QGridLayout;
    grid->addWidget(m_oldProject, 0, 0);
    grid->addWidget(m_newProject, 0, 2);
    grid->addWidget(m_oldSequences, 1, 0);
    grid->addWidget(m_swap, 1, 1);
    grid->addWidget(m_newSequences, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    static_cast<QVBoxLayout *>(layout())->addLayout(grid);
}

void CompareWindow::makeNotice()
{
    const auto makeBar = [this] {
        auto *const bar = new QFrame(this);
        bar->setBackgroundRole(QPalette::AlternateBase);
        bar->setAutoFillBackground(true);
        bar->setFrameShape(QFrame::StyledPanel);
        auto *const row = new QHBoxLayout(bar);
        row->setContentsMargins(8, 4, 6, 4);
        bar->hide();
        layout()->addWidget(bar);
        return bar;
    };
    m_notice = makeBar();
    m_noticeText = new QLabel(m_notice);
    m_noticeText->setTextFormat(Qt::PlainText);
    m_noticeText->setWordWrap(true);
    m_again = new QPushButton(tr("Compare A&gain"), m_notice);
    connect(m_again, &QPushButton::clicked, this, &CompareWindow::compare);
    m_notice->layout()->addWidget(m_noticeText);
    static_cast<QHBoxLayout *>(m_notice->layout())->setStretch(0, 1);
    m_notice->layout()->addWidget(m_again);

    m_progress = makeBar();
    auto *const bar = new QProgressBar(m_progress);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setAccessibleName(tr("Progress"));
    auto *const cancel = new QPushButton(tr("Cancel"), m_progress);
    connect(cancel, &QPushButton::clicked, this, &CompareWindow::cancelWanted);
    m_progress->layout()->addWidget(new QLabel(tr("Comparing…"), m_progress));
    m_progress->layout()->addWidget(bar);
    m_progress->layout()->addWidget(cancel);
}

void CompareWindow::makeFilters()
{
    auto *const row = new QHBoxLayout;
    auto *const grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    for (std::size_t i = 0; i < m_filters.size(); ++i) {
        const EventChange::Kind kind = ChangeColors::kinds[i];
        m_filters[i] = new QCheckBox(this);
        m_filters[i]->setIcon(ChangeColors::swatch(kind, palette()));
        m_filters[i]->setChecked(kind != EventChange::Kind::Unchanged);
        connect(m_filters[i], &QCheckBox::toggled, this, &CompareWindow::filtersChanged);
        grid->addWidget(m_filters[i], int(i) / filtersInRow, int(i) % filtersInRow);
    }
    row->addLayout(grid);
    row->addStretch(1);
    m_strips = new CutStrips(this);
    const auto addZoom = [&](const QString &text, const QString &tip, auto operation) {
        auto *const button = new QToolButton(this);
        button->setText(text);
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        connect(button, &QToolButton::clicked, m_strips, operation);
        row->addWidget(button, 0, Qt::AlignBottom);
    };
    addZoom(QStringLiteral("−"), tr("Zoom out"), &CutStrips::zoomOut);
    addZoom(QStringLiteral("+"), tr("Zoom in"), &CutStrips::zoomIn);
    addZoom(tr("Fit"), tr("Show all of both cuts"), &CutStrips::showAll);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

QTableView *CompareWindow::makeTable(QAbstractTableModel *model, const QString &name)
{
    auto *const table = new SheetTable(model, this);
    table->setAccessibleName(name);
    table->setTextElideMode(Qt::ElideMiddle);
    return table;
}

QWidget *CompareWindow::makeChanges()
{
    m_changeModel = new ChangeTableModel(this);
    m_strips->setKinds(m_changeModel->kinds());
    m_changes = makeTable(m_changeModel, tr("Changes"));
    m_changes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QHeaderView *const header = m_changes->horizontalHeader();
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorClearable(true);
    m_changes->setSortingEnabled(true);
    const int letter = fontMetrics().averageCharWidth();
    const std::array<int, ChangeTableModel::columns> widths = {17, 34, 8, 16, 16, 40, 30};
    for (int i = 0; i < ChangeTableModel::columns; ++i)
        header->resizeSection(i, widths[std::size_t(i)] * letter);
    connect(m_changes->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CompareWindow::chooseRow);
    connect(m_changeModel, &QAbstractItemModel::modelReset, this, &CompareWindow::showChosen);
    connect(m_strips, &CutStrips::changeChosen, this, [this](std::size_t change) {
        m_chosen = change;
        showChosen();
    });
    return m_changes;
}

QWidget *CompareWindow::makeMarkers()
{
    auto *const group = new QWidget(this);
    m_markerModel = new CarriedMarkerModel(this);
    m_markers = makeTable(m_markerModel, tr("Markers of the old cut"));
    m_markers->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    const int letter = fontMetrics().averageCharWidth();
    const std::array<int, CarriedMarkerModel::columns> widths = {51, 16, 18, 16, 30};
    for (int i = 0; i < CarriedMarkerModel::columns; ++i)
        m_markers->horizontalHeader()->resizeSection(i, widths[std::size_t(i)] * letter);
    m_markersText = new QLabel(group);
    m_markersText->setTextFormat(Qt::PlainText);
    m_markersText->setWordWrap(true);
    m_tickAll = new QPushButton(tr("&Tick All"), group);
    m_tickAll->setToolTip(tr("Tick all markers that have a place"));
    m_tickNone = new QPushButton(tr("Tick &None"), group);
    connect(m_tickAll, &QPushButton::clicked, m_markerModel, [this] { m_markerModel->wantAll(true); });
    connect(m_tickNone, &QPushButton::clicked, m_markerModel, [this] { m_markerModel->wantAll(false); });
    connect(m_markerModel, &CarriedMarkerModel::wantedChanged, this, [this] {
        m_strips->updateMarkers();
        updateButtons();
    });
    connect(m_markers->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CompareWindow::chooseMarker);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_markersText, 1);
    row->addWidget(m_tickAll);
    row->addWidget(m_tickNone);
    auto *const column = new QVBoxLayout(group);
    column->setContentsMargins(0, 4, 0, 0);
    column->addLayout(row);
    column->addWidget(m_markers, 1);
    return group;
}

void CompareWindow::makeTables()
{
    auto *const splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_strips);
    splitter->addWidget(makeChanges());
    splitter->addWidget(makeMarkers());
    splitter->setStretchFactor(0, 4);
    splitter->setStretchFactor(1, 3);
    splitter->setStretchFactor(2, 2);
    splitter->setSizes({320, 240, 180});
    static_cast<QVBoxLayout *>(layout())->addWidget(splitter, 1);
}

void CompareWindow::makeButtons()
{
    m_status = new QLabel(this);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_export = new QPushButton(tr("&Export…"), this);
    auto *const formats = new QMenu(m_export);
    const auto addFormat = [&](const QString &title, ChangeListFormat format) {
        connect(formats->addAction(title), &QAction::triggered, this, [this, format] { askForFile(format); });
    };
    addFormat(tr("&CSV for Spreadsheets…"), ChangeListFormat::Csv);
    addFormat(tr("&HTML Page…"), ChangeListFormat::Html);
    addFormat(tr("&EDL Text…"), ChangeListFormat::Edl);
    m_export->setMenu(formats);
    m_add = new QPushButton(tr("&Add to This Project"), this);
    connect(m_add, &QPushButton::clicked, this, &CompareWindow::addWanted);
    auto *const close = new QPushButton(tr("&Close"), this);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_status, 1);
    row->addWidget(m_export);
    row->addWidget(m_add);
    row->addWidget(close);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void CompareWindow::fillSequences()
{
    const Project &before = isOwnNew() ? m_other : m_own;
    const Project &after = isOwnNew() ? m_own : m_other;
    m_oldProject->setText(m_isSame ? tr("Old cut:") : tr("Old cut, in “%1”:").arg(before.name));
    m_newProject->setText(m_isSame ? tr("New cut:") : tr("New cut, in “%1”:").arg(after.name));
    for (QComboBox *const box : {m_oldSequences, m_newSequences})
        box->clear();
    m_oldSequences->addItems(before.sequences);
    m_newSequences->addItems(after.sequences);
    m_oldSequences->setCurrentIndex(int(m_guess.before) - 1);
    m_newSequences->setCurrentIndex(int(m_guess.after) - 1);
}

std::int64_t CompareWindow::oldSequence() const
{
    return m_oldSequences->currentIndex() + 1;
}

std::int64_t CompareWindow::newSequence() const
{
    return m_newSequences->currentIndex() + 1;
}

void CompareWindow::swapCuts()
{
    m_guess = {newSequence(), oldSequence()};
    m_isOwnNew = !m_isOwnNew;
    fillSequences();
    compare();
}

void CompareWindow::compare()
{
    if (!m_isComparing && !m_isAdding && !m_isOtherGone)
        Q_EMIT comparisonWanted();
}

void CompareWindow::beginComparing()
{
    m_isComparing = true;
    setNotice(QString(), false);
    m_progressDelay.start();
    updateButtons();
}

void CompareWindow::showComparison(std::shared_ptr<CutComparison> comparison)
{
    m_isComparing = false;
    m_isStale = false;
    m_progressDelay.stop();
    m_progress->hide();
    const bool isSamePair = m_comparison && m_comparison->before.sequence == comparison->before.sequence &&
                            m_comparison->after.sequence == comparison->after.sequence;
    m_chosen.reset();
    m_strips->setComparison(comparison, isSamePair);
    m_changeModel->setComparison(comparison);
    m_markerModel->setComparison(comparison);
    release(std::exchange(m_comparison, std::move(comparison)));
    updateCounts();
    updateButtons();
}

void CompareWindow::comparisonFailed(const QString &reason)
{
    m_isComparing = false;
    m_isStale = true;
    m_progressDelay.stop();
    m_progress->hide();
    setNotice(reason.isEmpty() ? tr("The cuts were not compared.") : reason, true);
    updateButtons();
}

void CompareWindow::noteChanged()
{
    if (m_isComparing || m_isAdding || m_isOtherGone || !m_comparison)
        return;
    m_isStale = true;
    setNotice(tr("A project was changed since the cuts were compared."), true);
    updateButtons();
}

void CompareWindow::noteOtherGone()
{
    m_isOtherGone = true;
    m_isComparing = false;
    m_progressDelay.stop();
    m_progress->hide();
    setNotice(
        tr("“%1” was closed or loaded again. To add markers or compare again, choose Compare with… once "
           "more.")
            .arg(m_other.name),
        false);
    updateButtons();
}

void CompareWindow::setNotice(const QString &text, bool offersAgain)
{
    m_noticeText->setText(text);
    m_again->setVisible(offersAgain);
    m_notice->setVisible(!text.isEmpty());
}

void CompareWindow::setAdding(bool isAdding)
{
    m_isAdding = isAdding;
    updateButtons();
}

void CompareWindow::noteAdded(std::size_t count)
{
    m_markerModel->update();
    m_strips->updateMarkers();
    updateButtons();
    m_status->setText(count == 1 ? tr("1 marker added") : tr("%1 markers added").arg(counted(count)));
}

void CompareWindow::filtersChanged()
{
    ChangeTableModel::Kinds kinds;
    for (std::size_t i = 0; i < m_filters.size(); ++i)
        kinds.set(std::size_t(ChangeColors::kinds[i]), m_filters[i]->isChecked());
    m_changeModel->setKinds(kinds);
    m_strips->setKinds(kinds);
    updateCounts();
    updateButtons();
}

void CompareWindow::updateCounts()
{
    std::size_t changes = 0;
    for (std::size_t i = 0; i < m_filters.size(); ++i) {
        const EventChange::Kind kind = ChangeColors::kinds[i];
        const std::size_t count = m_changeModel->countOf(kind);
        changes += kind == EventChange::Kind::Unchanged ? 0 : count;
        m_filters[i]->setText(QStringLiteral("%1 (%2)").arg(ChangeColors::title(kind), counted(count)));
    }
    if (!m_comparison) {
        m_status->clear();
        m_markersText->setText(tr("Markers of the old cut"));
        return;
    }
    m_status->setText(changes == 0   ? tr("Nothing has changed.")
                      : changes == 1 ? tr("1 event has changed.")
                                     : tr("%1 events have changed.").arg(counted(changes)));
}

/// Enables what can be done now, and says why markers cannot be added.
void CompareWindow::updateButtons()
{
    const bool isIdle = !m_isComparing && !m_isAdding && !m_isOtherGone;
    for (QWidget *const widget :
         std::initializer_list<QWidget *>{m_oldSequences, m_newSequences, m_swap, m_again})
        widget->setEnabled(isIdle);
    m_export->setEnabled(m_comparison && !m_isComparing && !m_changeModel->shown().empty());
    const bool mayChoose = isIdle && !m_isStale && m_comparison && isOwnNew();
    if (m_markerModel->isEditable() != mayChoose)
        m_markerModel->setEditable(mayChoose); // comes back here
    m_tickAll->setEnabled(mayChoose && m_markerModel->count() > 0);
    m_tickNone->setEnabled(m_tickAll->isEnabled());
    const std::size_t wanted = m_markerModel->wantedCount();
    m_add->setEnabled(mayChoose && wanted > 0);
    if (!m_comparison)
        return;
    QString text = tr("Markers of the old cut: %1 carried, %2 nearest, %3 gone, %4 there; %5 ticked")
                       .arg(counted(m_markerModel->countOf(MarkerPlace::State::Carried)),
                            counted(m_markerModel->countOf(MarkerPlace::State::Nearest)),
                            counted(m_markerModel->countOf(MarkerPlace::State::Gone)),
                            counted(m_markerModel->thereCount()), counted(wanted));
    if (const std::size_t added = m_markerModel->addedCount(); added > 0)
        text += tr(", %1 added").arg(counted(added));
    if (m_markerModel->count() == 0)
        text = tr("The old cut has no markers.");
    else if (!isOwnNew())
        text =
            tr("Markers are added to the new cut, which is in “%1”. Swap the cuts if it is the old one, or "
               "open it and compare it with this project.")
                .arg(m_other.name);
    m_markersText->setText(text);
}

void CompareWindow::chooseRow()
{
    if (m_isShowingChosen)
        return;
    const QModelIndexList rows = m_changes->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    m_chosen = m_changeModel->changeAt(rows.first().row());
    m_strips->showChange(*m_chosen);
}

/// Selects the row of the chosen change, if it is on show.
void CompareWindow::showChosen()
{
    m_isShowingChosen = true;
    const int row = m_chosen ? m_changeModel->rowOf(*m_chosen) : -1;
    if (row >= 0) {
        m_changes->selectRow(row);
        m_changes->scrollTo(m_changeModel->index(row, 0));
    } else {
        m_changes->clearSelection();
    }
    m_isShowingChosen = false;
}

void CompareWindow::chooseMarker()
{
    const QModelIndexList rows = m_markers->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    const auto marker = std::size_t(rows.first().row());
    m_strips->showFrames(m_comparison->markers[marker].place.oldFrame, m_markerModel->newFrameOf(marker));
}

void CompareWindow::askForFile(ChangeListFormat format)
{
    const QString extension = extensionOf(format);
    const QString kind = format == ChangeListFormat::Csv    ? tr("CSV files")
                         : format == ChangeListFormat::Html ? tr("HTML pages")
                                                            : tr("Edit decision lists");
    const QString name = QFileInfo(isOwnNew() ? m_own.name : m_other.name).completeBaseName();
    FilePanel::runForSaving(
        {.window = this,
         .title = tr("Export Changes"),
         .folder = m_folder,
         .filter = QStringLiteral("%1 (*.%2 *.%3)").arg(kind, extension, extension.toUpper()),
         .extension = extension,
         .proposedName = QStringLiteral("%1 changes.%2").arg(name, extension),
         .acceptLabel = tr("Export")},
        [this, format](const QString &path) { exportTo(path, format); });
}

void CompareWindow::exportTo(const QString &path, ChangeListFormat format)
{
    if (!m_comparison)
        return;
    const auto write = [comparison = std::shared_ptr<const CutComparison>(m_comparison),
                        changes = m_changeModel->shown(), path, format] {
        return FileUtilities::writeAtomically(
            path, [&](QIODevice &device) { return writeChangeList(*comparison, changes, format, device); });
    };
    const auto done = [self = QPointer(this), path](const Result<void> &written) {
        if (!self)
            return;
        const QString name = QFileInfo(path).fileName();
        if (written) {
            self->m_status->setText(tr("Changes exported to “%1”").arg(name));
        } else {
            auto *const alert = new QMessageBox(self);
            alert->setAttribute(Qt::WA_DeleteOnClose);
            alert->addButton(QMessageBox::Ok);
            setUpAlert(*alert, tr("The changes could not be exported to “%1”.").arg(name),
                       shownMessage(written.message()));
            alert->open();
        }
        Q_EMIT self->exported(written.isOk());
    };
    BackgroundWork::run(write, std::make_shared<MainThreadGate>(), done);
}

void CompareWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_isComparing)
        Q_EMIT cancelWanted();
    else
        close();
}

} // namespace vantrell
