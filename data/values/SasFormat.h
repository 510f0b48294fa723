#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

/// How SAS datasets show their values: five families of formats, everything else as BEST.
namespace sasformat {

enum class Canonical
{
    None,
    Character,
    Date,
    DateTime,
    Time,
    Fixed,
    Best
};

/// What is known of a format name.
struct Descriptor
{
    Canonical canonical = Canonical::None;
    std::uint16_t minimumWidth = 0;
    std::uint16_t maximumWidth = 0;  ///< no rendering is longer
    std::uint8_t defaultWidth = 0;  ///< taken when the variable's width is 0
    std::uint16_t upperLimit = 0;
};

/// "$", "DATE", "DATETIME", "TIME", "F", "BEST", or empty for None.
[[nodiscard]] std::string_view canonicalName(Canonical canonical);

/// The descriptor of a format name without width and decimals; its canonical form is None when the
/// name is not understood. DATE, DATE5 ... DATE11 match in any letter case, the others exactly.
[[nodiscard]] Descriptor normalise(std::string_view name);

/// Whether values are counts of days or seconds from 1960-01-01.
[[nodiscard]] bool isDateOrTime(Canonical canonical);

/// Renders a number. Negative infinity is the missing marker ".", NaN is "nan" under every format;
/// a date or time that does not fit the integers or the years 1 to 9999 renders as BEST.
/// @param width     of the variable; 0 takes the descriptor's default
/// @param decimals  of the variable; only the fixed-point formats look at it
/// @return  for F and BEST right-aligned in `width` characters and cut there; "DDMonYYYY",
///          "DDMonYYYY:HH:MM:SS" and "HH:MM:SS" (cut at `width`) for dates and times
[[nodiscard]] std::string formatNumber(double number, Descriptor descriptor, int width,
                                       int decimals);

/// Cuts a text to its first `width` characters; 0 takes the default width of "$" under that format,
/// and leaves the text whole under formats that are not understood.
[[nodiscard]] std::string formatText(std::string_view text, Descriptor descriptor, int width);

/// The format names that one dataset has met, each normalised once.
class FormatTable
{
public:
    [[nodiscard]] Descriptor descriptorOf(std::string_view name);

private:
    std::map<std::string, Descriptor, std::less<>> m_descriptors;
};

}  // namespace sasformat
