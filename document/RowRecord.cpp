#include "document/RowRecord.h"

#include <atomic>
#include <map>
#include <mutex>
#include <utility>

namespace vantrell
{

/// Keys in their order. Each layout knows those that have one key more; a layout is made once and lives
/// as long as the process, so that records only point at it.
class RowRecord::Layout
{
public:
    static const Layout *empty()
    {
        static const Layout &layout = *new Layout;
        return &layout;
    }

    const std::vector<RecordKey> &keys() const { return m_keys; }

    /// The place of the key, or the number of keys when it is absent.
    std::size_t slotOf(RecordKey key) const
    {
        std::size_t slot = 0;
        while (slot < m_keys.size() && !(m_keys[slot] == key))
            ++slot;
        return slot;
    }

    /// The layout with one key more at its end.
    const Layout *with(RecordKey key) const;

private:
    struct Larger;

    Layout() = default;
    Layout(const std::vector<RecordKey> &keys, RecordKey added)
        : m_keys(keys)
    {
        m_keys.push_back(added);
    }

    static const Layout *findLarger(const Larger *from, const Larger *until, RecordKey key);
    const Layout *withFromTable(RecordKey key) const;

    /// So many larger layouts are looked through one by one; the rest is in a table. Only keys that files
    /// make up come in such numbers.
    static constexpr int maximumListed = 64;

    std::vector<RecordKey> m_keys;
    mutable std::atomic<Larger *> m_larger = nullptr; // grows at its head, is never shortened
    mutable std::atomic<int> m_listed = 0;            // the length of that, or a little less
};

struct RowRecord::Layout::Larger {
    RecordKey key;
    Layout layout;
    Larger *next;
};

const RowRecord::Layout *RowRecord::Layout::findLarger(const Larger *from, const Larger *until, RecordKey key)
{
    for (const Larger *larger = from; larger != until; larger = larger->next) {
        if (larger->key == key)
            return &larger->layout;
    }
    return nullptr;
}

const RowRecord::Layout *RowRecord::Layout::with(RecordKey key) const
{
    Larger *first = m_larger.load(std::memory_order_acquire);
    if (const Layout *known = findLarger(first, nullptr, key))
        return known;
    if (m_listed.load(std::memory_order_relaxed) >= maximumListed)
        return withFromTable(key);
    auto *larger = new Larger{key, Layout(m_keys, key), first};
    while (!m_larger.compare_exchange_weak(larger->next, larger, std::memory_order_acq_rel)) {
        if (const Layout *known = findLarger(larger->next, first, key)) {
            delete larger;
            return known;
        }
        first = larger->next;
    }
    m_listed.fetch_add(1, std::memory_order_relaxed);
    return &larger->layout;
}

const RowRecord::Layout *RowRecord::Layout::withFromTable(RecordKey key) const
{
    using Table = std::map<std::pair<const Layout *, std::uint32_t>, const Layout *>;
    static std::mutex mutex; // guards the table
    static Table &table = *new Table;
    const std::lock_guard lock(mutex);
    const Layout *&layout = table[{this, key.number()}];
    if (!layout)
        layout = new Layout(m_keys, key);
    return layout;
}

RowRecord::RowRecord()
    : m_layout(Layout::empty())
{
}

const RecordValue *RowRecord::find(RecordKey key) const
{
    const std::size_t slot = m_layout->slotOf(key);
    return slot < m_values.size() ? &m_values[slot] : nullptr;
}

void RowRecord::set(RecordKey key, RecordValue value)
{
    const std::size_t slot = m_layout->slotOf(key);
    if (slot < m_values.size()) {
        m_values[slot] = std::move(value);
        return;
    }
    m_layout = m_layout->with(key);
    m_values.push_back(std::move(value));
}

void RowRecord::remove(RecordKey key)
{
    const std::size_t removed = m_layout->slotOf(key);
    if (removed == m_values.size())
        return;
    const Layout *layout = Layout::empty();
    for (const RecordKey kept : m_layout->keys()) {
        if (!(kept == key))
            layout = layout->with(kept);
    }
    m_layout = layout;
    m_values.erase(m_values.begin() + std::ptrdiff_t(removed));
}

void RowRecord::merge(const RowRecord &other)
{
    for (std::size_t i = 0; i < other.size(); ++i)
        set(other.keyAt(i), other.valueAt(i));
}

QString RowRecord::text(RecordKey key) const
{
    const RecordValue *value = find(key);
    const QString *text = value ? std::get_if<QString>(value) : nullptr;
    return text ? *text : QString();
}

RecordKey RowRecord::keyAt(std::size_t index) const
{
    return m_layout->keys()[index];
}

} // namespace vantrell
