#include "handover/MediaHeader.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
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

/// Reads the atoms of a movie.
class MovieReader
{
public:
    MovieReader(QFile &file, Facts &facts)
        : m_file(file)
        , m_facts(facts)
    {
    }

    void read() { readAtoms(0, m_file.size()); }

private:
    /// The timecode track, of which parts are found one by one.
    struct Timecode {
        double timescale = 0;
        double frameDuration = 0;
        QString reel;
        std::optional<qint64> sample; // where the number of the first frame is
    };

    void readAtoms(qint64 position, qint64 end)
    {
        while (m_parts++ < maximumParts && position + 8 <= end) {
            const QByteArray header = bytesAt(m_file, position, 16);
            if (header.size() < 8)
                return;
            std::uint64_t size = bigAt<quint32>(header, 0);
            qint64 headerSize = 8;
            if (size == 1 && header.size() == 16) {
                size = bigAt<quint64>(header, 8);
                headerSize = 16;
            } else if (size == 0) {
                size = std::uint64_t(end - position);
            }
            if (size < std::uint64_t(headerSize) || size > std::uint64_t(end - position))
                return;
            readAtom(header.sliced(4, 4), position + headerSize, position + qint64(size));
            position += qint64(size);
        }
    }

    void readAtom(const QByteArray &type, qint64 position, qint64 end)
    {
        if (type == "trak") {
            m_timecode = Timecode();
            readAtoms(position, end);
            noteTimecode();
        } else if (type == "moov" || type == "mdia" || type == "minf" || type == "stbl") {
            readAtoms(position, end);
        } else if (type == "mvhd") {
            readDuration(bytesAt(m_file, position, 32));
        } else if (type == "stsd") {
            readDescription(bytesAt(m_file, position, std::min<qint64>(end - position, 512)));
        } else if (type == "stco") {
            const QByteArray content = bytesAt(m_file, position, 12);
            if (content.size() == 12)
                m_timecode.sample = qint64(bigAt<quint32>(content, 8));
        } else if (type == "co64") {
            const QByteArray content = bytesAt(m_file, position, 16);
            if (content.size() == 16)
                m_timecode.sample = qint64(bigAt<quint64>(content, 8) & 0x7fffffffffffffff);
        }
    }

    void readDuration(const QByteArray &content)
    {
        if (content.size() < 32)
            return;
        m_facts.seconds =
            content[0] == 1
                ? quotient(double(bigAt<quint64>(content, 24)), double(bigAt<quint32>(content, 20)))
                : quotient(double(bigAt<quint32>(content, 16)), double(bigAt<quint32>(content, 12)));
    }

    /// Behind the description of the timecode stands the name of the reel: its size, a language, the text.
    void readDescription(const QByteArray &content)
    {
        constexpr qsizetype entry = 8;
        constexpr qsizetype name = entry + 34;
        if (content.size() < name || content.sliced(entry + 4, 4) != "tmcd")
            return;
        m_timecode.timescale = double(bigAt<quint32>(content, entry + 24));
        m_timecode.frameDuration = double(bigAt<quint32>(content, entry + 28));
        if (content.size() >= name + 12 && content.sliced(name + 4, 4) == "name")
            m_timecode.reel = QString::fromUtf8(
                content.sliced(name + 12, std::min(qsizetype(bigAt<quint16>(content, name + 8)),
                                                   content.size() - name - 12)));
    }

    void noteTimecode()
    {
        m_facts.rate = m_facts.rate ? m_facts.rate : quotient(m_timecode.timescale, m_timecode.frameDuration);
        if (!m_timecode.sample || m_timecode.timescale <= 0 || m_facts.start)
            return;
        if (const QByteArray frame = bytesAt(m_file, *m_timecode.sample, 4); frame.size() == 4)
            m_facts.start =
                double(bigAt<quint32>(frame, 0)) * m_timecode.frameDuration / m_timecode.timescale;
        m_facts.reel = m_timecode.reel;
    }

    QFile &m_file;
    Facts &m_facts;
    Timecode m_timecode;
    int m_parts = 0;
};

void readWave(QFile &file, Facts &facts)
{
    double bytesPerSecond = 0;
    double samplesPerSecond = 0;
    std::uint64_t longData = 0;
    std::optional<double> startSamples;
    qint64 position = 12;
    for (int part = 0; part < maximumParts; ++part) {
        const QByteArray chunk = bytesAt(file, position, 24);
        if (chunk.size() < 8)
            return;
        const QByteArray type = chunk.first(4);
        const std::uint64_t size = littleAt<quint32>(chunk, 4);
        if (type == "ds64" && chunk.size() == 24) {
            longData = littleAt<quint64>(chunk, 16);
        } else if (type == "fmt " && chunk.size() >= 20) {
            samplesPerSecond = double(littleAt<quint32>(chunk, 12));
            bytesPerSecond = double(littleAt<quint32>(chunk, 16));
        } else if (type == "bext" && size >= 346) {
            // Behind description, originator, its reference, date and time
            if (const QByteArray samples = bytesAt(file, position + 8 + 338, 8); samples.size() == 8)
                startSamples = double(littleAt<quint64>(samples, 0));
        } else if (type == "data") {
            facts.seconds = quotient(double(size == 0xffffffff ? longData : size), bytesPerSecond);
            if (startSamples && samplesPerSecond > 0)
                facts.start = *startSamples / samplesPerSecond;
            return;
        }
        position += 8 + qint64(size + size % 2);
    }
}

/// An 80-bit floating point number.
double extendedAt(const QByteArray &bytes, qsizetype position)
{
    const int exponent = int(bigAt<quint16>(bytes, position) & 0x7fff) - 16383 - 63;
    return std::ldexp(double(bigAt<quint64>(bytes, position + 2)), exponent);
}

void readAiff(QFile &file, Facts &facts)
{
    qint64 position = 12;
    for (int part = 0; part < maximumParts; ++part) {
        const QByteArray chunk = bytesAt(file, position, 26);
        if (chunk.size() < 8)
            return;
        if (chunk.startsWith("COMM")) {
            if (chunk.size() == 26)
                facts.seconds = quotient(double(bigAt<quint32>(chunk, 10)), extendedAt(chunk, 16));
            return;
        }
        const std::uint64_t size = bigAt<quint32>(chunk, 4);
        position += 8 + qint64(size + size % 2);
    }
}

} // namespace

Facts read(const QString &path)
{
    Facts facts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return facts;
    const QByteArray start = bytesAt(file, 0, 12);
    if (start.size() < 12)
        return facts;
    const QByteArray form = start.first(4);
    const QByteArray kind = start.sliced(8, 4);
    if ((form == "RIFF" || form == "RF64") && kind == "WAVE")
        readWave(file, facts);
    else if (form == "FORM" && (kind == "AIFF" || kind == "AIFC"))
        readAiff(file, facts);
    else
        MovieReader(file, facts).read();
    return facts;
}

} // namespace vantrell::MediaHeader
