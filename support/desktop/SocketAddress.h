#pragma once

#include "support/files/Descriptor.h"

#include <QString>

#include <optional>
#include <sys/un.h>

namespace vantrell
{

/// The address of the Unix-domain socket with that path; nothing when the path is empty or longer than an
/// address can hold. Any thread.
std::optional<sockaddr_un> socketAddress(const QString &path);

/// A non-blocking connection to the Unix-domain socket with that path. On failure it is not open and errno is
/// set; EAGAIN: the queue of connections to be accepted is full. Any thread.
Descriptor connectedSocket(const QString &path);

} // namespace vantrell
