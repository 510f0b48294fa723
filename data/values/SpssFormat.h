#pragma once

#include <string>
#include <string_view>

/// Renders numbers of SPSS files.
namespace spss {

/// Shows a number under a print format.
///
/// @param value   dates and date-times are seconds since 1582-10-14 00:00, times are seconds
/// @param format  name, width and decimals as the format library writes them: "F8.2", "DATE11"
/// @return        text without leading or trailing blanks
///
/// - The width decides what it decides in SPSS: how many decimals remain, whether digits are
///   grouped, whether a year has two or four digits and whether seconds are shown. It never hides
///   anything: a number that does not fit even without decimals is written in full, without regard
///   to the width (from 1e21 on with an exponent), and a negative or long time keeps its seconds.
/// - A year outside 1950 to 2049 has four digits under every format, since two would mislead.
/// - Seconds are cut when the format has no decimals and rounded, with carry, when it has.
/// - NaN is ".". A number that is no date from 1582-10-14 to 9999-12-31, no weekday 1 to 7, no
///   month 1 to 12, or whose format is unknown or empty, is shown with the fewest digits that tell
///   it from every other number; so are the binary formats (IB, PIB, RB ...), which have no printed
///   form.
/// - N and Z, which imply their decimals, show the decimal point so that the number can be read.
/// - The custom currencies CCA to CCE look as SPSS sets them up at first, like COMMA.
[[nodiscard]] std::string formatNumeric(double value, std::string_view format);

/// The decimals of a print format, of one that is not shown as such, too: 2 of "F9.2" and "IB4.2".
[[nodiscard]] int decimalsOf(std::string_view format);

}  // namespace spss
