#pragma once

// For use inside xml/ only.

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell
{

/// Whether a name may start with that byte of UTF-8.
inline bool startsXmlName(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// The source of the bytes of a project.
struct XmlSource {
    /// Fills the buffer with up to the given number of bytes; 0 at the end, -1 on a failed read.
    std::function<int(char *, int)> read;
    std::int64_t size = -1; ///< bytes; -1 when unknown
};

/// The text of an XML file as valid UTF-8, without characters that XML forbids and without invalid bytes;
/// each is dropped by itself. The encoding is that of the byte-order mark or of the first bytes, else the
/// declared one, else UTF-8. One thread.
class XmlInput
{
public:
    /// \a stopsAtFaults ends the text at the first fault. `cancelled` (may be null) ends it too.
    XmlInput(const XmlSource &source, bool stopsAtFaults, const std::atomic<bool> *cancelled);
    ~XmlInput();
    XmlInput(const XmlInput &) = delete;
    XmlInput &operator=(const XmlInput &) = delete;

    /// Up to \a length bytes of the text; 0 at its end.
    int read(char *buffer, int length);

    bool failed() const { return m_failed; } ///< the source did
    bool wasCancelled() const { return m_cancelled; }
    /// The encoding named by the XML declaration, as written; empty without one, and when the text is in
    /// another encoding that may have more characters.
    const QByteArray &declaredEncoding() const { return m_declared; }
    /// The first fault and its line; empty when there was none.
    const QString &fault() const { return m_fault; }
    std::int64_t faultLine() const { return m_faultLine; }
    /// Whether the text cannot be decoded at all.
    bool isUnreadable() const { return m_unreadable; }

    /// How many bytes of the source the first so many bytes of the text came from, as nearly as the blocks
    /// of 256 KB that were read tell.
    std::int64_t sourceOffset(std::int64_t textOffset) const;
    struct Rest {
        std::int64_t startTags = 0;
        bool hasText = false; ///< anything but tags and white space
    };
    /// Reads on to the end: what there is from that offset of the text on.
    Rest restFrom(std::int64_t textOffset);
    /// Whether the text, apart from white space, ends with those bytes; after all of it was read.
    bool endsWith(std::string_view end) const;
    /// Bytes of the source read so far.
    std::int64_t bytesRead() const { return m_sourceEnd; }

private:
    struct Block {
        std::vector<char> text;
        std::int64_t start = 0; ///< of the text

        std::int64_t end() const { return start + std::int64_t(text.size()); }
    };
    class Decoder;

    /// Where a block starts.
    struct Place {
        std::int64_t text;
        std::int64_t source;
    };

    bool isCancelled();
    bool fill();
    std::size_t readSource(std::size_t wanted);
    void chooseEncoding();
    bool setDecoder(const std::string &encoding, int unit);
    std::vector<char> startOfText(const std::string &encoding, int unit);
    void skipMarks();
    void decode(bool atEnd);
    void keepValid(bool atEnd);
    void addFault(std::string_view before, const QString &text);

    const XmlSource &m_source;
    const bool m_stopsAtFaults;
    const std::atomic<bool> *m_cancel;
    std::vector<char> m_raw;            // read but not decoded yet
    Block m_block;                      // what read() hands out
    Block m_lastBlock;                  // the one before that was not empty
    std::vector<Place> m_places;        // of all blocks so far
    std::size_t m_handedOut = 0;        // bytes of the block
    std::string m_rest;                 // an incomplete character at the end of the block
    std::unique_ptr<Decoder> m_decoder; // null for UTF-8
    std::int64_t m_sourceEnd = 0;
    std::int64_t m_blockSourceEnd = 0; // what the block came from
    std::int64_t m_line = 1;           // where the block ends
    bool m_started = false;
    bool m_isAtStart = true; // nothing of the text came yet
    bool m_ended = false;
    bool m_failed = false;
    bool m_cancelled = false;
    bool m_unreadable = false;
    QByteArray m_declared;
    QString m_encodingName; // for messages
    QString m_fault;
    std::int64_t m_faultLine = 0;
};

} // namespace vantrell
