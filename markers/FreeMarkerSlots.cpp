#include "markers/FreeMarkerSlots.h"

#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"

namespace vantrell
{

void FreeNumbers::take(std::int64_t number)
{
    if (number >= 1 && ++m_taken[number] == 1)
        m_gaps.erase(number);
}

void FreeNumbers::release(std::int64_t number)
{
    const auto taken = m_taken.find(number);
    if (taken == m_taken.end() || --taken->second > 0)
        return;
    m_taken.erase(taken);
    if (number <= m_looked)
        m_gaps.insert(number);
}

std::int64_t FreeNumbers::first()
{
    if (!m_gaps.empty())
        return *m_gaps.begin();
    while (m_taken.contains(m_looked + 1))
        ++m_looked;
    return m_looked + 1;
}

void FreeMarkerSlots::reset(const RowList &records)
{
    *this = FreeMarkerSlots();
    m_records.reserve(records.size());
    for (const RowRecordPtr &record : records)
        add(*record);
}

void FreeMarkerSlots::add(const RowRecord &record)
{
    m_records.emplace(&record, Slots());
    update(record);
}

void FreeMarkerSlots::update(const RowRecord &record)
{
    const auto known = m_records.find(&record);
    if (known == m_records.end())
        return;
    const Slots now = slotsOf(record);
    m_numbers.take(now.number);
    m_inPoints.take(now.inPoint);
    m_numbers.release(known->second.number);
    m_inPoints.release(known->second.inPoint);
    known->second = now;
}

void FreeMarkerSlots::remove(const RowRecord &record)
{
    const auto known = m_records.find(&record);
    if (known == m_records.end())
        return;
    m_numbers.release(known->second.number);
    m_inPoints.release(known->second.inPoint);
    m_records.erase(known);
}

FreeMarkerSlots::Slots FreeMarkerSlots::slotsOf(const RowRecord &record)
{
    static const QString prefix = QStringLiteral("Marker ");
    Slots taken;
    const QString name = record.get(MarkerKey::name);
    if (name.startsWith(prefix)) {
        const QStringView digits = QStringView(name).sliced(prefix.size());
        const std::int64_t number = integerValue(digits);
        if (number >= 1 && digits == QString::number(number))
            taken.number = number;
    }
    if (record.get(MarkerKey::sequenceIndex) == 1 && record.contains(MarkerKey::in)) {
        const std::int64_t in = integerValue(record.get(MarkerKey::in));
        if (in >= 0 && in % inPointDistance == 0)
            taken.inPoint = in / inPointDistance + 1;
    }
    return taken;
}

} // namespace vantrell
