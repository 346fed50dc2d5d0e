#pragma once

#include <QString>

#include <optional>
#include <sys/un.h>

namespace vantrell
{

/// The address of the Unix-domain socket with that path; nothing when the path is empty or longer than an
/// address can hold. Any thread.
std::optional<sockaddr_un> socketAddress(const QString &path);

} // namespace vantrell
