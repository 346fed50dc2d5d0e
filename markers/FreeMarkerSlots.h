#pragma once

#include "rows/RowRecord.h"

#include <cstdint>
#include <set>
#include <unordered_map>

namespace vantrell
{

/// Which of the numbers 1, 2, 3, … are taken, and the first that is not. Numbers may be taken several
/// times over. The cost of a change does not grow with the numbers.
class FreeNumbers
{
public:
    void take(std::int64_t number);
    void release(std::int64_t number);
    std::int64_t first();

private:
    std::unordered_map<std::int64_t, std::size_t> m_taken;
    std::int64_t m_looked = 0; ///< up to here every free number is in m_gaps
    std::set<std::int64_t> m_gaps;
};

/// The names and the in points that are free for a new marker, kept right while records come, change
/// and go. Main thread.
class FreeMarkerSlots
{
public:
    /// Starts over with these records.
    void reset(const RowList &records);
    void add(const RowRecord &record);
    /// After the record's name, in point or sequence index changed; one that was not added is ignored.
    void update(const RowRecord &record);
    void remove(const RowRecord &record);

    /// The smallest number from 1 on whose name "Marker 1", "Marker 2", … no record has.
    std::int64_t firstFreeNumber() { return m_numbers.first(); }
    /// The smallest of 0, 5, 10, … frames that is the in point of no record with sequence index 1.
    std::int64_t firstFreeInPoint() { return (m_inPoints.first() - 1) * inPointDistance; }

    static constexpr std::int64_t inPointDistance = 5; ///< frames

private:
    struct Slots {
        std::int64_t number = 0;  ///< of its name; 0 for another name
        std::int64_t inPoint = 0; ///< 1-based; 0 when it takes none
    };
    static Slots slotsOf(const RowRecord &record);

    FreeNumbers m_numbers;
    FreeNumbers m_inPoints;
    std::unordered_map<const RowRecord *, Slots> m_records;
};

} // namespace vantrell
