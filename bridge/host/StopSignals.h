#pragma once

#include "bridge/EventCancel.h"

namespace vantrell
{

/// Turns SIGINT, SIGTERM and SIGHUP into a cancellation. The second signal ends the process at once. One for
/// the process.
class StopSignals
{
public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    /// Cancelled once a signal has come. Any thread.
    const EventCancel &stop() const { return m_stop; }

private:
    EventCancel m_stop;
};

} // namespace vantrell
