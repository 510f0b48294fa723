#pragma once

#include "data/values/DateScale.h"
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
    qsizetype position = 0;  ///< of the literal in the command text

    /// What `number` counts.
    [[nodiscard]] DateScale::Content content() const
    {
        switch (kind) {
        case Kind::Date:
            return DateScale::Content::Date;
        case Kind::Time:
            return DateScale::Content::Time;
        case Kind::DateTime:
            return DateScale::Content::DateTime;
        default:
            return DateScale::Content::Number;
        }
    }
};

/// Converts a literal. Throws ParseError, which shows it, where it is no date, or a number that a
/// double cannot hold.
[[nodiscard]] LiteralValue valueOf(const Literal& literal);
