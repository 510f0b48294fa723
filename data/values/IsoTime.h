#pragma once

#include <optional>
#include <string_view>

/// Dates and times written as ISO 8601 does, as the counts of SAS. Only whole ones that exist are
/// read: a partial date such as 2021-02 has no count.
namespace isotime {

/// Days since 1960-01-01 of "2021-02-28".
[[nodiscard]] std::optional<double> date(std::string_view text);

/// Seconds since midnight of "12:34:56.5"; the seconds may be left out, and 24:00:00 ends a day.
[[nodiscard]] std::optional<double> time(std::string_view text);

/// Seconds since 1960-01-01 of "2021-02-28T12:34:56.5", by the clock that it was written from: an
/// offset from UTC behind it ("Z", "+02:00") is passed over. A blank may stand for the T.
[[nodiscard]] std::optional<double> dateTime(std::string_view text);

/// Whether an offset from UTC other than "Z" ends the text.
[[nodiscard]] bool hasOffset(std::string_view text);

}  // namespace isotime
