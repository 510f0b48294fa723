#pragma once

#include <string>
#include <string_view>

/// How R's values are shown. English month names in every locale, times in UTC.
namespace rformat {

// The formats of variables, as R's own format() takes those of dates and times.
inline constexpr std::string_view date = "%d%b%Y";  ///< days since 1970-01-01
inline constexpr std::string_view dateTime = "%d%b%Y:%H:%M:%S";  ///< seconds since 1970-01-01
inline constexpr std::string_view time = "%H:%M:%S";  ///< seconds
inline constexpr std::string_view logical = "logical";

/// The text of every missing value.
inline constexpr std::string_view missing = "N/A";

/// Whether a number of a file is R's NA, which is one NaN of many.
[[nodiscard]] bool isMissing(double number);
/// The number as a cell holds it: the usual NaN stands for NA, and one of its own for R's NaN.
[[nodiscard]] double cellNumber(double number);

/// A number by its variable's format; in the fewest digits where that is none of those above.
/// Fractions of days and seconds are dropped downwards.
[[nodiscard]] std::string formatNumber(double number, std::string_view format);

/// "1+2i", in the fewest digits.
[[nodiscard]] std::string formatComplex(double realPart, double imaginaryPart);

/// As R's as.character() writes a real: up to 15 significant digits, with an exponent where that is
/// shorter.
[[nodiscard]] std::string asCharacter(double number);

}  // namespace rformat
