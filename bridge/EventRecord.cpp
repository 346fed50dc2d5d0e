#include "bridge/EventRecord.h"

#include "bridge/FileReference.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace vantrell
{

namespace
{

QByteArray bigEndian(std::uint32_t number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

std::optional<std::uint32_t> numberIn(const EventDescriptor &descriptor, FourCharCode type)
{
    if (descriptor.type() != type || descriptor.bytes().size() != 4)
        return {};
    return qFromBigEndian<std::uint32_t>(descriptor.bytes().constData());
}

auto find(auto &parameters, FourCharCode keyword)
{
    return std::find_if(parameters.begin(), parameters.end(),
                        [keyword](const EventParameter &entry) { return entry.keyword == keyword; });
}

const EventDescriptor *valueIn(const std::vector<EventParameter> &parameters, FourCharCode keyword)
{
    const auto found = find(parameters, keyword);
    return found == parameters.end() ? nullptr : &found->value;
}

} // namespace

QString FourCharCode::text() const
{
    const QByteArray bytes = bigEndian(value);
    const bool isPrintable =
        std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= 32 && c < 127; });
    return isPrintable ? QString::fromLatin1(bytes)
                       : QStringLiteral("0x%1").arg(value, 8, 16, QLatin1Char('0'));
}

EventDescriptor::EventDescriptor() = default;

EventDescriptor::EventDescriptor(FourCharCode type, QByteArray bytes)
    : m_type(type)
    , m_bytes(std::move(bytes))
{
}

EventDescriptor EventDescriptor::fromUtf8(QByteArray utf8)
{
    return {EventCode::Utf8, std::move(utf8)};
}

EventDescriptor EventDescriptor::fromFileUrl(QByteArray url)
{
    return {EventCode::FileUrl, std::move(url)};
}

EventDescriptor EventDescriptor::fromBool(bool value)
{
    return {EventCode::Bool, QByteArray(1, value ? '\1' : '\0')};
}

EventDescriptor EventDescriptor::fromFileReference(QByteArray bytes)
{
    return {EventCode::FileReference, std::move(bytes)};
}

EventDescriptor EventDescriptor::fromInteger(std::int32_t value)
{
    return {EventCode::Integer, bigEndian(static_cast<std::uint32_t>(value))};
}

EventDescriptor EventDescriptor::fromSignature(FourCharCode signature)
{
    return {EventCode::Signature, bigEndian(signature.value)};
}

EventDescriptor EventDescriptor::fromList(std::vector<EventDescriptor> items)
{
    EventDescriptor list(EventCode::List, {});
    list.m_items = std::move(items);
    return list;
}

EventDescriptor EventDescriptor::fromRecord(std::vector<EventParameter> fields)
{
    EventDescriptor record(EventCode::Record, {});
    record.m_fields = std::move(fields);
    return record;
}

std::optional<bool> EventDescriptor::toBool() const
{
    if (m_type != EventCode::Bool || m_bytes.size() != 1)
        return {};
    return m_bytes.front() != '\0';
}

std::optional<std::int32_t> EventDescriptor::toInteger() const
{
    const auto number = numberIn(*this, EventCode::Integer);
    return number ? std::optional(static_cast<std::int32_t>(*number)) : std::nullopt;
}

std::optional<FourCharCode> EventDescriptor::toSignature() const
{
    const auto number = numberIn(*this, EventCode::Signature);
    return number ? std::optional(FourCharCode(*number)) : std::nullopt;
}

std::optional<QByteArray> EventDescriptor::toFileReference() const
{
    return m_bytes.size() == fileReferenceSize ? bytesOf(EventCode::FileReference) : std::nullopt;
}

const EventDescriptor *EventDescriptor::field(FourCharCode keyword) const
{
    return valueIn(m_fields, keyword);
}

bool operator==(const EventDescriptor &a, const EventDescriptor &b)
{
    return a.m_type == b.m_type && a.m_bytes == b.m_bytes && a.m_items == b.m_items &&
           a.m_fields == b.m_fields;
}

EventRecord EventRecord::reply()
{
    return {
        .eventClass = EventCode::CoreClass, .identifier = EventCode::Answer, .address = {}, .parameters = {}};
}

EventRecord EventRecord::errorReply(std::int32_t number)
{
    EventRecord reply = EventRecord::reply();
    reply.setParameter(EventCode::ErrorNumber, EventDescriptor::fromInteger(number));
    return reply;
}

const EventDescriptor *EventRecord::parameter(FourCharCode keyword) const
{
    return valueIn(parameters, keyword);
}

std::optional<EventDescriptor> EventRecord::takeParameter(FourCharCode keyword)
{
    const auto found = find(parameters, keyword);
    if (found == parameters.end())
        return {};
    EventDescriptor value = std::move(found->value);
    parameters.erase(found);
    return value;
}

void EventRecord::setParameter(FourCharCode keyword, EventDescriptor value)
{
    const auto found = find(parameters, keyword);
    if (found != parameters.end())
        found->value = std::move(value);
    else
        parameters.push_back({keyword, std::move(value)});
}

std::int32_t EventRecord::errorNumber() const
{
    const EventDescriptor *error = parameter(EventCode::ErrorNumber);
    return error ? error->toInteger().value_or(0) : 0;
}

} // namespace vantrell
