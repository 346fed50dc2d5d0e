#pragma once

#include <QByteArray>
#include <QIODevice>

namespace vantrell
{

/// A write-only device that collects UTF-8 text escaped as by QVAppleEvents::escapeCharactersInXMLString(),
/// without ever holding the whole text in UTF-16. Characters may be split between two writes.
class EscapedXmlBuffer : public QIODevice
{
public:
    EscapedXmlBuffer();

    bool isSequential() const override { return true; }

    /// Empties the buffer and returns what was in it.
    QByteArray take();

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    QByteArray m_escaped;
    QByteArray m_pending; ///< the bytes of a character that may be incomplete
};

} // namespace vantrell
