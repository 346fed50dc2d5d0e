#include "markers/MarkerOverview.h"

#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::size_t noMarker = OverviewColumn::none;

/// The higher is drawn over the lower.
int rankOf(const OverviewMarker &marker)
{
    if (marker.isSelected)
        return 2;
    return marker.isShown ? 1 : 0;
}

bool startsEarlier(const OverviewMarker &a, const OverviewMarker &b)
{
    return a.start < b.start;
}

std::int64_t placeOf(const OverviewMarker &marker, const OverviewView &view)
{
    return std::clamp<std::int64_t>(marker.start, 0, std::max<std::int64_t>(view.last, 0));
}

/// What begins in a column so far.
struct Beginning {
    int rank = -1;
    std::array<std::uint32_t, MarkerColors::count> counts = {};
    std::array<std::size_t, MarkerColors::count> markers = {}; ///< the first of each colour
};

std::vector<OverviewColumn> withHeads(const std::vector<OverviewMarker> &markers, const OverviewView &view)
{
    std::vector<Beginning> beginnings(std::size_t(view.width));
    for (std::size_t i = 0; i < markers.size(); ++i) {
        const double x = view.x(double(placeOf(markers[i], view)));
        if (x < 0 || x >= view.width)
            continue;
        Beginning &beginning = beginnings[std::size_t(x)];
        const int rank = rankOf(markers[i]);
        if (rank < beginning.rank)
            continue;
        if (rank > beginning.rank) {
            beginning = {};
            beginning.rank = rank;
        }
        if (beginning.counts[markers[i].color]++ == 0)
            beginning.markers[markers[i].color] = i;
    }
    std::vector<OverviewColumn> columns(beginnings.size());
    for (std::size_t i = 0; i < beginnings.size(); ++i) {
        const Beginning &beginning = beginnings[i];
        if (beginning.rank < 0)
            continue;
        const auto most = std::max_element(beginning.counts.begin(), beginning.counts.end());
        columns[i].count = std::accumulate(beginning.counts.begin(), beginning.counts.end(), 0U);
        columns[i].head = beginning.markers[std::size_t(most - beginning.counts.begin())];
    }
    return columns;
}

void addBars(const std::vector<OverviewMarker> &markers, const OverviewView &view,
             std::vector<OverviewColumn> &columns)
{
    // From a column towards the first one at or after it without a bar.
    std::vector<std::size_t> next(columns.size() + 1);
    std::iota(next.begin(), next.end(), std::size_t(0));
    const auto firstFree = [&next](std::size_t column) {
        while (next[column] != column)
            column = next[column] = next[next[column]];
        return column;
    };
    for (const int rank : {2, 1, 0}) {
        for (std::size_t i = markers.size(); i-- > 0;) {
            const OverviewMarker &marker = markers[i];
            if (marker.end <= marker.start || rankOf(marker) != rank)
                continue;
            const double from = std::max(view.x(double(placeOf(marker, view))), 0.0);
            const double to = std::min(view.x(double(std::min(marker.end, view.last))), double(view.width));
            if (from >= to)
                continue;
            const auto end = std::size_t(std::ceil(to));
            for (std::size_t column = firstFree(std::size_t(from)); column < end;
                 column = firstFree(column)) {
                columns[column].bar = i;
                next[column] = column + 1;
            }
        }
    }
}

} // namespace

std::vector<OverviewColumn> OverviewSequence::columns(const OverviewView &view) const
{
    if (view.width <= 0)
        return {};
    std::vector<OverviewColumn> columns = withHeads(markers, view);
    addBars(markers, view, columns);
    return columns;
}

std::vector<std::size_t> OverviewSequence::markersAt(const OverviewView &view, double x,
                                                     double tolerance) const
{
    std::vector<std::pair<double, std::size_t>> found;
    const auto distanceOf = [&](const OverviewMarker &marker) {
        return std::abs(view.x(double(placeOf(marker, view))) - x);
    };
    const double from = view.frameAt(x - tolerance);
    auto marker = markers.begin();
    if (from > 0)
        marker = std::partition_point(markers.begin(), markers.end(), [&](const OverviewMarker &one) {
            return double(placeOf(one, view)) < from;
        });
    for (; marker != markers.end() && view.x(double(placeOf(*marker, view))) <= x + tolerance; ++marker) {
        if (distanceOf(*marker) <= tolerance)
            found.emplace_back(distanceOf(*marker) + (marker->isShown ? 0 : 2 * tolerance + 1),
                               std::size_t(marker - markers.begin()));
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<std::size_t> indexes;
    indexes.reserve(found.size());
    for (const auto &one : found)
        indexes.push_back(one.second);
    if (!indexes.empty())
        return indexes;
    const double frame = view.frameAt(x);
    for (std::size_t i = markers.size(); i-- > 0;) {
        if (markers[i].end > markers[i].start && double(markers[i].start) <= frame &&
            frame < double(markers[i].end))
            indexes.push_back(i);
    }
    std::stable_partition(indexes.begin(), indexes.end(),
                          [this](std::size_t index) { return markers[index].isShown; });
    return indexes;
}

std::size_t OverviewSequence::after(std::int64_t frame) const
{
    const auto begin = std::partition_point(
        markers.begin(), markers.end(), [frame](const OverviewMarker &one) { return one.start <= frame; });
    const auto found = std::find_if(begin, markers.end(), [](const auto &one) { return one.isShown; });
    return found == markers.end() ? noMarker : std::size_t(found - markers.begin());
}

std::size_t OverviewSequence::before(std::int64_t frame) const
{
    auto one = std::partition_point(markers.begin(), markers.end(),
                                    [frame](const OverviewMarker &marker) { return marker.start < frame; });
    while (one != markers.begin()) {
        if ((--one)->isShown)
            return std::size_t(one - markers.begin());
    }
    return noMarker;
}

std::int64_t OverviewSequence::rangeEnd(std::int64_t duration) const
{
    std::int64_t end = std::max<std::int64_t>(duration, 0);
    for (const OverviewMarker &marker : markers) {
        const std::int64_t last = std::max(marker.end, marker.start + 1);
        if (last > end && (duration <= 0 || last <= 2 * duration))
            end = last;
    }
    return std::max<std::int64_t>(end, 1);
}

const OverviewSequence *MarkerOverview::find(XmlNode sequence) const
{
    const auto found = m_indexes.find(sequence);
    return found == m_indexes.end() ? nullptr : &m_sequences[found->second];
}

const OverviewSequence *MarkerOverview::largest() const
{
    const auto found =
        std::max_element(m_sequences.begin(), m_sequences.end(),
                         [](const auto &a, const auto &b) { return a.markers.size() < b.markers.size(); });
    return found == m_sequences.end() ? nullptr : &*found;
}

void MarkerOverview::select(const RowList &rows)
{
    std::unordered_set<const RowRecord *> selected;
    selected.reserve(rows.size());
    for (const RowRecordPtr &row : rows)
        selected.insert(row.get());
    for (OverviewSequence &sequence : m_sequences) {
        for (OverviewMarker &marker : sequence.markers)
            marker.isSelected = !selected.empty() && selected.contains(marker.record.get());
    }
}

bool ShownMarkers::work(const MarkerOverview &overview, const RowList &list, const RowList &visible,
                        std::size_t rows)
{
    const bool showsAll = visible.size() == list.size(); // the visible rows are some of the list
    if (!showsAll) {
        if (m_noted == 0)
            m_shown.reserve(qsizetype(visible.size()));
        for (; rows > 0 && m_noted < visible.size(); --rows)
            m_shown.insert(visible[m_noted++].get());
        if (m_noted < visible.size())
            return false;
    }
    for (; m_sequence < overview.sequences().size(); ++m_sequence, m_marker = 0) {
        const std::vector<OverviewMarker> &markers = overview.sequences()[m_sequence].markers;
        for (; m_marker < markers.size(); ++m_marker, --rows) {
            if (rows == 0)
                return false;
            m_areShown.push_back(showsAll || m_shown.contains(markers[m_marker].record.get()));
        }
    }
    return true;
}

void ShownMarkers::apply(MarkerOverview &overview) const
{
    std::size_t i = 0;
    for (OverviewSequence &sequence : overview.m_sequences) {
        for (OverviewMarker &marker : sequence.markers)
            marker.isShown = m_areShown[i++];
    }
}

bool MarkerOverviewBuilder::work(const RowList &list, std::size_t rows)
{
    for (; rows > 0 && m_added < list.size(); --rows)
        add(list[m_added++]);
    if (m_added < list.size())
        return false;
    sort();
    return true;
}

void MarkerOverviewBuilder::add(const RowRecordPtr &row)
{
    const XmlNode element = row->get(MarkerKey::sequence);
    if (!element)
        return;
    std::vector<OverviewSequence> &sequences = m_overview.m_sequences;
    if (m_last >= sequences.size() || !(sequences[m_last].element == element)) {
        const auto [known, isNew] = m_overview.m_indexes.try_emplace(element, sequences.size());
        m_last = known->second;
        if (isNew)
            sequences.push_back({element,
                                 {row->get(TimecodeKey::ntsc), row->get(TimecodeKey::dropFrame),
                                  row->get(TimecodeKey::timebase), row->get(TimecodeKey::startFrame)},
                                 row->get(MarkerKey::sequenceName),
                                 {}});
    }
    OverviewMarker marker;
    marker.start = intValue(row->get(MarkerKey::in));
    const QString out = row->get(MarkerKey::out);
    marker.end = std::max(out.isEmpty() ? marker.start : std::int64_t(integerValue(out)), marker.start);
    marker.record = row;
    const std::int64_t color = row->get(MarkerKey::color);
    marker.color = color > 0 && color < std::int64_t(MarkerColors::count) ? std::uint8_t(color) : 0;
    marker.isShown = true;
    sequences[m_last].markers.push_back(std::move(marker));
}

/// Most projects list their markers in the order of time already.
void MarkerOverviewBuilder::sort()
{
    for (OverviewSequence &sequence : m_overview.m_sequences) {
        std::vector<OverviewMarker> &markers = sequence.markers;
        if (!std::is_sorted(markers.begin(), markers.end(), startsEarlier))
            std::stable_sort(markers.begin(), markers.end(), startsEarlier);
    }
}

} // namespace vantrell
