#pragma once

#include "data/StatDataset.h"
#include "grid/filter/LiteralValue.h"

#include <optional>

/// How a variable counts dates and times.
///
/// SAS data, and everything else that has SAS formats, counts days and seconds from 1960, as the
/// literals do; values and literals then meet as plain numbers, whatever the format. Elsewhere a
/// count is converted exactly: SPSS counts all dates in seconds from 1582-10-14, R counts Dates in
/// days and POSIXct in seconds from 1970, Stata %td in days and %tc in milliseconds from 1960.
class DateScale
{
public:
    [[nodiscard]] static DateScale of(const StatDataset& dataset, int variable);

    /// What the variable's format shows: a date, a time, a date-time or a plain number.
    [[nodiscard]] LiteralValue::Kind content() const { return m_content; }

    /// The count of the variable that stands for the same moment as the literal, so that the
    /// literal is converted once instead of every cell. Nothing where the variable counts weeks,
    /// months or other periods that have no moment.
    [[nodiscard]] std::optional<double> storedCount(const LiteralValue& literal) const;

    /// The SAS count, in days or seconds as the content says, of a value of the variable.
    [[nodiscard]] double sasCount(double stored) const;

private:
    using Kind = LiteralValue::Kind;

    [[nodiscard]] static DateScale ofSas(const std::string& format);
    [[nodiscard]] static DateScale ofSpss(const std::string& format);
    [[nodiscard]] static DateScale ofStata(const std::string& format);
    [[nodiscard]] static DateScale ofR(const std::string& format);

    [[nodiscard]] double secondsToUnits(double seconds) const;

    Kind m_content = Kind::Number;
    bool m_isSasCount = true;
    bool m_countsPeriods = false;
    double m_epoch = 0;  ///< the day it counts from, in days from 1960-01-01
    double m_unitsPerDay = 1;
};
