#include "compare/widgets/ChangeTableModel.h"

#include "compare/ChangeDifference.h"
#include "compare/widgets/ChangeColors.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "support/widgets/ShownText.h"

#include <QGuiApplication>
#include <QPointer>

#include <algorithm>
#include <limits>

namespace vantrell
{

namespace
{

constexpr std::int64_t nowhere = std::numeric_limits<std::int64_t>::max();
constexpr std::size_t mostRankedAtOnce = 2000; // changes whose texts are ranked in some milliseconds

/// What changes are sorted by where that is a number.
std::int64_t sortNumber(const CutComparison &comparison, const EventChange &change, int column)
{
    const TrackEvent *const before = comparison.oldEvent(change);
    const TrackEvent *const after = comparison.newEvent(change);
    switch (column) {
    case ChangeTableModel::Kind:
        return std::int64_t(change.kind);
    case ChangeTableModel::Track: {
        const TrackEvent &event = comparison.event(change);
        return (event.isAudio ? std::int64_t(1) << 32 : 0) + event.track;
    }
    case ChangeTableModel::Old:
        return before ? before->start : nowhere;
    case ChangeTableModel::New:
        return after ? after->start : nowhere;
    case ChangeTableModel::Difference:
        return before && after ? (change.by != 0 ? change.by : after->length() - before->length())
               : after         ? after->length()
                               : -before->length();
    default:
        return 0;
    }
}

} // namespace

void ChangeTableModel::setComparison(std::shared_ptr<const CutComparison> comparison)
{
    beginResetModel();
    m_comparison = std::move(comparison);
    m_ranks.reset();
    m_nextRanks.reset();
    m_counts = {};
    if (m_comparison) {
        for (const EventChange &change : m_comparison->changes)
            ++m_counts[std::size_t(change.kind)];
    }
    rankTexts();
    fill();
    endResetModel();
}

void ChangeTableModel::rankTexts()
{
    if (!m_comparison)
        return;
    const auto ranks = std::make_shared<ChangeRanks>();
    if (m_comparison->changes.size() <= mostRankedAtOnce) {
        *ranks = ChangeRanks::of(*m_comparison);
        m_ranks = ranks;
        return;
    }
    m_nextRanks = ranks;
    BackgroundWork::run([ranks, comparison = m_comparison, model = QPointer(this)]() mutable {
        *ranks = ChangeRanks::of(*comparison);
        comparison.reset(); // here, when nobody else holds it
        MainThread::post([ranks, model] {
            if (!model || model->m_nextRanks != ranks)
                return; // there is another comparison
            model->m_ranks = ranks;
            if (model->sortsByText())
                model->sort(model->m_sortColumn, model->m_sortOrder);
        });
    });
}

void ChangeTableModel::setKinds(Kinds kinds)
{
    beginResetModel();
    m_kinds = kinds;
    fill();
    endResetModel();
}

void ChangeTableModel::fill()
{
    m_shown.clear();
    if (m_comparison) {
        for (std::size_t i = 0; i < m_comparison->changes.size(); ++i) {
            if (m_kinds.test(std::size_t(m_comparison->changes[i].kind)))
                m_shown.push_back(i);
        }
    }
    applySort();
}

void ChangeTableModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    fill();
    endResetModel();
}

void ChangeTableModel::applySort()
{
    const auto sortBy = [this](const auto &keyOf) {
        using Key = decltype(keyOf(std::size_t()));
        std::vector<std::pair<Key, std::size_t>> keyed;
        keyed.reserve(m_shown.size());
        for (const std::size_t i : m_shown)
            keyed.emplace_back(keyOf(i), i);
        const bool isAscending = m_sortOrder == Qt::AscendingOrder;
        std::stable_sort(keyed.begin(), keyed.end(), [isAscending](const auto &a, const auto &b) {
            return isAscending ? a.first < b.first : b.first < a.first;
        });
        for (std::size_t i = 0; i < keyed.size(); ++i)
            m_shown[i] = keyed[i].second;
    };
    if (m_comparison && sortsByText() && m_ranks)
        sortBy([&ranks = m_sortColumn == Event ? m_ranks->names : m_ranks->files](std::size_t change) {
            return ranks[change];
        });
    else if (m_comparison && m_sortColumn >= 0 && !sortsByText())
        sortBy([this](std::size_t change) {
            return sortNumber(*m_comparison, m_comparison->changes[change], m_sortColumn);
        });
    m_rows.assign(m_comparison ? m_comparison->changes.size() : 0, -1);
    for (std::size_t row = 0; row < m_shown.size(); ++row)
        m_rows[m_shown[row]] = int(row);
}

int ChangeTableModel::rowOf(std::size_t change) const
{
    return change < m_rows.size() ? m_rows[change] : -1;
}

int ChangeTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int ChangeTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant ChangeTableModel::data(const QModelIndex &index, int role) const
{
    const EventChange &change = m_comparison->changes[changeAt(index.row())];
    if (role == Qt::DisplayRole)
        return text(change, index.column());
    if (role == Qt::ToolTipRole)
        return toolTip(*m_comparison, changeAt(index.row()));
    if (role == Qt::DecorationRole && index.column() == Kind) {
        QIcon &swatch = m_swatches[std::size_t(change.kind)];
        if (swatch.isNull())
            swatch = ChangeColors::swatch(change.kind, QGuiApplication::palette());
        return swatch;
    }
    return {};
}

QString ChangeTableModel::text(const EventChange &change, int column) const
{
    const TrackEvent &event = m_comparison->event(change);
    switch (column) {
    case Kind:
        return ChangeColors::title(change.kind);
    case Event:
        return event.name;
    case Track:
        return event.trackName();
    case Old:
        return change.before ? m_comparison->oldTimecode(m_comparison->oldEvent(change)->start) : QString();
    case New:
        return change.after ? m_comparison->newTimecode(m_comparison->newEvent(change)->start) : QString();
    case Difference:
        return shownDifference(differenceOf(*m_comparison, change));
    case File:
        return m_comparison->file(change).section(QLatin1Char('/'), -1);
    default:
        return QString();
    }
}

QString ChangeTableModel::toolTip(const CutComparison &comparison, std::size_t index)
{
    const EventChange &change = comparison.changes[index];
    QStringList lines{ChangeColors::title(change.kind) + QStringLiteral(": ") +
                      comparison.event(change).name};
    if (const TrackEvent *const before = comparison.oldEvent(change))
        lines << tr("Old: %1, %2 to %3")
                     .arg(before->trackName(), comparison.oldTimecode(before->start),
                          comparison.oldTimecode(before->end));
    if (const TrackEvent *const after = comparison.newEvent(change))
        lines << tr("New: %1, %2 to %3")
                     .arg(after->trackName(), comparison.newTimecode(after->start),
                          comparison.newTimecode(after->end));
    const QString difference = shownDifference(differenceOf(comparison, change));
    if (!difference.isEmpty())
        lines << difference;
    if (const QString file = comparison.file(change); !file.isEmpty())
        lines << file;
    for (QString &line : lines)
        line = line.toHtmlEscaped();
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(lines.join(QStringLiteral("<br>")));
}

QVariant ChangeTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QStringList titles{tr("Change"), tr("Event"),      tr("Track"), tr("Old"),
                             tr("New"),    tr("Difference"), tr("File")};
    return titles.value(section);
}

} // namespace vantrell
