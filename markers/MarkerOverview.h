#pragma once

#include "markers/SequenceTiming.h"
#include "rows/RowRecord.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vantrell
{

/// A marker as the overview draws it.
struct OverviewMarker {
    std::int64_t start = 0; ///< frames from the start of its sequence: where the table shows its in point
    std::int64_t end = 0;   ///< the same for its out point; `start` without a duration
    RowRecordPtr record;
    std::uint8_t color = 0;  ///< index of the colour
    bool isShown = false;    ///< a row of the table; otherwise the filters leave it out
    bool isSelected = false; ///< a selected row
};

/// The part of a sequence that is drawn, and how: `width` pixels beginning at `x` 0.
struct OverviewView {
    double first = 0;          ///< frame at the left edge
    double pixelsPerFrame = 1; ///< above 0
    int width = 0;             ///< pixels
    std::int64_t last = 0;     ///< frame at which markers beyond the range stand; those before it stand at 0

    double x(double frame) const { return (frame - first) * pixelsPerFrame; }
    double frameAt(double x) const { return first + x / pixelsPerFrame; }
};

/// What of the markers falls on one column of pixels.
struct OverviewColumn {
    static constexpr std::size_t none = std::size_t(-1);

    /// One that begins here, to be drawn for all that do: selected ones come before others, those that the
    /// table shows before faint ones, and then the most frequent colour decides.
    std::size_t head = none;
    std::uint32_t count = 0; ///< how many of its place in that order begin here, of whatever colour
    /// One whose duration covers the column, in the same order, then the one that begins last.
    std::size_t bar = none;
};

/// The markers of one sequence.
struct OverviewSequence {
    XmlNode element;
    SequenceTiming timing;
    QString name;
    std::vector<OverviewMarker> markers; ///< by start

    /// One entry for each pixel of the view. The time it takes grows with the width, and with the number of
    /// markers by some nanoseconds each.
    std::vector<OverviewColumn> columns(const OverviewView &view) const;
    /// The markers that begin within that many pixels of x, the nearest first, faint ones last; where there
    /// is none, those whose duration covers it, the one that begins last first.
    std::vector<std::size_t> markersAt(const OverviewView &view, double x, double tolerance) const;
    /// The first marker in the table that begins after the frame, or the last one before it; none if there is
    /// no such marker.
    std::size_t after(std::int64_t frame) const;
    std::size_t before(std::int64_t frame) const;
    /// Frame that follows the last one that is drawn for a sequence of that duration: markers beyond its end
    /// extend the range, but not to more than twice the duration.
    std::int64_t rangeEnd(std::int64_t duration) const;
};

/// All markers that have a sequence, by sequence. Main thread.
class MarkerOverview
{
public:
    /// In the order of their first markers.
    const std::vector<OverviewSequence> &sequences() const { return m_sequences; }
    /// Null when it has no markers.
    const OverviewSequence *find(XmlNode sequence) const;
    /// The first of those with most markers; null when there are no markers.
    const OverviewSequence *largest() const;
    /// Makes the markers of these rows the selected ones.
    void select(const RowList &rows);

private:
    friend class MarkerOverviewBuilder;
    friend class ShownMarkers;

    std::vector<OverviewSequence> m_sequences;
    std::unordered_map<XmlNode, std::size_t> m_indexes;
};

/// Finds out in steps which markers of an overview the table shows. Main thread.
class ShownMarkers
{
public:
    /// Goes on with about that many rows; true when all are found. Of the overview, the list that it was made
    /// of and the rows that the table shows, which are the same in each call.
    bool work(const MarkerOverview &overview, const RowList &list, const RowList &visible, std::size_t rows);
    /// Notes them in the overview, when all are found.
    void apply(MarkerOverview &overview) const;

private:
    std::size_t m_noted = 0;         // of the visible rows
    QSet<const RowRecord *> m_shown; // empty if that is the whole list
    std::size_t m_sequence = 0;      // the next one
    std::size_t m_marker = 0;        // of it
    std::vector<bool> m_areShown;    // in the order of the overview
};

/// Makes an overview in steps, from rows that do not change meanwhile. Main thread.
class MarkerOverviewBuilder
{
public:
    /// Goes on with about that many rows of the list, the same in each call; true when the overview is there,
    /// with all markers as shown ones.
    bool work(const RowList &list, std::size_t rows);
    MarkerOverview take() { return std::move(m_overview); }

private:
    void add(const RowRecordPtr &row);
    void sort();

    std::size_t m_added = 0;
    std::size_t m_last = 0; // index of the sequence of the last row
    MarkerOverview m_overview;
};

} // namespace vantrell
