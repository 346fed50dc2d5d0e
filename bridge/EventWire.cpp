#include "bridge/EventWire.h"

#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace vantrell::EventWire
{

namespace
{

constexpr FourCharCode Magic{"vAev"};
constexpr std::uint32_t Version = 1;
constexpr qsizetype PrefixSize = 12; ///< magic, version, length
constexpr qsizetype ValueHeadSize = 8;
constexpr qsizetype KeywordSize = 4;
constexpr qsizetype LargeSize = 4096;                 ///< from which on bytes are a piece of their own
constexpr qsizetype MaximumStep = qsizetype(1) << 24; ///< by which the memory for arriving bytes grows

/// Whether a value of that type, no list or record, may have that many bytes.
bool isKnown(FourCharCode type, qsizetype size)
{
    struct FixedSize {
        FourCharCode type;
        qsizetype size;
    };
    static constexpr std::array sizes{FixedSize{EventCode::Null, 0}, FixedSize{EventCode::Signature, 4},
                                      FixedSize{EventCode::FileReference, fileReferenceSize},
                                      FixedSize{EventCode::Bool, 1}, FixedSize{EventCode::Integer, 4}};
    const auto fixed = std::find_if(sizes.begin(), sizes.end(),
                                    [type](const FixedSize &entry) { return entry.type == type; });
    if (fixed != sizes.end())
        return fixed->size == size;
    return type == EventCode::Utf8 || type == EventCode::FileUrl;
}

bool isContainer(FourCharCode type)
{
    return type == EventCode::List || type == EventCode::Record;
}

QString unknownValue(FourCharCode type, qsizetype size)
{
    return QStringLiteral("A value of type \"%1\" cannot have %2 bytes.").arg(type.text()).arg(size);
}

QString tooDeep()
{
    return QStringLiteral("Values are nested more than %1 deep.").arg(maximumDepth);
}

QString tooMany()
{
    return QStringLiteral("The event holds more than %1 values.").arg(maximumValues);
}

/// Writes one record. After the first fault the result is that fault.
class Writer
{
public:
    Result<std::vector<QByteArray>> record(const EventRecord &record)
    {
        code(Magic);
        number(Version);
        const Length length = beginLength();
        code(record.eventClass);
        code(record.identifier);
        for (const std::int32_t field :
             {record.returnId, record.transaction, record.sendMode, record.priority, record.timeout})
            number(static_cast<std::uint32_t>(field));
        value(record.address, 0);
        parameters(record.parameters, 0);
        endLength(length);
        if (m_size > maximumSize)
            fail(QStringLiteral("The event is larger than %1 bytes.").arg(maximumSize));
        if (!m_fault.isEmpty())
            return Failure{m_fault};
        return std::move(m_pieces);
    }

private:
    /// A length that is filled in once its content has been written.
    struct Length {
        std::size_t piece;
        qsizetype position;   ///< in the piece
        qsizetype sizeBefore; ///< of the record, including the length itself
    };

    Length beginLength()
    {
        const Length length{m_pieces.size() - 1, m_pieces.back().size(), m_size + 4};
        number(0);
        return length;
    }

    void endLength(const Length &length)
    {
        qToBigEndian(static_cast<std::uint32_t>(m_size - length.sizeBefore),
                     m_pieces[length.piece].data() + length.position);
    }

    void fail(const QString &fault)
    {
        if (m_fault.isEmpty())
            m_fault = fault;
    }

    void number(std::uint32_t value)
    {
        std::array<char, 4> digits{};
        qToBigEndian(value, digits.data());
        m_pieces.back().append(digits.data(), 4);
        m_size += 4;
    }
    void code(FourCharCode code) { number(code.value); }

    void bytes(const QByteArray &bytes)
    {
        m_size += bytes.size();
        if (bytes.size() < LargeSize) {
            m_pieces.back() += bytes;
            return;
        }
        m_pieces.push_back(bytes);
        m_pieces.emplace_back();
    }

    void value(const EventDescriptor &value, int depth)
    {
        if (++m_values > maximumValues)
            fail(tooMany());
        if (isContainer(value.type()) && depth >= maximumDepth)
            fail(tooDeep());
        if (!isContainer(value.type()) && !isKnown(value.type(), value.bytes().size()))
            fail(unknownValue(value.type(), value.bytes().size()));
        if (!m_fault.isEmpty())
            return;
        code(value.type());
        const Length length = beginLength();
        if (value.isList()) {
            number(static_cast<std::uint32_t>(value.items().size()));
            for (const EventDescriptor &item : value.items())
                this->value(item, depth + 1);
        } else if (value.isRecord()) {
            parameters(value.fields(), depth + 1);
        } else {
            bytes(value.bytes());
        }
        endLength(length);
    }

    void parameters(const std::vector<EventParameter> &list, int depth)
    {
        number(static_cast<std::uint32_t>(list.size()));
        for (const EventParameter &entry : list) {
            code(entry.keyword);
            value(entry.value, depth);
        }
    }

    std::vector<QByteArray> m_pieces{QByteArray()};
    qsizetype m_size = 0;
    int m_values = 0;
    QString m_fault;
};

/// Reads one record. After the first fault everything reads as zero.
class Reader
{
public:
    explicit Reader(const Source &source)
        : m_source(source)
    {
    }

    Result<EventRecord> record()
    {
        EventRecord record;
        m_left = PrefixSize;
        const FourCharCode magic = code();
        const std::uint32_t version = number();
        const std::uint32_t length = number();
        if (magic != Magic)
            fail(QStringLiteral("The bytes are no event."));
        if (version != Version)
            fail(QStringLiteral("The event has the unknown version %1.").arg(version));
        if (qsizetype(length) > maximumSize - PrefixSize)
            fail(QStringLiteral("The event is larger than %1 bytes.").arg(maximumSize));
        m_left = qsizetype(length);
        record.eventClass = code();
        record.identifier = code();
        for (std::int32_t *field :
             {&record.returnId, &record.transaction, &record.sendMode, &record.priority, &record.timeout})
            *field = static_cast<std::int32_t>(number());
        record.address = value(0);
        record.parameters = parameters(0);
        if (m_left > 0)
            fail(QStringLiteral("The event is shorter than it says."));
        if (isFaulty())
            return Failure{m_fault};
        return record;
    }

private:
    bool isFaulty() const { return !m_fault.isEmpty(); }

    void fail(const QString &fault)
    {
        if (!isFaulty())
            m_fault = fault;
    }

    /// Subtracts the size from what is left of the record; false when the record is too short for it.
    bool claim(qsizetype size)
    {
        if (!isFaulty() && size > m_left)
            fail(QStringLiteral("The event is longer than it says."));
        if (isFaulty())
            return false;
        m_left -= size;
        return true;
    }

    /// Reads bytes that have been claimed.
    void fetch(char *target, qsizetype size)
    {
        while (size > 0 && !isFaulty()) {
            const qsizetype got = m_source(target, size);
            if (got == 0)
                fail(QStringLiteral("The event is cut off."));
            else if (got < 0 || got > size)
                fail(QStringLiteral("Reading the event failed."));
            target += got;
            size -= got;
        }
    }

    std::uint32_t number()
    {
        std::array<char, 4> bytes{};
        if (claim(4))
            fetch(bytes.data(), 4);
        return isFaulty() ? 0 : qFromBigEndian<std::uint32_t>(bytes.data());
    }

    FourCharCode code() { return FourCharCode(number()); }

    /// Memory grows with the bytes that have arrived, whatever size was announced.
    QByteArray bytes(qsizetype size)
    {
        QByteArray bytes;
        if (!claim(size))
            return bytes;
        while (bytes.size() < size && !isFaulty()) {
            const qsizetype from = bytes.size();
            const qsizetype step = std::min(size - from, std::clamp(from, qsizetype(65536), MaximumStep));
            bytes.reserve(from + step);
            bytes.resize(from + step);
            fetch(bytes.data() + from, step);
        }
        return bytes;
    }

    /// The number of entries that follow, each of at least `entrySize` bytes.
    std::uint32_t count(qsizetype entrySize)
    {
        const std::uint32_t count = number();
        if (qsizetype(count) > m_left / entrySize)
            fail(QStringLiteral("The event announces more values than it holds."));
        if (count > std::uint32_t(maximumValues))
            fail(tooMany());
        return isFaulty() ? 0 : count;
    }

    EventDescriptor value(int depth)
    {
        const FourCharCode type = code();
        const auto size = qsizetype(number());
        if (++m_values > maximumValues)
            fail(tooMany());
        if (!isFaulty() && size > m_left)
            fail(QStringLiteral("A value is longer than its event."));
        if (!isFaulty() && isContainer(type))
            return container(type, size, depth);
        if (!isFaulty() && !isKnown(type, size))
            fail(unknownValue(type, size));
        return {type, bytes(size)};
    }

    /// Within a list or record, m_left counts the bytes left of it.
    EventDescriptor container(FourCharCode type, qsizetype size, int depth)
    {
        if (depth >= maximumDepth)
            fail(tooDeep());
        if (!claim(size))
            return {};
        const qsizetype leftAfter = std::exchange(m_left, size);
        EventDescriptor value = type == EventCode::List ? EventDescriptor::fromList(items(depth + 1))
                                                        : EventDescriptor::fromRecord(parameters(depth + 1));
        if (m_left > 0)
            fail(QStringLiteral("A list or record is shorter than it says."));
        m_left = leftAfter;
        return value;
    }

    std::vector<EventDescriptor> items(int depth)
    {
        std::vector<EventDescriptor> items;
        for (std::uint32_t left = count(ValueHeadSize); left > 0 && !isFaulty(); --left)
            items.push_back(value(depth));
        return items;
    }

    std::vector<EventParameter> parameters(int depth)
    {
        std::vector<EventParameter> parameters;
        for (std::uint32_t left = count(KeywordSize + ValueHeadSize); left > 0 && !isFaulty(); --left) {
            const FourCharCode keyword = code();
            parameters.push_back({keyword, value(depth)});
        }
        return parameters;
    }

    const Source &m_source;
    qsizetype m_left = 0; ///< bytes of the record, or of the list or record in it, that are not claimed yet
    int m_values = 0;
    QString m_fault;
};

} // namespace

Result<std::vector<QByteArray>> pieces(const EventRecord &record)
{
    return Writer().record(record);
}

Result<EventRecord> read(const Source &source)
{
    try {
        return Reader(source).record();
    } catch (const std::bad_alloc &) {
        return Failure{QStringLiteral("There is not enough memory for the event.")};
    }
}

} // namespace vantrell::EventWire
