#include "samples/Calendar.h"

namespace samples {

namespace {

using namespace std::chrono;

std::string digits(int number, std::size_t count)
{
    auto text = std::to_string(number);
    return std::string(count > text.size() ? count - text.size() : 0, '0') + text;
}

std::string digits(unsigned number)
{
    return digits(static_cast<int>(number), 2);
}

constexpr Date epoch1960 = year(1960) / January / 1;

}  // namespace

Date makeDate(int yearNumber, unsigned monthNumber, unsigned dayNumber)
{
    return year(yearNumber) / month(monthNumber) / day(dayNumber);
}

Date dayOf(Moment moment)
{
    return floor<days>(moment);
}

Moment at(Date day, int hour, int minute)
{
    return day + hours(hour) + minutes(minute);
}

std::string isoText(Moment moment, Precision precision)
{
    const year_month_day date(dayOf(moment));
    auto text = digits(static_cast<int>(date.year()), 4);
    if (precision >= Precision::Month) {
        text += '-' + digits(static_cast<unsigned>(date.month()));
    }
    if (precision >= Precision::Day) {
        text += '-' + digits(static_cast<unsigned>(date.day()));
    }
    if (precision >= Precision::Minute) {
        const hh_mm_ss time(moment - dayOf(moment));
        text += 'T' + digits(static_cast<int>(time.hours().count()), 2) + ':'
            + digits(static_cast<int>(time.minutes().count()), 2);
    }
    return text;
}

double sasDate(Date day)
{
    return static_cast<double>((day - epoch1960).count());
}

double sasDateTime(Moment moment)
{
    return static_cast<double>(seconds(moment - epoch1960).count());
}

double sasTime(Moment moment)
{
    return static_cast<double>(seconds(moment - dayOf(moment)).count());
}

double studyDay(Date day, Date reference)
{
    const auto difference = (day - reference).count();
    return static_cast<double>(difference >= 0 ? difference + 1 : difference);
}

Date firstPossible(Moment moment, Precision precision)
{
    const year_month_day date(dayOf(moment));
    switch (precision) {
    case Precision::Year:
        return date.year() / January / 1;
    case Precision::Month:
        return date.year() / date.month() / 1;
    default:
        return dayOf(moment);
    }
}

Date lastPossible(Moment moment, Precision precision)
{
    const year_month_day date(dayOf(moment));
    switch (precision) {
    case Precision::Year:
        return date.year() / December / 31;
    case Precision::Month:
        return date.year() / date.month() / last;
    default:
        return dayOf(moment);
    }
}

int yearsBetween(Date birth, Date day)
{
    const year_month_day from(birth);
    const year_month_day until(day);
    const int years = static_cast<int>(until.year()) - static_cast<int>(from.year());
    const bool hadBirthday = until.month() / until.day() >= from.month() / from.day();
    return hadBirthday ? years : years - 1;
}

}  // namespace samples
