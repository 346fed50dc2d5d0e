#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QStringEncoder>
#include <QStringView>

#include <functional>

class QIODevice;

namespace vantrell
{

/// Takes a text piece by piece. The piece is gone once the call has returned.
using TextSink = std::function<void(QStringView)>;

/// Writes a text that comes in pieces to a device as UTF-8, in blocks: of a text of any length one block
/// and one piece are in memory. One thread.
class Utf8Output
{
public:
    /// The device is open and outlives this object.
    explicit Utf8Output(QIODevice &device);

    /// Nothing is written any more once the device has failed.
    void append(QStringView text);
    /// Writes what is left. A Failure when any of the text could not be written.
    Result<void> finish();

    TextSink sink();

private:
    void flush();

    QIODevice &m_device;
    QStringEncoder m_encoder{QStringEncoder::Utf8};
    QByteArray m_block;
    bool m_hasFailed = false;
};

} // namespace vantrell
