#pragma once

#include "bridge/AppleEventTransport.h"

#include <memory>

namespace vantrell
{

/// The transport that the whole process uses: the one that was set, else sockets. Any thread.
std::shared_ptr<AppleEventTransport> sharedEventTransport();

/// Replaces it from the next event on; null restores sockets. Any thread.
void setSharedEventTransport(std::shared_ptr<AppleEventTransport> transport);

} // namespace vantrell
