#pragma once

#include <string>
#include <string_view>

/// Renders numbers of Stata files.
namespace stata {

/// Shows a number under a display format.
///
/// @param value   %td days, %tc milliseconds, %tw weeks (52 a year), %tm months, %tq quarters and
///                %th half-years since the start of 1960, %ty years
/// @param format  "%9.0g", "%12.2fc", "%tdDD/NN/CCYY" ...; up to 64 characters, a file holds 57
/// @return        text without leading or trailing blanks
///
/// - %g leaves room for a sign and a decimal point: %9.0g shows up to seven significant digits,
///   drops trailing zeros and the zero before the point, and takes an exponent where more digits
///   are needed before the point, or where the number is below 1e-5. A %w.dg with d > 0 rounds to d
///   significant digits, but never rounds away digits before the point.
/// - %f and %e never change to another form; what is wider than the format is shown in full.
/// - Left-alignment flags have no effect; the flag 0 fills up with zeros. A comma instead of the
///   point in the format ("%9,2f") makes the decimal separator a comma and the grouping character a
///   point.
/// - %tC is shown as %tc: its leap seconds (27 up to 2017) are not taken out.
/// - Date formats take Stata's detail codes and, as %d of old files does, the one-letter ones.
///   DAYNAME is not padded. A fraction of a unit is cut toward the past.
/// - NaN is ".". A number outside the years 100 to 9999 under a date format, an unknown format, %s,
///   and the hexadecimal and binary formats show the fewest digits that tell the number from every
///   other.
[[nodiscard]] std::string formatNumeric(double value, std::string_view format);

/// The decimals of a display format: 2 of "%9.2f"; 0 of those for dates and texts.
[[nodiscard]] int decimalsOf(std::string_view format);

}  // namespace stata
