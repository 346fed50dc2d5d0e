#pragma once

#include <QString>

#include <exception>
#include <utility>

namespace vantrell
{

/// Turns a caught exception into one line of the log. Any thread.
class QVException
{
public:
    /// Writes "Exception in %s. %@ - %@." with the method's full name, the exception's name and its
    /// reason to the log and the console, and returns it.
    static QString logException(const QString &name, const QString &reason, const char *method);

    /// The same with the exception's type as its name and what() as the reason.
    static QString logException(const std::exception &exception, const char *method);

    /// The same for the exception being handled, whatever its type; only inside a catch block.
    static QString logCurrentException(const char *method);

    /// Whether an exception of this name says that a message to another application got no answer
    /// in time.
    static bool didTimeout(const QString &name);
};

/// Runs an operation and lets no exception out: true when it ended by itself, false when it threw,
/// which is then in the log.
template <typename Operation>
bool guarded(const char *method, Operation &&operation)
{
    try {
        std::forward<Operation>(operation)();
        return true;
    } catch (...) {
        try {
            QVException::logCurrentException(method);
        } catch (...) {
            // There is no memory to tell it with.
        }
        return false;
    }
}

} // namespace vantrell
