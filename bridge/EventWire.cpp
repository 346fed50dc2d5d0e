#include "bridge/EventWire.h"

#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace vantrell::EventWire
{

namespace
{

constexpr FourCharCode Magic{"vAev"};
constexpr std::uint32_t Version = 1;
constexpr qsizetype PrefixSize = 12; ///< magic, version, length
constexpr qsizetype ValueHeadSize = 8;
constexpr qsizetype KeywordSize = 4;
constexpr qsizetype LargeSize = 4096;                 ///< from here on bytes make a piece of their own
constexpr qsizetype MaximumStep = qsizetype(1) << 24; ///< by which the room for arriving bytes grows

/// Whether a value of that type may have so many bytes; lists and records are none of these.
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

/// Measures a record and finds what cannot go over the wire.
class Measure
{
public:
    /// Bytes of the record behind its prefix.
    Result<qsizetype> bodySize(const EventRecord &record)
    {
        qsizetype size = 7 * 4 + 4 + valueSize(record.address, 0);
        for (const EventParameter &parameter : record.parameters)
            size += KeywordSize + valueSize(parameter.value, 0);
        if (m_fault.isEmpty() && size > maximumSize - PrefixSize)
            m_fault = QStringLiteral("The event is larger than %1 bytes.").arg(maximumSize);
        if (!m_fault.isEmpty())
            return Failure{m_fault};
        return size;
    }

    qsizetype contentSize(const EventDescriptor &value, int depth)
    {
        if (!isContainer(value.type())) {
            if (!isKnown(value.type(), value.bytes().size()))
                m_fault = unknownValue(value.type(), value.bytes().size());
            return value.bytes().size();
        }
        if (depth >= maximumDepth) {
            m_fault = tooDeep();
            return 0;
        }
        qsizetype size = 4;
        for (const EventDescriptor &item : value.items())
            size += valueSize(item, depth + 1);
        for (const EventParameter &field : value.fields())
            size += KeywordSize + valueSize(field.value, depth + 1);
        return size;
    }

private:
    qsizetype valueSize(const EventDescriptor &value, int depth)
    {
        if (++m_values > maximumValues)
            m_fault = tooMany();
        return m_fault.isEmpty() ? ValueHeadSize + contentSize(value, depth) : 0;
    }

    int m_values = 0;
    QString m_fault;
};

class Writer
{
public:
    void number(std::uint32_t value)
    {
        const qsizetype end = m_current.size();
        m_current.resize(end + 4);
        qToBigEndian(value, m_current.data() + end);
    }
    void number(std::int32_t value) { number(static_cast<std::uint32_t>(value)); }
    void count(std::size_t value) { number(static_cast<std::uint32_t>(value)); }
    void code(FourCharCode code) { number(code.value); }

    void bytes(const QByteArray &bytes)
    {
        if (bytes.size() < LargeSize) {
            m_current += bytes;
            return;
        }
        m_pieces.push_back(std::exchange(m_current, {}));
        m_pieces.push_back(bytes);
    }

    void value(const EventDescriptor &value, int depth)
    {
        code(value.type());
        count(static_cast<std::size_t>(Measure().contentSize(value, depth)));
        if (value.isList()) {
            count(value.items().size());
            for (const EventDescriptor &item : value.items())
                this->value(item, depth + 1);
        } else if (value.isRecord()) {
            parameters(value.fields(), depth + 1);
        } else {
            bytes(value.bytes());
        }
    }

    void parameters(const std::vector<EventParameter> &list, int depth)
    {
        count(list.size());
        for (const EventParameter &entry : list) {
            code(entry.keyword);
            value(entry.value, depth);
        }
    }

    std::vector<QByteArray> take()
    {
        if (!m_current.isEmpty())
            m_pieces.push_back(std::exchange(m_current, {}));
        return std::move(m_pieces);
    }

private:
    std::vector<QByteArray> m_pieces;
    QByteArray m_current;
};

/// Reads one record. Once something is wrong, m_fault says what, and everything read is zero.
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

    /// Takes so many bytes from what is left of the record; whether they are there to be read.
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
            if (m_position == m_buffered && size >= qsizetype(m_buffer.size())) {
                const qsizetype got = fromSource(target, size);
                target += got;
                size -= got;
                continue;
            }
            if (m_position == m_buffered) {
                // Never beyond the record: what is asked for now and what is left after it.
                const qsizetype most = std::min(size + m_left, qsizetype(m_buffer.size()));
                m_buffered = fromSource(m_buffer.data(), most);
                m_position = 0;
                continue;
            }
            const qsizetype count = std::min(size, m_buffered - m_position);
            std::memcpy(target, m_buffer.data() + m_position, std::size_t(count));
            m_position += count;
            target += count;
            size -= count;
        }
    }

    qsizetype fromSource(char *target, qsizetype size)
    {
        const qsizetype got = m_source(target, size);
        if (got == 0)
            fail(QStringLiteral("The event is cut off."));
        else if (got < 0 || got > size)
            fail(QStringLiteral("Reading the event failed."));
        return isFaulty() ? 0 : got;
    }

    std::uint32_t number()
    {
        std::array<char, 4> bytes{};
        if (claim(4))
            fetch(bytes.data(), 4);
        return isFaulty() ? 0 : qFromBigEndian<std::uint32_t>(bytes.data());
    }

    FourCharCode code() { return FourCharCode(number()); }

    /// The room grows with what has arrived, whatever size was announced.
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

    /// The number of entries that follow, each of so many bytes at least, in a room of so many bytes.
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

    /// Within a list or record, what is left is what is left of it.
    EventDescriptor container(FourCharCode type, qsizetype size, int depth)
    {
        if (depth >= maximumDepth)
            fail(tooDeep());
        if (!claim(size))
            return {};
        const qsizetype leftBehind = std::exchange(m_left, size);
        EventDescriptor value = type == EventCode::List ? EventDescriptor::fromList(items(depth + 1))
                                                        : EventDescriptor::fromRecord(parameters(depth + 1));
        if (m_left > 0)
            fail(QStringLiteral("A list or record is shorter than it says."));
        m_left = leftBehind;
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
    qsizetype m_left = 0; ///< bytes of the record, or of the list or record in it, not claimed yet
    int m_values = 0;
    QString m_fault;
    std::array<char, 4096> m_buffer = {}; ///< read ahead, never beyond the record
    qsizetype m_buffered = 0;
    qsizetype m_position = 0;
};

} // namespace

Result<qsizetype> size(const EventRecord &record)
{
    const Result<qsizetype> body = Measure().bodySize(record);
    if (!body)
        return body;
    return PrefixSize + body.value();
}

Result<std::vector<QByteArray>> pieces(const EventRecord &record)
{
    const Result<qsizetype> body = Measure().bodySize(record);
    if (!body)
        return body.failure();
    Writer writer;
    writer.code(Magic);
    writer.number(Version);
    writer.count(static_cast<std::size_t>(body.value()));
    writer.code(record.eventClass);
    writer.code(record.identifier);
    for (const std::int32_t field :
         {record.returnId, record.transaction, record.sendMode, record.priority, record.timeout})
        writer.number(field);
    writer.value(record.address, 0);
    writer.parameters(record.parameters, 0);
    return writer.take();
}

Result<QByteArray> flatten(const EventRecord &record)
{
    const auto parts = pieces(record);
    if (!parts)
        return parts.failure();
    QByteArray bytes;
    for (const QByteArray &part : parts.value())
        bytes += part;
    return bytes;
}

Result<EventRecord> unflatten(QByteArrayView bytes)
{
    const Source source = [&bytes](char *buffer, qsizetype maximum) {
        const qsizetype count = std::min(maximum, bytes.size());
        std::memcpy(buffer, bytes.data(), std::size_t(count));
        bytes = bytes.sliced(count);
        return count;
    };
    Result<EventRecord> record = read(source);
    if (record && !bytes.isEmpty())
        return Failure{QStringLiteral("The event is longer than it says.")};
    return record;
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
