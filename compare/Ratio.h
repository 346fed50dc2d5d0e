#pragma once

#include <cstdint>
#include <numeric>

namespace vantrell
{

/// A fraction in lowest terms, its denominator above 0. Results beyond 64 bits lose their last digits, never
/// their size. A value; any thread.
class Ratio
{
    __extension__ using Wide = __int128;

public:
    Ratio(std::int64_t numerator = 0, std::int64_t denominator = 1)
        : Ratio(Wide(numerator), Wide(denominator), Exact())
    {
    }

    bool isZero() const { return m_numerator == 0; }
    double value() const { return double(m_numerator) / double(m_denominator); }

    friend bool operator==(Ratio a, Ratio b)
    {
        return a.m_numerator == b.m_numerator && a.m_denominator == b.m_denominator;
    }
    friend bool operator<(Ratio a, Ratio b)
    {
        return Wide(a.m_numerator) * b.m_denominator < Wide(b.m_numerator) * a.m_denominator;
    }

    friend Ratio operator+(Ratio a, Ratio b)
    {
        return {Wide(a.m_numerator) * b.m_denominator + Wide(b.m_numerator) * a.m_denominator,
                Wide(a.m_denominator) * b.m_denominator, Exact()};
    }
    friend Ratio operator-(Ratio a, Ratio b) { return a + b * Ratio(-1); }
    friend Ratio operator*(Ratio a, Ratio b)
    {
        return {Wide(a.m_numerator) * b.m_numerator, Wide(a.m_denominator) * b.m_denominator, Exact()};
    }
    /// 0 when divided by 0.
    friend Ratio operator/(Ratio a, Ratio b)
    {
        return b.isZero() ? Ratio()
                          : Ratio(Wide(a.m_numerator) * b.m_denominator,
                                  Wide(a.m_denominator) * b.m_numerator, Exact());
    }

    Ratio absolute() const { return m_numerator < 0 ? *this * Ratio(-1) : *this; }

    std::int64_t floor() const
    {
        const std::int64_t whole = m_numerator / m_denominator;
        return m_numerator % m_denominator < 0 ? whole - 1 : whole;
    }
    std::int64_t ceil() const
    {
        const std::int64_t whole = m_numerator / m_denominator;
        return m_numerator % m_denominator > 0 ? whole + 1 : whole;
    }

private:
    struct Exact {
    };

    Ratio(Wide numerator, Wide denominator, Exact)
    {
        if (denominator == 0) {
            numerator = 0;
            denominator = 1;
        }
        if (denominator < 0) {
            numerator = -numerator;
            denominator = -denominator;
        }
        Wide a = numerator < 0 ? -numerator : numerator;
        for (Wide b = denominator; b != 0;) {
            const Wide rest = a % b;
            a = b;
            b = rest;
        }
        if (a > 1) {
            numerator /= a;
            denominator /= a;
        }
        constexpr Wide limit = INT64_MAX;
        while (denominator > 1 && (numerator > limit || numerator < -limit || denominator > limit)) {
            numerator /= 2;
            denominator /= 2;
        }
        m_numerator = std::int64_t(numerator > limit ? limit : numerator < -limit ? -limit : numerator);
        m_denominator = std::int64_t(denominator);
    }

    std::int64_t m_numerator = 0;
    std::int64_t m_denominator = 1;
};

} // namespace vantrell
