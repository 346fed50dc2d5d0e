#pragma once

#include "bridge/EventRecord.h"
#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

namespace vantrell
{

/// A file to which events are appended as they come, one line of JSON each. Any thread.
class HostLog
{
public:
    /// A log that keeps nothing.
    HostLog() = default;
    /// Makes the file where there is none, for its owner only.
    static Result<HostLog> open(const QString &path);

    /// What is not written is told on standard error.
    void append(const EventRecord &event) const;

    /// The event as one JSON object, without a line end. A file reference shows the path that it leads to,
    /// if any, and its length; texts are whole.
    static QByteArray json(const EventRecord &event);

private:
    Descriptor m_file;
};

} // namespace vantrell
