#pragma once

#include "support/files/Descriptor.h"

namespace vantrell
{

/// Turns an interrupt, a hang-up or a request to terminate into something to wait for. The second one ends
/// the process at once. One for the process.
class StopSignals
{
public:
    StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    /// Can be read from, and stays so, once a signal has come. Any thread may poll it; nobody reads.
    int descriptor() const { return m_event.number(); }

private:
    Descriptor m_event;
};

} // namespace vantrell
