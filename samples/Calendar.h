#pragma once

#include <chrono>
#include <string>

namespace samples {

using Date = std::chrono::sys_days;
using Moment = std::chrono::sys_time<std::chrono::minutes>;

/// How much of a moment was written down.
enum class Precision
{
    Year,
    Month,
    Day,
    Minute
};

[[nodiscard]] Date makeDate(int year, unsigned month, unsigned day);
[[nodiscard]] Date dayOf(Moment moment);
[[nodiscard]] Moment at(Date day, int hour, int minute);

/// ISO 8601, as far as known: "2023", "2023-05", "2023-05-07", "2023-05-07T09:30".
[[nodiscard]] std::string isoText(Moment moment, Precision precision);

[[nodiscard]] double sasDate(Date day);  ///< days from 1960
[[nodiscard]] double sasDateTime(Moment moment);  ///< seconds from 1960
[[nodiscard]] double sasTime(Moment moment);  ///< seconds from midnight

/// Day of the study: 1 on the reference day, -1 on the day before; there is no day 0.
[[nodiscard]] double studyDay(Date day, Date reference);

/// First and last day that a moment known only to this precision may have been.
[[nodiscard]] Date firstPossible(Moment moment, Precision precision);
[[nodiscard]] Date lastPossible(Moment moment, Precision precision);

[[nodiscard]] int yearsBetween(Date birth, Date day);  ///< completed years

}  // namespace samples
