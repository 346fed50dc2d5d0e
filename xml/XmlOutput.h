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

/// Text on its way to a device: gathered, and converted to an encoding, in which characters that it lacks
/// are written as references. After a failure, which may be that of the device, or the cancel flag, nothing
/// more is written. One thread.
class XmlOutput
{
public:
    /// In UTF-8. `cancelled` may be null.
    XmlOutput(QIODevice &device, const std::atomic<bool> *cancelled);
    ~XmlOutput();
    XmlOutput(const XmlOutput &) = delete;
    XmlOutput &operator=(const XmlOutput &) = delete;

    /// Turns to that encoding, before anything is written; false, and UTF-8 it is, when there is none such
    /// or none that a parser would recognise.
    bool setEncoding(const QByteArray &name);

    void write(std::string_view utf8)
    {
        m_text += utf8;
        if (m_text.size() >= flushSize)
            flush();
    }
    void write(char ascii) { m_text += ascii; }

    /// Hands over what was gathered. Whether all went well so far.
    bool flush();
    bool hasFailed() const { return m_failed; }

private:
    static constexpr std::size_t flushSize = std::size_t(1) << 16;

    bool keepsMarkup();
    void convert();
    bool convertPart(char *&in, std::size_t &inLeft);

    QIODevice &m_device;
    const std::atomic<bool> *m_cancelled;
    std::string m_text;      // UTF-8, not handed over yet
    std::string m_converted; // the same in another encoding
    iconv_t m_converter;
    bool m_failed = false;
};

} // namespace vantrell
