#include "support/files/PropertyListValue.h"

#include "support/text/TextNumbers.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrell
{

namespace
{

bool startsWithTruth(const QString &text)
{
    qsizetype position = 0;
    while (position < text.size() && text[position].isSpace())
        ++position;
    if (position < text.size() && (text[position] == u'-' || text[position] == u'+'))
        ++position;
    while (position < text.size() && text[position] == u'0')
        ++position;
    return position < text.size() && QStringView(u"123456789YyTt").contains(text[position]);
}

qint64 truncated(double number)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (std::isnan(number))
        return 0;
    if (number >= limit)
        return std::numeric_limits<qint64>::max();
    if (number < -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

} // namespace

PropertyListDictionary::PropertyListDictionary() = default;
PropertyListDictionary::PropertyListDictionary(const PropertyListDictionary &) = default;
PropertyListDictionary::PropertyListDictionary(PropertyListDictionary &&) noexcept = default;
PropertyListDictionary &PropertyListDictionary::operator=(const PropertyListDictionary &) = default;
PropertyListDictionary &PropertyListDictionary::operator=(PropertyListDictionary &&) noexcept = default;
PropertyListDictionary::~PropertyListDictionary() = default;

PropertyListDictionary::PropertyListDictionary(std::initializer_list<Entry> entries)
{
    for (const Entry &entry : entries)
        insert(entry.key, entry.value);
}

bool PropertyListDictionary::isEmpty() const
{
    return m_entries.empty();
}

qsizetype PropertyListDictionary::size() const
{
    return static_cast<qsizetype>(m_entries.size());
}

bool PropertyListDictionary::contains(const QString &key) const
{
    return m_indexes.contains(key);
}

QStringList PropertyListDictionary::keys() const
{
    QStringList list;
    list.reserve(size());
    for (const Entry &entry : m_entries)
        list.append(entry.key);
    return list;
}

const PropertyListValue &PropertyListDictionary::value(const QString &key) const
{
    static const PropertyListValue null;
    const auto found = m_indexes.constFind(key);
    return found == m_indexes.cend() ? null : m_entries[static_cast<std::size_t>(*found)].value;
}

void PropertyListDictionary::insert(const QString &key, PropertyListValue value)
{
    if (value.isNull()) {
        remove(key);
        return;
    }
    const auto found = m_indexes.constFind(key);
    if (found != m_indexes.cend()) {
        m_entries[static_cast<std::size_t>(*found)].value = std::move(value);
        return;
    }
    m_indexes.insert(key, size());
    m_entries.push_back(Entry{key, std::move(value)});
}

void PropertyListDictionary::remove(const QString &key)
{
    const auto found = m_indexes.constFind(key);
    if (found == m_indexes.cend())
        return;
    const qsizetype index = *found;
    m_indexes.erase(found);
    m_entries.erase(m_entries.begin() + index);
    for (qsizetype &later : m_indexes) {
        if (later > index)
            --later;
    }
}

PropertyListDictionary::Entries::const_iterator PropertyListDictionary::begin() const
{
    return m_entries.begin();
}

PropertyListDictionary::Entries::const_iterator PropertyListDictionary::end() const
{
    return m_entries.end();
}

bool PropertyListDictionary::operator==(const PropertyListDictionary &other) const
{
    return size() == other.size() && std::all_of(begin(), end(), [&other](const Entry &entry) {
               return other.value(entry.key) == entry.value;
           });
}

PropertyListValue::PropertyListValue(const QStringList &texts)
    : m_value(Array(texts.cbegin(), texts.cend()))
{
}

bool PropertyListValue::toBoolean() const
{
    if (const bool *boolean = std::get_if<bool>(&m_value))
        return *boolean;
    if (const qint64 *number = std::get_if<qint64>(&m_value))
        return *number != 0;
    if (const double *number = std::get_if<double>(&m_value))
        return *number != 0;
    return isString() && startsWithTruth(toString());
}

qint64 PropertyListValue::toInteger() const
{
    if (const bool *boolean = std::get_if<bool>(&m_value))
        return *boolean ? 1 : 0;
    if (const qint64 *number = std::get_if<qint64>(&m_value))
        return *number;
    if (const double *number = std::get_if<double>(&m_value))
        return truncated(*number);
    return isString() ? integerValue(toString()) : 0;
}

double PropertyListValue::toReal() const
{
    if (const qint64 *number = std::get_if<qint64>(&m_value))
        return static_cast<double>(*number);
    if (const double *number = std::get_if<double>(&m_value))
        return *number;
    if (const bool *boolean = std::get_if<bool>(&m_value))
        return *boolean ? 1 : 0;
    return isString() ? doubleValue(toString()) : 0;
}

QString PropertyListValue::toString() const
{
    if (const QString *text = std::get_if<QString>(&m_value))
        return *text;
    if (const double *number = std::get_if<double>(&m_value))
        return QString::number(*number, 'g', QLocale::FloatingPointShortest);
    return isNumber() ? QString::number(toInteger()) : QString();
}

QDateTime PropertyListValue::toDate() const
{
    const QDateTime *date = std::get_if<QDateTime>(&m_value);
    return date ? *date : QDateTime();
}

QByteArray PropertyListValue::toData() const
{
    const QByteArray *data = std::get_if<QByteArray>(&m_value);
    return data ? *data : QByteArray();
}

const PropertyListValue::Array &PropertyListValue::toArray() const
{
    static const Array empty;
    const Array *array = std::get_if<Array>(&m_value);
    return array ? *array : empty;
}

const PropertyListDictionary &PropertyListValue::toDictionary() const
{
    static const PropertyListDictionary empty;
    const PropertyListDictionary *dictionary = std::get_if<PropertyListDictionary>(&m_value);
    return dictionary ? *dictionary : empty;
}

QStringList PropertyListValue::toStringList() const
{
    QStringList list;
    for (const PropertyListValue &member : toArray()) {
        if (member.isString() || member.isNumber())
            list.append(member.toString());
    }
    return list;
}

} // namespace vantrell
