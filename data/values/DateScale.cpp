#include "data/values/DateScale.h"

#include "data/values/CivilTime.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

namespace {

using namespace std::string_view_literals;

constexpr double secondsPerDay = civil::secondsPerDay;

constexpr std::array sasDates{
    "B8601DA"sv, "DATE"sv,     "DAY"sv,      "DDMMYY"sv,  "DDMMYYB"sv, "DDMMYYC"sv,  "DDMMYYD"sv,
    "DDMMYYN"sv, "DDMMYYP"sv,  "DDMMYYS"sv,  "DOWNAME"sv, "E8601DA"sv, "IS8601DA"sv, "JULDAY"sv,
    "JULIAN"sv,  "MMDDYY"sv,   "MMDDYYB"sv,  "MMDDYYC"sv, "MMDDYYD"sv, "MMDDYYN"sv,  "MMDDYYP"sv,
    "MMDDYYS"sv, "MMYY"sv,     "MMYYC"sv,    "MMYYD"sv,   "MMYYN"sv,   "MMYYP"sv,    "MMYYS"sv,
    "MONNAME"sv, "MONTH"sv,    "MONYY"sv,    "QTR"sv,     "QTRR"sv,    "WEEKDATE"sv, "WEEKDATX"sv,
    "WEEKDAY"sv, "WORDDATE"sv, "WORDDATX"sv, "YEAR"sv,    "YYMM"sv,    "YYMMC"sv,    "YYMMD"sv,
    "YYMMDD"sv,  "YYMMDDB"sv,  "YYMMDDC"sv,  "YYMMDDD"sv, "YYMMDDN"sv, "YYMMDDP"sv,  "YYMMDDS"sv,
    "YYMMN"sv,   "YYMMP"sv,    "YYMMS"sv,    "YYMON"sv,   "YYQ"sv,     "YYQR"sv,
};
constexpr std::array sasDateTimes{
    "B8601DN"sv, "B8601DT"sv, "DATEAMPM"sv, "DATETIME"sv, "DTDATE"sv,   "DTMONYY"sv,
    "DTYEAR"sv,  "E8601DN"sv, "E8601DT"sv,  "IS8601DN"sv, "IS8601DT"sv, "MDYAMPM"sv,
};
constexpr std::array sasTimes{
    "B8601TM"sv, "E8601TM"sv, "HHMM"sv, "HOUR"sv, "IS8601TM"sv, "MMSS"sv, "TIME"sv, "TIMEAMPM"sv,
};
constexpr std::array spssDates{
    "ADATE"sv, "DATE"sv, "EDATE"sv, "JDATE"sv, "MOYR"sv, "QYR"sv, "SDATE"sv, "WKYR"sv,
};
constexpr std::array spssDateTimes{"DATETIME"sv, "YMDHMS"sv};
constexpr std::array spssTimes{"DTIME"sv, "MTIME"sv, "TIME"sv};

/// The name of a format in capitals, without width and decimals: "date9." is "DATE".
std::string bareName(const std::string& format)
{
    std::string name = format.substr(0, format.find_last_not_of("0123456789.") + 1);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return name;
}

template <typename Dates, typename DateTimes, typename Times>
DateScale::Content contentOf(const std::string& format, const Dates& dates,
                             const DateTimes& dateTimes, const Times& times)
{
    const std::string name = bareName(format);
    const auto isIn = [&](const auto& names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    if (isIn(dates)) {
        return DateScale::Content::Date;
    }
    if (isIn(dateTimes)) {
        return DateScale::Content::DateTime;
    }
    return isIn(times) ? DateScale::Content::Time : DateScale::Content::Number;
}

}  // namespace

DateScale DateScale::ofSas(const std::string& format)
{
    DateScale scale;
    scale.m_content = contentOf(format, sasDates, sasDateTimes, sasTimes);
    scale.m_unitsPerDay = scale.m_content == Content::Date ? 1 : secondsPerDay;
    return scale;
}

DateScale DateScale::ofSpss(const std::string& format)
{
    DateScale scale;
    scale.m_content = contentOf(format, spssDates, spssDateTimes, spssTimes);
    scale.m_isSasCount = false;
    scale.m_epoch = civil::dayOf1582October14 - civil::dayOf1960January1;
    scale.m_unitsPerDay = secondsPerDay;
    return scale;
}

DateScale DateScale::ofStata(const std::string& format)
{
    DateScale scale;
    std::string_view code = format;
    code.remove_prefix(std::min(code.find_first_not_of("%-"), code.size()));
    if (code.starts_with("td") || code.starts_with('d')) {
        scale.m_content = Content::Date;
        scale.m_isSasCount = false;
    } else if (code.starts_with("tc") || code.starts_with("tC")) {
        scale.m_content = Content::DateTime;
        scale.m_isSasCount = false;
        scale.m_unitsPerDay = 1000 * secondsPerDay;
    } else {
        scale.m_countsPeriods = code.starts_with('t');
    }
    return scale;
}

DateScale DateScale::ofR(const std::string& format)
{
    DateScale scale;
    if (format == "%d%b%Y") {
        scale.m_content = Content::Date;
    } else if (format == "%d%b%Y:%H:%M:%S") {
        scale.m_content = Content::DateTime;
        scale.m_unitsPerDay = secondsPerDay;
    } else {
        return scale;
    }
    scale.m_isSasCount = false;
    scale.m_epoch = -civil::dayOf1960January1;
    return scale;
}

std::optional<double> DateScale::storedCount(Content what, double sasCount) const
{
    if (what == Content::Number) {
        return sasCount;
    }
    if (m_countsPeriods) {
        return std::nullopt;
    }
    if (m_isSasCount) {
        return sasCount;
    }
    switch (what) {
    case Content::Date:
        return (sasCount - m_epoch) * m_unitsPerDay;
    case Content::DateTime:
        return secondsToUnits(sasCount - m_epoch * secondsPerDay);
    default:
        // A time of day has no epoch, and is not counted in days.
        return m_unitsPerDay > secondsPerDay ? secondsToUnits(sasCount) : sasCount;
    }
}

double DateScale::secondsToUnits(double seconds) const
{
    // A day is a multiple of the unit or the unit itself: neither factor is rounded.
    return m_unitsPerDay < secondsPerDay ? seconds / secondsPerDay
                                         : seconds * (m_unitsPerDay / secondsPerDay);
}

double DateScale::sasCount(double stored) const
{
    if (m_isSasCount) {
        return stored;
    }
    switch (m_content) {
    case Content::Date:
        return stored / m_unitsPerDay + m_epoch;
    case Content::DateTime:
        return stored / (m_unitsPerDay / secondsPerDay) + m_epoch * secondsPerDay;
    default:
        return stored;
    }
}
