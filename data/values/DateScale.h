#pragma once

#include <optional>
#include <string>

/// How a variable counts dates and times.
///
/// SAS data, and everything else that has SAS formats, counts days and seconds from 1960; those
/// counts, by which scales meet, are plain numbers there, whatever the format. Elsewhere a count is
/// converted exactly: SPSS counts all dates in seconds from 1582-10-14, R counts Dates in days and
/// POSIXct in seconds from 1970, Stata %td in days and %tc in milliseconds from 1960.
class DateScale
{
public:
    enum class Content
    {
        Number,
        Date,
        Time,
        DateTime,
    };

    // The scale of a variable from its format, with or without width and decimals.
    [[nodiscard]] static DateScale ofSas(const std::string& format);
    [[nodiscard]] static DateScale ofSpss(const std::string& format);
    [[nodiscard]] static DateScale ofStata(const std::string& format);
    /// @param format  as strftime() takes it
    [[nodiscard]] static DateScale ofR(const std::string& format);

    /// What the variable's format shows.
    [[nodiscard]] Content content() const { return m_content; }

    /// The count of the variable that stands for the same moment as a SAS count, so that a literal
    /// is converted once instead of every cell. Nothing where the variable counts weeks, months or
    /// other periods that have no moment.
    /// @param what  whether the SAS count is one of days or seconds; a number stays as it is
    [[nodiscard]] std::optional<double> storedCount(Content what, double sasCount) const;

    /// The SAS count, in days or seconds as the content says, of a value of the variable.
    [[nodiscard]] double sasCount(double stored) const;

private:
    [[nodiscard]] double secondsToUnits(double seconds) const;

    Content m_content = Content::Number;
    bool m_isSasCount = true;
    bool m_countsPeriods = false;
    double m_epoch = 0;  ///< the day it counts from, in days from 1960-01-01
    double m_unitsPerDay = 1;
};
