#pragma once

// For use inside xml/ only.

#include <QByteArray>

#include <atomic>
#include <string>
#include <string_view>

#include <iconv.h>

class QIODevice;

namespace vantrell
{

/// Buffered text output to a device, converted to an encoding; characters that the encoding lacks, or from
/// which another one would be read, are written as references. Nothing more is written after a failure or
/// once cancelled. One thread.
class XmlOutput
{
public:
    /// In UTF-8. `cancelled` may be null.
    XmlOutput(QIODevice &device, const std::atomic<bool> *cancelled);
    ~XmlOutput();
    XmlOutput(const XmlOutput &) = delete;
    XmlOutput &operator=(const XmlOutput &) = delete;

    /// Selects the encoding, before anything is written. False, and UTF-8 is kept, when it is unknown, no
    /// parser would recognise it, or what a character becomes depends on those around it.
    bool setEncoding(const QByteArray &name);

    void write(std::string_view utf8)
    {
        m_text += utf8;
        if (m_text.size() >= flushSize)
            flush();
    }
    void write(char ascii) { m_text += ascii; }

    /// Flushes the buffer. False after any failure so far.
    bool flush();
    bool hasFailed() const { return m_failed; }

private:
    static constexpr std::size_t flushSize = std::size_t(1) << 16;

    bool keepsText();
    void convert();
    void convertSingly(std::string_view utf8);
    bool appendConverted(std::string_view utf8);
    bool isReadBack(std::string_view utf8, std::size_t from);

    QIODevice &m_device;
    const std::atomic<bool> *m_cancelled;
    std::string m_text;      // UTF-8, not passed on yet
    std::string m_converted; // the same in another encoding, and room for more
    std::size_t m_convertedSize = 0;
    std::string m_readBack; // room for the check
    iconv_t m_converter;
    iconv_t m_reader; // back to UTF-8
    bool m_failed = false;
};

} // namespace vantrell
