#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace vantrell
{

/// Why an operation failed, as a sentence for the user.
struct Failure {
    QString message;
};

/// What an operation gives back that can fail: a value, or a Failure. The compiler will not let a
/// caller drop it. Never throws.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_state(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Failure failure)
        : m_state(std::in_place_index<1>, std::move(failure))
    {
    }

    bool isOk() const { return m_state.index() == 0; }
    explicit operator bool() const { return isOk(); }

    /// The value; only when isOk().
    T &value() { return *std::get_if<0>(&m_state); }
    const T &value() const { return *std::get_if<0>(&m_state); }

    /// The sentence for the user; empty when isOk().
    QString message() const { return isOk() ? QString() : std::get_if<1>(&m_state)->message; }
    Failure failure() const { return Failure{message()}; }

private:
    std::variant<T, Failure> m_state;
};

/// The same for an operation that gives back nothing but success.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Failure failure)
        : m_failure(std::move(failure))
    {
    }

    bool isOk() const { return !m_failure; }
    explicit operator bool() const { return isOk(); }

    QString message() const { return m_failure ? m_failure->message : QString(); }
    Failure failure() const { return Failure{message()}; }

private:
    std::optional<Failure> m_failure;
};

} // namespace vantrell
