#include "bridge/SharedEventTransport.h"

#include "bridge/SocketEventTransport.h"

#include <mutex>
#include <utility>

namespace vantrell
{

namespace
{

struct Shared {
    std::mutex mutex; ///< guards the transport
    std::shared_ptr<AppleEventTransport> transport;
};

Shared &shared()
{
    static Shared *const state = new Shared;
    return *state;
}

} // namespace

std::shared_ptr<AppleEventTransport> sharedEventTransport()
{
    const std::lock_guard lock(shared().mutex);
    if (!shared().transport)
        shared().transport = std::make_shared<SocketEventTransport>();
    return shared().transport;
}

void setSharedEventTransport(std::shared_ptr<AppleEventTransport> transport)
{
    const std::lock_guard lock(shared().mutex);
    shared().transport = std::move(transport);
}

} // namespace vantrell
