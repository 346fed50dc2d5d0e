#include "markers/widgets/MarkerOverviewPanel.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "markers/MenuTitles.h"
#include "markers/widgets/MarkerStrip.h"
#include "markers/widgets/OverviewPopUp.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::size_t rowsAtOnce = 500;
constexpr int millisecondsAtOnce = 4;
constexpr int firstItem = 2; // of the sequences in the pop-up

} // namespace

bool MarkerOverviewPanel::isWanted(const UserDefaults &defaults)
{
    const QVariant wanted = defaults.value(shownDefault);
    return !wanted.isValid() || wanted.toBool();
}

MarkerOverviewPanel::MarkerOverviewPanel(TabPane &pane, MyDocument &document)
    : QWidget(&pane)
    , m_pane(pane)
    , m_document(document)
    , m_popUp(new OverviewPopUp(this))
    , m_range(new QLabel(this))
    , m_strip(new MarkerStrip(this))
    , m_timer(new QTimer(this))
{
    m_popUp->setAccessibleName(tr("Sequence of the overview"));
    m_range->setTextFormat(Qt::PlainText);
    m_range->setForegroundRole(QPalette::PlaceholderText);
    m_range->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    m_range->setFont(small);
    constexpr int titleCharacters = 24;
    const int range = QFontMetrics(small).horizontalAdvance(QStringLiteral("00:00:00:00 – 00:00:00:00")) + 8;
    const int width = std::max(range, fontMetrics().averageCharWidth() * titleCharacters);
    m_popUp->setFixedWidth(width);
    m_range->setFixedWidth(width);

    auto *const left = new QVBoxLayout;
    left->setSpacing(4);
    left->addWidget(m_popUp);
    left->addWidget(m_range);
    left->addStretch();
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(left);
    layout->addWidget(m_strip, 1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    m_timer->setSingleShot(true);
    m_timer->setInterval(0);
    connect(m_timer, &QTimer::timeout, this, &MarkerOverviewPanel::work);
    const TableModel *const model = &m_pane.model();
    connect(model, &QAbstractItemModel::modelReset, this, &MarkerOverviewPanel::rowsChanged);
    connect(model, &QAbstractItemModel::dataChanged, this, &MarkerOverviewPanel::recordsChanged);
    connect(model, &QAbstractItemModel::rowsInserted, this, &MarkerOverviewPanel::recordsChanged);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &MarkerOverviewPanel::recordsChanged);
    connect(&m_document, &MyDocument::historyChanged, this, &MarkerOverviewPanel::recordsChanged);
    connect(&m_document, &MyDocument::sequenceMenuChanged, this, &MarkerOverviewPanel::recordsChanged);
    connect(&m_pane, &TabPane::selectionChanged, this, &MarkerOverviewPanel::takeSelection);
    connect(m_strip, &MarkerStrip::markerChosen, this, &MarkerOverviewPanel::choose);
    connect(m_strip, &MarkerStrip::left, &m_pane.table(), qOverload<>(&QWidget::setFocus));
    connect(m_popUp, &QComboBox::activated, this, [this](int item) {
        m_chosen = item >= firstItem ? m_items[std::size_t(item - firstItem)].element : XmlNode();
        if (!m_chosen)
            takeSelection();
        showSequence();
    });
}

XmlNode MarkerOverviewPanel::sequence() const
{
    const bool isWanted = isVisibleTo(&m_pane);
    return isWanted && m_shown && m_shown.isAttached() ? m_shown : XmlNode();
}

void MarkerOverviewPanel::follow(XmlNode sequence)
{
    m_followed = sequence;
    if (!m_isOutdated && isVisible())
        showSequence();
}

void MarkerOverviewPanel::recordsChanged()
{
    m_revision.reset();
    rowsChanged();
}

/// The overview that shows stays until the new one is there.
void MarkerOverviewPanel::rowsChanged()
{
    m_isOutdated = true;
    m_builder.reset();
    m_shownMarkers.reset();
    if (isVisible() && m_pane.model().view().isVisible())
        m_timer->start();
}

void MarkerOverviewPanel::showEvent(QShowEvent *)
{
    if (m_isOutdated)
        rowsChanged();
    else
        takeSelection();
}

void MarkerOverviewPanel::work()
{
    const RowView &view = m_pane.model().view();
    if (!isVisible() || !view.isVisible())
        return;
    QElapsedTimer time;
    time.start();
    while (!workOn(rowsAtOnce)) {
        if (time.elapsed() >= millisecondsAtOnce) {
            m_timer->start();
            return;
        }
    }
    if (m_next) {
        m_strip->setSequence(nullptr, nullptr, true); // what it draws goes
        m_overview = std::move(*std::exchange(m_next, std::nullopt));
    }
    m_shownMarkers->apply(m_overview);
    m_shownMarkers.reset();
    m_isOutdated = false;
    markSelected();
    fillPopUp();
    showSequence();
    m_strip->updateSelection();
    revealSelected();
}

/// Goes on with about that many rows; true when all is there for the strip to show.
bool MarkerOverviewPanel::workOn(std::size_t rows)
{
    const RowView &view = m_pane.model().view();
    if (m_revision != view.revision()) {
        if (!m_builder)
            m_builder.emplace();
        if (!m_builder->work(view.list(), rows))
            return false;
        m_next = m_builder->take();
        m_builder.reset();
        m_shownMarkers.reset();
        m_revision = view.revision();
    }
    if (!m_shownMarkers)
        m_shownMarkers.emplace();
    return m_shownMarkers->work(m_next ? *m_next : m_overview, view.list(), view.visibleRows(), rows);
}

void MarkerOverviewPanel::markSelected()
{
    RowList selected;
    const std::vector<std::size_t> rows = m_pane.selectedRows();
    bool isFollowed = false;
    for (const std::size_t row : rows) {
        selected.push_back(m_pane.model().recordAt(int(row)));
        isFollowed = isFollowed || selected.back()->get(MarkerKey::sequence) == m_shown;
    }
    m_overview.select(selected);
    const XmlNode sequence = selected.empty() ? XmlNode() : selected.front()->get(MarkerKey::sequence);
    if (isFollowed && m_shown)
        m_followed = m_shown;
    else if (sequence)
        m_followed = sequence;
}

void MarkerOverviewPanel::takeSelection()
{
    if (m_isOutdated || !isVisible())
        return;
    markSelected();
    showSequence();
    m_strip->updateSelection();
    revealSelected();
}

void MarkerOverviewPanel::revealSelected()
{
    const OverviewSequence *const sequence = m_strip->sequence();
    if (!sequence)
        return;
    const auto selected = std::find_if(sequence->markers.begin(), sequence->markers.end(),
                                       [](const OverviewMarker &marker) { return marker.isSelected; });
    if (selected != sequence->markers.end())
        m_strip->reveal(std::size_t(selected - sequence->markers.begin()));
}

/// Shows the sequence that the user has chosen or that is followed.
void MarkerOverviewPanel::showSequence()
{
    const auto isThere = [this](XmlNode sequence) {
        return sequence && std::any_of(m_items.begin(), m_items.end(),
                                       [sequence](const MenuItem &item) { return item.element == sequence; });
    };
    if (!isThere(m_chosen))
        m_chosen = XmlNode();
    XmlNode wanted = m_chosen ? m_chosen : isThere(m_followed) ? m_followed : XmlNode();
    if (!wanted && m_overview.largest())
        wanted = m_overview.largest()->element;
    if (!wanted && !m_items.empty())
        wanted = m_items.front().element;
    const OverviewSequence *sequence = wanted ? m_overview.find(wanted) : nullptr;
    if (!sequence && wanted) {
        if (!(m_empty.element == wanted))
            m_empty = {wanted, SequenceTiming::ofFirstTexts(wanted), QString(), {}};
        sequence = &m_empty;
    }
    if (sequence != m_strip->sequence() || !(wanted == m_shown))
        m_strip->setSequence(sequence, wanted ? clipsOf(wanted) : nullptr, wanted == m_shown);
    m_shown = wanted;
    if (!m_chosen)
        m_followed = wanted;

    const auto item = std::find_if(m_items.begin(), m_items.end(),
                                   [wanted](const MenuItem &one) { return one.element == wanted; });
    const bool isFound = item != m_items.end();
    const QString title = isFound ? m_titles[item - m_items.begin()] : QString();
    m_popUp->setCurrentIndex(m_chosen ? int(item - m_items.begin()) + firstItem : 0);
    m_popUp->setShownTitle(isFound ? item->title : tr("No sequence")); // the range stands below it
    m_popUp->setAccessibleDescription(title);
    m_popUp->setToolTip(Qt::convertFromPlainText(
        tr("%1\nChoose the sequence of the overview, or let it follow the selected row").arg(title).trimmed(),
        Qt::WhiteSpaceNormal));
    const auto duration = sequence ? clipsOf(wanted)->duration : 0;
    m_range->setText(duration > 0 ? tr("%1 – %2").arg(m_strip->timecode(0), m_strip->timecode(duration))
                                  : QString());
}

/// The sequences of the document's menu, and others that own markers; those of one name with their timecodes.
void MarkerOverviewPanel::fillPopUp()
{
    Menu listed;
    const MenuPtr menu = m_document.sequenceMenu();
    std::unordered_map<XmlNode, bool> known;
    if (menu) {
        for (const MenuItem &item : *menu) {
            if (item.element && item.element.isAttached() && known.emplace(item.element, true).second)
                listed.push_back(item);
        }
    }
    for (const OverviewSequence &sequence : m_overview.sequences()) {
        if (known.emplace(sequence.element, true).second)
            listed.push_back({sequence.name, {}, sequence.element});
    }
    const QStringList titles = MenuTitles::ofSequences(listed);
    const bool isEqual =
        titles == m_titles && m_popUp->count() > 0 &&
        std::equal(listed.begin(), listed.end(), m_items.begin(),
                   [](const MenuItem &a, const MenuItem &b) { return a.element == b.element; });
    if (isEqual)
        return;
    m_items = std::move(listed);
    m_titles = titles;
    m_popUp->clear();
    m_popUp->addItem(tr("Sequence of the Selected Row"));
    m_popUp->addItems(m_titles);
    m_popUp->insertSeparator(1);
}

void MarkerOverviewPanel::choose(std::size_t marker, bool toggles)
{
    const RowRecordPtr record = m_strip->sequence()->markers[marker].record;
    m_pane.table().commitEditing();
    const RowList &rows = m_pane.model().view().visibleRows();
    const auto found = std::find(rows.begin(), rows.end(), record);
    if (found == rows.end()) {
        m_pane.showMessage(tr("“%1” is hidden by the filter").arg(record->get(MarkerKey::name)));
        return;
    }
    const auto row = std::size_t(found - rows.begin());
    std::vector<std::size_t> selected = {row};
    if (toggles) {
        selected = m_pane.selectedRows();
        const auto place = std::lower_bound(selected.begin(), selected.end(), row);
        if (place != selected.end() && *place == row)
            selected.erase(place);
        else
            selected.insert(place, row);
    }
    m_pane.selectRows(selected);
    m_pane.scrollToRow(row);
    if (!m_strip->hasFocus())
        m_pane.table().setFocus(); // for the keys that follow a click
}

std::shared_ptr<const SequenceClips> MarkerOverviewPanel::clipsOf(XmlNode sequence)
{
    std::shared_ptr<const SequenceClips> &clips = m_clips[sequence];
    if (!clips)
        clips = std::make_shared<SequenceClips>(SequenceClips::read(sequence));
    return clips;
}

} // namespace vantrell
