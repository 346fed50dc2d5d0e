#pragma once

#include "bridge/EventRecord.h"
#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

namespace vantrell
{

/// A log file of events, one line of JSON each. Any thread.
class HostLog
{
public:
    /// A log that discards everything.
    HostLog() = default;
    /// Creates the file if necessary, readable by its owner only.
    static Result<HostLog> open(const QString &path);

    /// A failure is reported on standard error.
    void append(const EventRecord &event) const;

    /// The event as one JSON object without a line end. A file reference is shown as its length and, if it is
    /// valid, its path.
    static QByteArray json(const EventRecord &event);

private:
    Descriptor m_file;
};

} // namespace vantrell
