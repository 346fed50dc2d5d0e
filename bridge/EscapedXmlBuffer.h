#pragma once

#include <QByteArray>
#include <QIODevice>

#include <array>

namespace vantrell
{

/// Collects XML text that is written to it as UTF-8, in the form in which it goes to the editing
/// application: what QVAppleEvents::escapeCharactersInXMLString() makes of the text, as UTF-8, without
/// the text in UTF-16 on the way. Characters may be cut anywhere between two writes.
class EscapedXmlBuffer : public QIODevice
{
public:
    EscapedXmlBuffer();

    bool isSequential() const override { return true; }

    /// What was written so far, escaped; the buffer is empty then.
    QByteArray take();

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    void append(const char *data, const char *end);
    void appendCharacter();

    QByteArray m_escaped;
    std::array<char, 4> m_character = {}; ///< bytes of a character beyond ASCII that were met so far
    int m_met = 0;
    int m_length = 0; ///< how many it has
};

} // namespace vantrell
