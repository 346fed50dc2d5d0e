#include "rows/RecordKey.h"

#include <QHash>

#include <deque>
#include <mutex>

namespace vantrell
{

namespace
{

struct KeyTable {
    std::mutex mutex; // guards the two below
    QHash<QString, std::uint32_t> numbers;
    std::deque<QString> texts;

    static KeyTable &instance()
    {
        static KeyTable &table = *new KeyTable; // constants in other files use it before and after main
        return table;
    }
};

} // namespace

RecordKey::RecordKey(const QString &text)
{
    KeyTable &table = KeyTable::instance();
    const std::lock_guard lock(table.mutex);
    m_number = table.numbers.value(text, noNumber);
    if (!isConstant())
        m_text = text;
}

RecordKey::RecordKey(const char16_t *constant)
{
    const QString text = QString::fromUtf16(constant);
    KeyTable &table = KeyTable::instance();
    const std::lock_guard lock(table.mutex);
    const auto known = table.numbers.constFind(text);
    if (known != table.numbers.constEnd()) {
        m_number = *known;
        return;
    }
    m_number = std::uint32_t(table.texts.size());
    table.texts.push_back(text);
    table.numbers.insert(text, m_number);
}

QString RecordKey::text() const
{
    if (!isConstant())
        return m_text;
    KeyTable &table = KeyTable::instance();
    const std::lock_guard lock(table.mutex);
    return table.texts[m_number];
}

} // namespace vantrell
