#pragma once

#include "support/files/FileUtilities.h"

#include <atomic>
#include <memory>

namespace vantrell
{

/// A write on another thread that can be cancelled until its file replaces the old one, however long
/// the disk takes. Any thread; handled through shared pointers.
class CancellableWrite : public std::enable_shared_from_this<CancellableWrite>
{
public:
    /// False when it is too late: the new file replaces the old one.
    bool cancel()
    {
        State expected = State::Writing;
        return m_state.compare_exchange_strong(expected, State::Cancelled) || expected == State::Cancelled;
    }
    bool isCancelled() const { return m_state == State::Cancelled; }

    /// For FileUtilities::writeAtomically().
    FileUtilities::BeforeReplacing check()
    {
        return [self = shared_from_this()](int) -> Result<void> {
            State expected = State::Writing;
            if (self->m_state.compare_exchange_strong(expected, State::Replacing))
                return {};
            return Failure{QStringLiteral("Writing was cancelled.")};
        };
    }

private:
    enum class State { Writing, Replacing, Cancelled };
    std::atomic<State> m_state = State::Writing;
};

} // namespace vantrell
