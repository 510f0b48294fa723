#pragma once

#include <string>
#include <string_view>

/// SAS formats as other formats than SAS's own name them, applied without loss: a number is never
/// cut at the format's width, and a date keeps to the calendar of its format.
namespace displayformat {

/// A format taken apart: "DATE9." has the name DATE and the width 9, "8.2" no name.
struct Parts
{
    std::string name;  ///< in capitals; ends in no digit
    int width = 0;
    int decimals = 0;
};

/// What is no format at all is a name without width.
[[nodiscard]] Parts partsOf(std::string_view format);

/// The name that shows 0 as "false" and every other number as "true"; no format of SAS.
inline constexpr std::string_view booleanName = "BOOLEAN";

/// A number, a day count or a second count from 1960 under a format. NaN is a point. F and formats
/// without a name show their decimals; names that are not known, BEST among them, the fewest digits
/// that read back to the same number.
/// Known are DATE, DATETIME, TIME, the ISO 8601 formats and those that order day, month and year;
/// the other dates and times of SAS are shown as ISO 8601 writes them.
[[nodiscard]] std::string number(double value, std::string_view name, int width, int decimals);

/// The fewest digits, but whole numbers in full.
[[nodiscard]] std::string plainNumber(double value);

}  // namespace displayformat
