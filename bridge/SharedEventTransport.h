#pragma once

#include "bridge/AppleEventTransport.h"

#include <memory>

namespace vantrell
{

/// The transport of all operations of the process: the one that was set, else sockets. Any thread.
std::shared_ptr<AppleEventTransport> sharedEventTransport();

/// Takes its place from the next event on; null: sockets. Any thread.
void setSharedEventTransport(std::shared_ptr<AppleEventTransport> transport);

} // namespace vantrell
