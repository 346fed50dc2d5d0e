#include "rows/RowRecord.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

namespace vantrell
{

/// The numbers of keys in their order. A layout is made once and lives as long as the process, so that
/// records only point at it. Names that files make up are not part of it, so there are few.
class RowRecord::Layout
{
public:
    static const Layout *empty()
    {
        static const Layout &layout = *new Layout({});
        return &layout;
    }

    explicit Layout(std::vector<std::uint32_t> numbers)
        : m_numbers(std::move(numbers))
    {
    }

    const std::vector<std::uint32_t> &numbers() const { return m_numbers; }

    /// The slot of the constant, or the number of keys when it is absent.
    std::size_t slotOf(std::uint32_t number) const
    {
        std::size_t slot = 0;
        while (slot < m_numbers.size() && m_numbers[slot] != number)
            ++slot;
        return slot;
    }

    /// The layout with one more key at its end.
    const Layout *with(std::uint32_t number) const
    {
        const std::lock_guard lock(m_mutex);
        const auto known = m_larger.find(number);
        if (known != m_larger.end())
            return &known->second;
        std::vector<std::uint32_t> numbers = m_numbers;
        numbers.push_back(number);
        return &m_larger.try_emplace(number, std::move(numbers)).first->second;
    }

private:
    const std::vector<std::uint32_t> m_numbers;
    mutable std::mutex m_mutex;                       // guards m_larger
    mutable std::map<std::uint32_t, Layout> m_larger; ///< by the number of the key that comes last
};

RowRecord::RowRecord()
    : m_layout(Layout::empty())
{
}

/// The slot of the key, or size() when it is absent.
std::size_t RowRecord::slotOf(const RecordKey &key) const
{
    if (key.isConstant())
        return m_layout->slotOf(key.number());
    const std::vector<std::uint32_t> &numbers = m_layout->numbers();
    qsizetype name = 0;
    for (std::size_t slot = 0; slot < numbers.size() && name < m_names.size(); ++slot) {
        if (numbers[slot] == RecordKey::noNumber && m_names[name++] == key.text())
            return slot;
    }
    return numbers.size();
}

const RecordValue *RowRecord::find(const RecordKey &key) const
{
    const std::size_t slot = slotOf(key);
    return slot < m_values.size() ? &m_values[slot] : nullptr;
}

void RowRecord::set(const RecordKey &key, RecordValue value)
{
    const std::size_t slot = slotOf(key);
    if (slot < m_values.size()) {
        m_values[slot] = std::move(value);
        return;
    }
    m_layout = m_layout->with(key.number());
    m_values.push_back(std::move(value));
    if (!key.isConstant())
        m_names.append(key.text());
}

void RowRecord::remove(const RecordKey &key)
{
    const std::size_t removed = slotOf(key);
    if (removed == m_values.size())
        return;
    const std::vector<std::uint32_t> &numbers = m_layout->numbers();
    const Layout *layout = Layout::empty();
    for (std::size_t slot = 0; slot < numbers.size(); ++slot) {
        if (slot != removed)
            layout = layout->with(numbers[slot]);
    }
    if (!key.isConstant())
        m_names.removeOne(key.text());
    m_layout = layout;
    m_values.erase(m_values.begin() + std::ptrdiff_t(removed));
}

void RowRecord::merge(const RowRecord &other)
{
    for (std::size_t i = 0; i < other.size(); ++i)
        set(other.keyAt(i), other.valueAt(i));
}

QString RowRecord::text(const RecordKey &key) const
{
    const RecordValue *value = find(key);
    const QString *text = value ? std::get_if<QString>(value) : nullptr;
    return text ? *text : QString();
}

RecordKey RowRecord::keyAt(std::size_t index) const
{
    const std::vector<std::uint32_t> &numbers = m_layout->numbers();
    if (numbers[index] != RecordKey::noNumber)
        return RecordKey(numbers[index]);
    const auto before =
        std::count(numbers.begin(), numbers.begin() + std::ptrdiff_t(index), RecordKey::noNumber);
    return RecordKey(m_names[before]);
}

} // namespace vantrell
