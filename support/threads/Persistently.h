#pragma once

#include "support/log/QVException.h"

#include <chrono>
#include <thread>

namespace vantrell
{

/// Runs an operation that hands an outcome to somebody who waits for it, again until it throws nothing: all
/// that it may lack is a little memory, and without an outcome the wait would have no end. Any thread.
template <typename Operation>
void persistently(const char *method, const Operation &operation)
{
    while (!guarded(method, operation))
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

} // namespace vantrell
