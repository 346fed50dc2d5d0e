#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace vantrell
{

/// Packs numbers and texts one after another: seven bits of a number to a byte, the lowest first, and a
/// text behind its length. PackedReader reads them in the same order.
class PackedWriter
{
public:
    void number(std::uint64_t value)
    {
        for (; value >= 0x80; value >>= 7)
            m_bytes.push_back(char(value | 0x80));
        m_bytes.push_back(char(value));
    }
    /// In 8 bytes, for numbers that are large anyway.
    void fixed(std::uint64_t value)
    {
        for (int i = 0; i < 8; ++i, value >>= 8)
            m_bytes.push_back(char(value));
    }
    void bytes(std::string_view text)
    {
        number(text.size());
        m_bytes.append(text);
    }
    void text(const QString &text)
    {
        const QByteArray utf8 = text.toUtf8();
        bytes({utf8.constData(), std::size_t(utf8.size())});
    }

    std::string take() { return std::exchange(m_bytes, std::string()); }

private:
    std::string m_bytes;
};

/// Reads what PackedWriter wrote. After a read beyond the end isOk() is false, and all reads give 0 or an
/// empty text.
class PackedReader
{
public:
    /// The bytes outlive the reader.
    explicit PackedReader(std::string_view bytes)
        : m_rest(bytes)
    {
    }

    bool isOk() const { return m_isOk; }
    bool atEnd() const { return m_rest.empty(); }

    std::uint64_t number()
    {
        std::uint64_t value = 0;
        for (int shift = 0; shift < 64; shift += 7) {
            const std::string_view byte = take(1);
            if (byte.empty())
                return 0;
            value |= std::uint64_t(static_cast<unsigned char>(byte[0]) & 0x7F) << shift;
            if (!(static_cast<unsigned char>(byte[0]) & 0x80))
                return value;
        }
        fail();
        return 0;
    }
    std::uint64_t fixed()
    {
        const std::string_view read = take(8);
        std::uint64_t value = 0;
        for (std::size_t i = read.size(); i > 0; --i)
            value = value << 8 | static_cast<unsigned char>(read[i - 1]);
        return value;
    }
    /// Part of the bytes that are read.
    std::string_view bytes() { return take(number()); }
    QString text()
    {
        const std::string_view utf8 = bytes();
        return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    }
    /// All that has not been read.
    std::string_view rest() { return take(m_rest.size()); }

private:
    std::string_view take(std::uint64_t size)
    {
        if (size > m_rest.size()) {
            fail();
            return {};
        }
        const std::string_view taken = m_rest.substr(0, std::size_t(size));
        m_rest.remove_prefix(std::size_t(size));
        return taken;
    }
    void fail()
    {
        m_isOk = false;
        m_rest = {};
    }

    std::string_view m_rest;
    bool m_isOk = true;
};

} // namespace vantrell
