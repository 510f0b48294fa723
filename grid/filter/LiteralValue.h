#pragma once

#include "data/Result.h"
#include "grid/filter/Condition.h"

#include <string>

/// What the value of a condition stands for.
struct LiteralValue
{
    enum class Kind
    {
        Missing,  ///< the number "."
        Number,
        Date,  ///< `number` counts days from 1960-01-01
        Time,  ///< seconds from midnight
        DateTime,  ///< seconds from 1960-01-01
        Text,
    };

    Kind kind = Kind::Missing;
    double number = 0;
    std::string text;  ///< UTF-8, without quotes

    [[nodiscard]] bool isDateOrTime() const
    {
        return kind == Kind::Date || kind == Kind::Time || kind == Kind::DateTime;
    }
};

/// Converts a literal. A failure shows it: it is no date, or a number that a double cannot hold.
[[nodiscard]] Result<LiteralValue> valueOf(const Literal& literal);
