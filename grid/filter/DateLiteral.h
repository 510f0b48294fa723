#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The texts inside date, time and date-time literals. Numbers are SAS counts: days or seconds from
/// 1960-01-01, seconds from midnight. Dates lie in the years 1582 to 9999.
namespace dateliteral {

/// Years of two digits are the hundred years from this one on.
inline constexpr int yearCutoff = 1926;

/// "ddMONyyyy": English months of three letters in any case; blanks, "-", "/", "." and "," may
/// separate the parts; a year of two digits stands for one from yearCutoff on. Nothing for any
/// other text and for a day that does not exist.
[[nodiscard]] std::optional<double> parseDate(std::string_view text);

/// "hh:mm[:ss[.f]]" with "am" or "pm" or without; without, there may be more than 24 hours.
[[nodiscard]] std::optional<double> parseTime(std::string_view text);

/// A date, a colon or blanks, and a time of day.
[[nodiscard]] std::optional<double> parseDateTime(std::string_view text);

// The texts of whole numbers in the range that the literals have, which read back to them:
// "01JAN2020", "12:30:15", "01JAN2020:12:30:15". Nothing for other numbers; times end before 24:00.
[[nodiscard]] std::optional<std::string> formatDate(double days);
[[nodiscard]] std::optional<std::string> formatTime(double seconds);
[[nodiscard]] std::optional<std::string> formatDateTime(double seconds);

}  // namespace dateliteral
