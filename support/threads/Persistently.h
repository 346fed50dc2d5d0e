#pragma once

#include "support/log/QVException.h"

#include <chrono>
#include <limits>
#include <thread>

namespace vantrell
{

/// Runs an operation that hands an outcome to somebody who waits for it, again until it throws nothing: all
/// that it may lack is a little memory, and without an outcome the wait would have no end. \a attempts limits
/// that where the operation may have other reasons to throw. Any thread.
template <typename Operation>
void persistently(const char *method, const Operation &operation,
                  int attempts = std::numeric_limits<int>::max())
{
    for (int i = 0; i < attempts && !guarded(method, operation); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

} // namespace vantrell
