#pragma once

#include "samples/Table.h"
#include "samples/WriteOptions.h"

namespace samples {

/// What the numbers of a column are: days or seconds from 1960, seconds from midnight.
enum class Meaning
{
    Number,
    Date,
    DateTime,
    Time
};

/// As the column's format tells.
[[nodiscard]] Meaning meaningOf(const Column& column);

/// The column's display format in the file's own notation: "DATE9" for SAS, "DATE11" for SPSS,
/// "%td" for Stata. Empty where the kind needs none. A SAS7BDAT file stores width and decimals
/// apart, so for it this is the bare name.
[[nodiscard]] std::string fileFormat(const Column& column, FileKind kind);

/// What turns a SAS number of the column into the file's: a date becomes seconds from 14 October
/// 1582 for SPSS, a date-time milliseconds from 1960 for Stata; R counts both from 1970. NaN stays
/// NaN.
struct NumberMapping
{
    double factor = 1;
    double offset = 0;

    [[nodiscard]] double operator()(double value) const { return value * factor + offset; }
};

[[nodiscard]] NumberMapping numberMapping(const Column& column, FileKind kind);

}  // namespace samples
