#pragma once

#include <cmath>
#include <limits>

/// What the cells of a variable hold where a number is missing: NaN, and in some datasets one
/// number as well.
class MissingMark
{
public:
    /// NaN alone.
    constexpr MissingMark() = default;
    constexpr explicit MissingMark(double number)
        : m_number(number)
    { }

    [[nodiscard]] bool isMissing(double number) const
    {
        return std::isnan(number) || number == m_number;
    }
    /// The number, and NaN for every missing one.
    [[nodiscard]] double unified(double number) const
    {
        return number == m_number ? std::numeric_limits<double>::quiet_NaN() : number;
    }

private:
    double m_number = std::numeric_limits<double>::quiet_NaN();  ///< NaN equals nothing
};
