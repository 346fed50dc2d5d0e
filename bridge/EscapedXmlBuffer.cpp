#include "bridge/EscapedXmlBuffer.h"

#include "bridge/QVAppleEvents.h"

#include <QStringDecoder>

#include <algorithm>
#include <new>
#include <utility>

namespace vantrell
{

namespace
{

/// How many of the bytes end before what may be an incomplete character.
qsizetype completeSize(const QByteArray &bytes)
{
    const auto byteBefore = [&](qsizetype i) { return i > 0 ? uchar(bytes.at(i - 1)) : uchar(0); };
    qsizetype end = bytes.size();
    while (end > bytes.size() - 3 && (byteBefore(end) & 0xC0) == 0x80)
        --end;
    return byteBefore(end) >= 0xC0 ? end - 1 : end;
}

/// A byte-order mark is a character like any other.
QString decoded(QByteArrayView utf8)
{
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom).decode(utf8);
}

} // namespace

EscapedXmlBuffer::EscapedXmlBuffer()
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

QByteArray EscapedXmlBuffer::take()
{
    m_escaped += QVAppleEvents::escapedXml(decoded(std::exchange(m_pending, QByteArray())));
    return std::exchange(m_escaped, QByteArray());
}

qint64 EscapedXmlBuffer::writeData(const char *data, qint64 size)
{
    constexpr qsizetype portion = qsizetype(1) << 20; // bytes decoded at a time
    try {
        for (QByteArrayView rest(data, size); !rest.isEmpty();) {
            const QByteArrayView part = rest.first(std::min(portion, rest.size()));
            m_pending.append(part);
            const qsizetype complete = completeSize(m_pending);
            m_escaped += QVAppleEvents::escapedXml(decoded(QByteArrayView(m_pending).first(complete)));
            m_pending.remove(0, complete);
            rest = rest.sliced(part.size());
        }
        return size;
    } catch (const std::bad_alloc &) {
        setErrorString(QStringLiteral("There is not enough memory."));
        return -1;
    }
}

} // namespace vantrell
