#include "handover/MediaHeader.h"

#include <QFile>
#include <QtEndian>

#include <cmath>
#include <cstdint>

namespace vantrell::MediaHeader
{

namespace
{

constexpr int maximumParts = 10000; // of a file that is looked at, so that a damaged one ends

/// The part of a file that begins at a position; less when the file ends before.
QByteArray bytesAt(QFile &file, qint64 position, qint64 size)
{
    return file.seek(position) ? file.read(size) : QByteArray();
}

template <typename Integer>
std::uint64_t bigAt(const QByteArray &bytes, qsizetype position)
{
    return qFromBigEndian<Integer>(bytes.constData() + position);
}

template <typename Integer>
std::uint64_t littleAt(const QByteArray &bytes, qsizetype position)
{
    return qFromLittleEndian<Integer>(bytes.constData() + position);
}

std::optional<double> quotient(double dividend, double divisor)
{
    return dividend > 0 && divisor > 0 ? std::optional(dividend / divisor) : std::nullopt;
}

/// The duration in the movie header, which is in the movie atom at the top level.
std::optional<double> movieDuration(QFile &file)
{
    qint64 position = 0;
    qint64 end = file.size();
    for (int part = 0; part < maximumParts && position + 8 <= end; ++part) {
        const QByteArray header = bytesAt(file, position, 16);
        if (header.size() < 8)
            return std::nullopt;
        std::uint64_t size = bigAt<quint32>(header, 0);
        qint64 headerSize = 8;
        if (size == 1 && header.size() == 16) {
            size = bigAt<quint64>(header, 8);
            headerSize = 16;
        } else if (size == 0) {
            size = std::uint64_t(end - position);
        }
        if (size < std::uint64_t(headerSize) || size > std::uint64_t(end - position))
            return std::nullopt;
        const QByteArray type = header.sliced(4, 4);
        if (type == "moov") {
            end = position + qint64(size);
            position += headerSize;
            continue;
        }
        if (type == "mvhd") {
            const QByteArray content = bytesAt(file, position + headerSize, 32);
            if (content.size() < 32)
                return std::nullopt;
            return content[0] == 1
                       ? quotient(double(bigAt<quint64>(content, 24)), double(bigAt<quint32>(content, 20)))
                       : quotient(double(bigAt<quint32>(content, 16)), double(bigAt<quint32>(content, 12)));
        }
        position += qint64(size);
    }
    return std::nullopt;
}

std::optional<double> waveDuration(QFile &file)
{
    double bytesPerSecond = 0;
    std::uint64_t longData = 0;
    qint64 position = 12;
    for (int part = 0; part < maximumParts; ++part) {
        const QByteArray chunk = bytesAt(file, position, 24);
        if (chunk.size() < 8)
            return std::nullopt;
        const QByteArray type = chunk.first(4);
        const std::uint64_t size = littleAt<quint32>(chunk, 4);
        if (type == "ds64" && chunk.size() == 24)
            longData = littleAt<quint64>(chunk, 16);
        else if (type == "fmt " && chunk.size() >= 20)
            bytesPerSecond = double(littleAt<quint32>(chunk, 16));
        else if (type == "data")
            return quotient(double(size == 0xffffffff ? longData : size), bytesPerSecond);
        position += 8 + qint64(size + size % 2);
    }
    return std::nullopt;
}

/// An 80-bit floating point number.
double extendedAt(const QByteArray &bytes, qsizetype position)
{
    const int exponent = int(bigAt<quint16>(bytes, position) & 0x7fff) - 16383 - 63;
    return std::ldexp(double(bigAt<quint64>(bytes, position + 2)), exponent);
}

std::optional<double> aiffDuration(QFile &file)
{
    qint64 position = 12;
    for (int part = 0; part < maximumParts; ++part) {
        const QByteArray chunk = bytesAt(file, position, 26);
        if (chunk.size() < 8)
            return std::nullopt;
        if (chunk.startsWith("COMM"))
            return chunk.size() == 26 ? quotient(double(bigAt<quint32>(chunk, 10)), extendedAt(chunk, 16))
                                      : std::nullopt;
        const std::uint64_t size = bigAt<quint32>(chunk, 4);
        position += 8 + qint64(size + size % 2);
    }
    return std::nullopt;
}

} // namespace

std::optional<double> durationOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    const QByteArray start = bytesAt(file, 0, 12);
    if (start.size() < 12)
        return std::nullopt;
    const QByteArray form = start.first(4);
    const QByteArray kind = start.sliced(8, 4);
    if ((form == "RIFF" || form == "RF64") && kind == "WAVE")
        return waveDuration(file);
    if (form == "FORM" && (kind == "AIFF" || kind == "AIFC"))
        return aiffDuration(file);
    return movieDuration(file);
}

} // namespace vantrell::MediaHeader
